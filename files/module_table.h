#pragma once

#include "platform/text.h"

#include <vector>

namespace zeugnis {

/// The cells of one module file. Columns count from 1, as the fields behind the running number do;
/// rows from 0. Any other place fails with index-out-of-range.
class Bausteintabelle {
  public:
    Bausteintabelle(int spalten, int zeilen);
    Text& operator()(int spalte, int zeile) { return m_zellen[stelle(spalte, zeile)]; }
    const Text& operator()(int spalte, int zeile) const { return m_zellen[stelle(spalte, zeile)]; }

  private:
    [[nodiscard]] size_t stelle(int spalte, int zeile) const;

    int m_spalten;
    int m_zeilen;
    std::vector<Text> m_zellen;
};

} // namespace zeugnis
