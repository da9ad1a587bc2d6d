#pragma once

#include "desktop/desktop_machine.h"
#include "driver/driver_machine.h"

#include <QObject>

#include <optional>
#include <string>

namespace zeugnis {

class DialogBox;

namespace windowdriver {

/// Shows the real boxes of the desktop and presses their buttons as the script says. Boxes that the
/// windows add by themselves are agreed to without a word, or with `tellOwnBoxes` printed and
/// answered like the others.
class PressedDialogs : public QObject, public DesktopDialogs {
  public:
    PressedDialogs(std::ostream& out, driver::DialogScript& script);
    ~PressedDialogs() override;

    Antwort message(const Meldung& meldung) override;
    std::optional<Text> input(const Text& title, const Text& prompt) override;

    void tellOwnBoxes() { m_tellOwn = true; }
    /// The next failure box is the end of the program, which the driver tells by itself.
    void expectFailureBox() { m_silent = true; }

    /// How many boxes have come up so far.
    [[nodiscard]] int boxesShown() const { return m_shown; }

    /// What came up that the script has no answer for, or looked otherwise than it should.
    std::optional<std::string> complaint;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[noreturn]] void giveUp(const std::string& reason);
    void press(DialogBox& box);
    void answerOwnBox(DialogBox& box);
    void complain(const std::string& reason);
    void compare(const DialogBox& box, const Meldung& meldung);

    std::ostream& m_out;
    driver::DialogScript& m_script;
    const Meldung* m_expected = nullptr; ///< the box that comes up next, if the screen asked for it
    std::optional<Antwort> m_answer;     ///< to the box that comes up next
    std::optional<Text> m_input;
    bool m_tellOwn = false;
    bool m_silent = false;
    int m_shown = 0;
};

} // namespace windowdriver
} // namespace zeugnis
