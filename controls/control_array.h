#pragma once

#include "controls/control.h"
#include "platform/failure.h"

#include <memory>
#include <vector>

namespace zeugnis {

/// Like controls under one name, addressed by index: Command1(3).
template <typename T>
class ControlArray {
  public:
    /// The members `first` to `last`, in the same container.
    ControlArray(Screen& screen, TextView name, int first, int last, Control* container = nullptr)
        : m_name(name), m_first(first) {
        for (int index = first; index <= last; ++index)
            m_members.push_back(std::make_unique<T>(screen, name, index, container));
    }

    /// A member that does not exist fails with index-out-of-range.
    T& operator()(int index) const {
        const int at = index - m_first;
        if (at < 0 || at >= static_cast<int>(m_members.size()))
            throw Laufzeitfehler(Fehlerart::IndexOutOfRange,
                                 m_name + u"(" + textFromNumber(index) + u") gibt es nicht.");
        return *m_members[static_cast<size_t>(at)];
    }

    [[nodiscard]] int first() const { return m_first; }
    [[nodiscard]] int last() const { return m_first + static_cast<int>(m_members.size()) - 1; }

    /// Calls `action(member)` for each, in order of the index.
    template <typename Action>
    void each(Action action) const {
        for (const auto& member : m_members)
            action(*member);
    }

    /// Connects one kind of event of all members to a handler that takes the index.
    template <typename S>
    void on(Handler Control::*event, S* screen, void (S::*handler)(int)) const {
        for (const auto& member : m_members)
            (*member).*
                event = [screen, handler, index = *member->index()] { (screen->*handler)(index); };
    }

  private:
    Text m_name;
    int m_first;
    std::vector<std::unique_ptr<T>> m_members;
};

} // namespace zeugnis
