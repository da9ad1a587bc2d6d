#include "controls/program.h"

#include "platform/failure.h"

#include <algorithm>
#include <utility>

namespace zeugnis {

Programm::Programm(const Machine& machine, const std::filesystem::path& programFolder)
    : m_machine(machine), m_directory(programFolder) {}

Programm::~Programm() = default;

void Programm::registerScreen(TextView name, Factory factory) {
    m_factories.emplace(name, std::move(factory));
}

Screen& Programm::load(TextView name) {
    if (Screen* loaded = find(name))
        return *loaded;
    const auto factory = m_factories.find(name);
    if (factory == m_factories.end())
        throw Laufzeitfehler(Fehlerart::InvalidCall,
                             u"Das Fenster „" + Text(name) + u"“ gibt es nicht.");
    const Task task(*this);
    std::unique_ptr<Screen> made = factory->second(*this);
    Screen& screen = *made;
    m_loaded.emplace(name, std::move(made));
    m_order.push_back(&screen);
    screen.load();
    return screen;
}

void Programm::show(TextView name) {
    load(name);
    // A screen may unload itself while it loads.
    if (Screen* screen = find(name)) {
        screen->m_shown = true;
        ++screen->m_raises;
    }
}

void Programm::hide(TextView name) {
    Screen* screen = find(name);
    if (screen == nullptr)
        return;
    if (m_focus != nullptr && &m_focus->screen() == screen)
        moveFocus(nullptr);
    screen->m_shown = false;
}

void Programm::unload(TextView name) {
    const auto found = m_loaded.find(name);
    if (found == m_loaded.end())
        return;
    const Task task(*this);
    Screen* screen = found->second.get();
    screen->m_shown = false;
    if (m_focus != nullptr && &m_focus->screen() == screen)
        m_focus = nullptr;
    std::erase(m_order, screen);
    m_dropped.push_back(std::move(found->second));
    m_loaded.erase(found);
}

Screen* Programm::find(TextView name) const {
    const auto found = m_loaded.find(name);
    return found == m_loaded.end() ? nullptr : found->second.get();
}

void Programm::moveFocus(Control* control) {
    if (control == m_focus)
        return;
    Control* left = std::exchange(m_focus, control);
    if (left != nullptr && left->onLostFocus)
        left->onLostFocus();
}

Programm::Task::Task(Programm& programm) : m_programm(programm) {
    if (m_programm.m_runningTasks++ == 0)
        m_unit.emplace(m_programm.directory().watcher());
}

Programm::Task::~Task() {
    m_unit.reset();
    if (--m_programm.m_runningTasks == 0)
        m_programm.m_dropped.clear();
}

} // namespace zeugnis
