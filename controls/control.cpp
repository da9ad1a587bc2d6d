#include "controls/control.h"

#include "controls/program.h"
#include "controls/screen.h"
#include "platform/failure.h"

#include <system_error>

namespace zeugnis {

Control::Control(Screen& screen, TextView name, std::optional<int> index, Control* container)
    : m_screen(screen), m_name(name), m_index(index), m_container(container) {
    screen.add(*this);
}

Text Control::fullName() const {
    return m_index ? m_name + u"(" + textFromNumber(*m_index) + u")" : m_name;
}

bool Control::reachable() const {
    if (!m_screen.shown())
        return false;
    for (const Control* control = this; control != nullptr; control = control->m_container)
        if (!control->Visible || !control->Enabled)
            return false;
    return true;
}

void CheckBox::setValue(bool value) {
    if (m_value == value)
        return;
    m_value = value;
    if (onClick)
        onClick();
}

void OptionButton::setValue(bool value) {
    if (m_value == value)
        return;
    if (!value) {
        m_value = false;
        return;
    }
    for (Control* control : screen().controls())
        if (auto* option = dynamic_cast<OptionButton*>(control);
            option != nullptr && option->container() == container())
            option->m_value = false;
    m_value = true;
    if (onClick)
        onClick();
}

void PictureBox::load(const Text& fileName) {
    Programm& programm = screen().programm();
    const std::filesystem::path path = programm.directory().path(fileName);
    const Text shown = programm.directory().displayName(fileName);
    std::error_code ignored;
    if (!std::filesystem::exists(path, ignored))
        throw Laufzeitfehler(Fehlerart::FileNotFound,
                             u"Das Bild „" + shown + u"“ ist nicht vorhanden.");
    if (!programm.machine().pictures.canShow(path))
        throw Laufzeitfehler(Fehlerart::InvalidPicture,
                             u"Die Datei „" + shown + u"“ ist kein Bild im JPEG-Format.");
    m_picture = fileName;
    m_file = path;
    ++m_loads;
}

} // namespace zeugnis
