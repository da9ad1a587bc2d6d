#include "controls/screen.h"

#include "controls/program.h"

#include <algorithm>

namespace zeugnis {

Screen::Screen(Programm& programm, TextView name, TextView title)
    : Title(title), m_programm(programm), m_name(name) {}

Control* Screen::find(TextView fullName) const {
    const auto found = std::find_if(m_controls.begin(), m_controls.end(),
                                    [&](const Control* c) { return c->fullName() == fullName; });
    return found == m_controls.end() ? nullptr : *found;
}

void Screen::setFocus(Control& control) { m_programm.moveFocus(&control); }

} // namespace zeugnis
