#include "desktop/window_host.h"

#include "controls/user_actions.h"
#include "desktop/dialog_box.h"
#include "desktop/screen_window.h"
#include "desktop/views.h"
#include "platform/failure.h"
#include "toolkit/qt_text.h"

#include <QApplication>
#include <QScopedValueRollback>

#include <algorithm>

namespace zeugnis {

WindowHost::WindowHost(Programm& program) : m_program(program) {
    connect(qApp, &QGuiApplication::applicationStateChanged, this,
            &WindowHost::leaveForOtherProgram);
}

WindowHost::~WindowHost() {
    for (const auto& [screen, window] : m_windows)
        delete window.data();
}

void WindowHost::run(const std::function<void()>& action) {
    if (m_failed || m_program.ended())
        return;
    ++m_depth;
    try {
        const Programm::Task task(m_program);
        action();
        // Before the task ends, so that no window outlives its screen.
        refresh();
    } catch (const Laufzeitfehler& failure) {
        reportFailure(failure);
    } catch (const std::exception& failure) {
        reportFailure({Fehlerart::InvalidCall, sentenceOf(failure)});
    }
    if (--m_depth == 0) {
        m_busy.rest();
        if (beside.actionEnded)
            beside.actionEnded();
    }
    if (m_program.ended())
        QCoreApplication::exit(0);
}

void WindowHost::refreshForBox() {
    refresh();
    m_busy.rest();
}

void WindowHost::refresh() {
    if (m_refreshing || m_program.ended())
        return;
    const QScopedValueRollback refreshing(m_refreshing, true);
    bool anyGone = closeWindows();
    openWindows();
    // In the order of loading, so that of two new windows the later one is in front.
    for (const Screen* screen : m_program.screens())
        if (ScreenWindow* window = windowOf(screen)) {
            const bool wasVisible = window->isVisible();
            window->refresh();
            anyGone = anyGone || (wasVisible && !window->isVisible());
        }
    // Not whichever window the desktop would choose.
    if (ScreenWindow* front = anyGone ? frontWindow() : nullptr) {
        front->raise(); // a report may have come between
        front->activateWindow();
    }
    followFocus();
}

bool WindowHost::closeWindows() {
    bool anyGone = false;
    for (auto window = m_windows.begin(); window != m_windows.end();) {
        const auto& loaded = m_program.screens();
        if (std::find(loaded.begin(), loaded.end(), window->first) != loaded.end()) {
            ++window;
            continue;
        }
        // The action may come from a widget of this window, so it must live a little longer.
        window->second->detach();
        window->second->deleteLater();
        std::erase(m_order, window->first);
        window = m_windows.erase(window);
        anyGone = true;
    }
    return anyGone;
}

void WindowHost::openWindows() {
    for (Screen* screen : m_program.screens()) {
        if (!screen->shown() || m_windows.contains(screen))
            continue;
        if (!m_windows.empty())
            m_busy.work();
        m_windows.emplace(screen, makeWindow(*screen, *this, windowOf(m_program.startScreen())));
    }
}

void WindowHost::painted() {
    if (std::exchange(m_hasPainted, true))
        return;
    // Behind what the window system is still owed.
    QMetaObject::invokeMethod(this, &WindowHost::firstPainted, Qt::QueuedConnection);
}

void WindowHost::cameToFront(const Screen& screen) {
    std::erase(m_order, &screen);
    m_order.push_back(&screen);
}

ScreenWindow* WindowHost::frontWindow(const QWidget* butFor) const {
    const auto front = std::find_if(m_order.rbegin(), m_order.rend(), [&](const Screen* screen) {
        const ScreenWindow* window = windowOf(screen);
        return window != nullptr && window != butFor && window->isVisible();
    });
    return front == m_order.rend() ? nullptr : windowOf(*front);
}

bool WindowHost::allMayClose() const {
    // Each question may bring another window to the front.
    const std::vector<const Screen*> order(m_order.rbegin(), m_order.rend());
    return std::all_of(order.begin(), order.end(), [this](const Screen* screen) {
        ScreenWindow* window = windowOf(screen);
        return window == nullptr || !window->isVisible() || window->mayClose();
    });
}

void WindowHost::followFocus() {
    const Control* focus = m_program.focus();
    if (focus == m_followed)
        return;
    m_followed = focus;
    const auto window = focus == nullptr ? m_windows.end() : m_windows.find(&focus->screen());
    if (window != m_windows.end() && !window->second->showFocus(*focus))
        m_followed = nullptr;
}

void WindowHost::focusArrived(Control& control, Qt::FocusReason reason) {
    const Control* focus = m_program.focus();
    if (m_refreshing || focus == &control)
        return;
    switch (reason) {
    case Qt::MouseFocusReason:
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        // Without a routine at the control that is left nothing else changes.
        if (m_depth == 0 && !m_failed && (focus == nullptr || !focus->onLostFocus)) {
            if (!m_program.ended() && user::focus(control))
                m_followed = &control;
        } else {
            run([&] { user::focus(control); });
        }
        break;
    case Qt::ActiveWindowFocusReason:
        if (focus != nullptr && &focus->screen() != &control.screen())
            run([&] { user::blur(focus->screen()); });
        break;
    default:
        break;
    }
}

void WindowHost::leaveForOtherProgram(Qt::ApplicationState state) {
    if (state == Qt::ApplicationInactive && m_program.focus() != nullptr && m_depth == 0)
        run([this] { user::blur(m_program.focus()->screen()); });
}

QWidget* WindowHost::dialogParent() const {
    if (QWidget* box = QApplication::activeModalWidget())
        return box;
    return frontWindow();
}

ScreenWindow* WindowHost::windowOf(const Screen* screen) const {
    const auto found = m_windows.find(screen);
    return found == m_windows.end() ? nullptr : found->second.data();
}

const WindowPlace* WindowHost::placed(const Text& screen) const {
    const auto found = m_places.find(screen);
    return found == m_places.end() ? nullptr : &found->second;
}

void WindowHost::reportFailure(const Laufzeitfehler& failure) {
    m_failed = true;
    m_busy.rest();
    emit failed(failure);
    const QString unsaved = beside.unsaved ? beside.unsaved() : QString();
    DialogBox box(qString(Programmtitel),
                  qString(failure.sentence()) +
                      QStringLiteral("\n\nDas Programm wird jetzt beendet. Alles, was bis hierher "
                                     "gespeichert wurde, bleibt erhalten.") +
                      (unsaved.isEmpty() ? QString() : QStringLiteral("\n\n") + unsaved),
                  dialogParent());
    box.setSign(Symbol::Stopp);
    box.setButtons(Tasten::Ok, Antwort::Ok);
    box.ask();
    QCoreApplication::exit(1);
}

} // namespace zeugnis
