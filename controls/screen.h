#pragma once

#include "controls/control.h"

#include <vector>

namespace zeugnis {

class Programm;

/// A screen is a plain struct of controls and state with its routines as member functions.
/// It is made, shown and dropped by the program; what it holds is gone when it is unloaded.
class Screen {
  public:
    Screen(Programm& programm, TextView name, TextView title);
    virtual ~Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /// Runs once, right after construction, before the screen is shown.
    virtual void load() = 0;

    [[nodiscard]] const Text& name() const { return m_name; }
    [[nodiscard]] Programm& programm() const { return m_programm; }
    [[nodiscard]] bool shown() const { return m_shown; }

    /// All controls in the order in which they are declared.
    [[nodiscard]] const std::vector<Control*>& controls() const { return m_controls; }

    /// Null if there is no such control. Takes "Command1(3)" and "Combo1".
    [[nodiscard]] Control* find(TextView fullName) const;

    Text Title;
    bool AlwaysOnTop = false;

    /// Rises each time the screen is to come to the front.
    [[nodiscard]] int raises() const { return m_raises; }

  protected:
    /// Moves the focus. Nothing else happens to the control.
    void setFocus(Control& control);

  private:
    friend class Control;
    friend class Programm;
    void add(Control& control) { m_controls.push_back(&control); }

    Programm& m_programm;
    Text m_name;
    std::vector<Control*> m_controls;
    bool m_shown = false;
    int m_raises = 0;
};

} // namespace zeugnis
