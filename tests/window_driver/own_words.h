#pragma once

#include "driver/command_line.h"

#include <vector>

namespace zeugnis {

class Control;

namespace windowdriver {

class WindowHand;

/// The commands that only a hand has a use for: see README.md.
class OwnWords {
  public:
    explicit OwnWords(WindowHand& hand) : m_hand(hand) {}

    /// False if there is no such command.
    bool carryOut(const std::vector<driver::Word>& words);

  private:
    using Words = std::vector<driver::Word>;

    void press(const Words& words);
    void wheel(const Words& words);
    void drag(const Words& words);
    void look(const Words& words);
    void highlight(const Words& words);
    void front(const Words& words);
    void tellFocus(const Words& words);
    void ownBoxes(const Words& words);
    void ink(const Words& words);

    Control& control(const driver::Word& word);

    WindowHand& m_hand;
};

} // namespace windowdriver
} // namespace zeugnis
