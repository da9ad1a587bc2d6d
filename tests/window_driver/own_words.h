#pragma once

#include "driver/command_line.h"

#include <ostream>
#include <vector>

namespace zeugnis {

class Control;
class Screen;
class ScreenWindow;

namespace windowdriver {

class WindowHand;

/// The commands that only a hand has a use for: see README.md.
class OwnWords {
  public:
    explicit OwnWords(WindowHand& hand);

    /// False if there is no such command.
    bool carryOut(const std::vector<driver::Word>& words);

  private:
    using Words = std::vector<driver::Word>;
    struct Word;
    static const std::vector<Word>& all();

    void press(const Words& words);
    void keys(const Words& words);
    void wheel(const Words& words);
    void drag(const Words& words);
    void come(const Words& words);
    void open(const Words& words);
    void highlighted(const Words& words);
    void contrast(const Words& words);
    void focused(const Words& words);
    void front(const Words& words);
    void mnemonics(const Words& words);
    void covered(const Words& words);
    void ownBoxes(const Words& words);
    void picture(const Words& words);

    Screen& screen(const Text& name);
    ScreenWindow& window(const Text& name);
    Control& control(const driver::Word& word);

    WindowHand& m_hand;
    std::ostream& m_out;
};

} // namespace windowdriver
} // namespace zeugnis
