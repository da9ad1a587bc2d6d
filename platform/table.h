#pragma once

#include "platform/failure.h"

#include <array>
#include <cstddef>

namespace zeugnis {

/// A table with the fixed rows 0 to N - 1 that checks its index itself:
/// any other index fails with index-out-of-range.
template <typename T, int N>
class Tabelle {
  public:
    Tabelle() = default;
    explicit Tabelle(const std::array<T, static_cast<size_t>(N)>& rows) : m_rows(rows) {}

    T& operator[](int index) { return m_rows[checked(index)]; }
    const T& operator[](int index) const { return m_rows[checked(index)]; }

    [[nodiscard]] static constexpr int size() { return N; }
    void fill(const T& value) { m_rows.fill(value); }

    auto begin() { return m_rows.begin(); }
    auto end() { return m_rows.end(); }
    auto begin() const { return m_rows.begin(); }
    auto end() const { return m_rows.end(); }

  private:
    static size_t checked(int index) {
        if (index < 0 || index >= N)
            throw Laufzeitfehler(Fehlerart::IndexOutOfRange,
                                 u"Der Index " + textFromNumber(index) +
                                     u" liegt außerhalb der Tabelle (0 bis " +
                                     textFromNumber(N - 1) + u").");
        return static_cast<size_t>(index);
    }

    std::array<T, static_cast<size_t>(N)> m_rows{};
};

} // namespace zeugnis
