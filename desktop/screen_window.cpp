#include "desktop/screen_window.h"

#include "controls/program.h"
#include "controls/user_actions.h"
#include "desktop/above_parent.h"
#include "desktop/dialog_box.h"
#include "desktop/window_host.h"
#include "toolkit/qt_text.h"
#include "toolkit/window_place.h"

#include <QCloseEvent>
#include <QHideEvent>
#include <QScopedValueRollback>

#include <utility>

namespace zeugnis {

ScreenWindow::ScreenWindow(Screen& screen, WindowHost& host, QWidget* below)
    : QWidget(below, Qt::Window),
      m_screen(&screen),
      m_name(screen.name()),
      m_host(host),
      m_binder(host, *this) {
    setWindowTitle(qString(screen.Title));
    windowplace::keepOnDisplay(*this);
}

void ScreenWindow::wishSize(QSize size, Growth growth) {
    m_wished = size;
    m_growth = growth;
}

const WindowPlace* ScreenWindow::placed() const { return m_host.placed(m_name); }

void ScreenWindow::refresh() {
    QWidget* before = focusWidget();
    {
        const QScopedValueRollback refreshing(m_refreshing, true);
        m_binder.refresh();
    }
    passKeyboardOn(before);
    keepOnTop(m_screen->AlwaysOnTop);
    if (isVisible() != m_screen->shown()) {
        if (m_screen->shown() && !isPlaced())
            place();
        setVisible(m_screen->shown());
    }
    if (m_screen->shown() && m_raises != m_screen->raises()) {
        m_raises = m_screen->raises();
        if (!isPlaced())
            place();
        m_host.cameToFront(*m_screen);
        raise();
        activateWindow();
    }
}

// To what comes next, now that all of the window is as it is to be. That had better not be a button
// that opens the help.
void ScreenWindow::passKeyboardOn(QWidget* before) {
    const auto isHelp = [](const QWidget* widget) {
        const auto* button = qobject_cast<const TintedButton*>(widget);
        return button != nullptr && button->showsSign();
    };
    const auto works = [this](const QWidget* widget) {
        return widget->isEnabled() && widget->isVisibleTo(this);
    };
    QWidget* now = focusWidget();
    QWidget* from = now != nullptr ? now : before;
    if (from == nullptr || (now != nullptr && works(now) && (now == before || !isHelp(now))))
        return;
    for (QWidget* next = from->nextInFocusChain(); next != from; next = next->nextInFocusChain())
        if ((next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && next != this && works(next) &&
            !isHelp(next))
            return next->setFocus(Qt::TabFocusReason);
}

// What comes next may still rest while the controls are taken over one by one.
bool ScreenWindow::focusNextPrevChild(bool next) {
    return !m_refreshing && QWidget::focusNextPrevChild(next);
}

// Qt hides a window whose flags change.
void ScreenWindow::keepOnTop(bool onTop) {
    if (windowFlags().testFlag(Qt::WindowStaysOnTopHint) == onTop)
        return;
    const bool wasVisible = isVisible();
    setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
    setVisible(wasVisible);
}

// Where it was when it was open before.
void ScreenWindow::place() {
    if (const WindowPlace* last = placed()) {
        setGeometry(last->geometry);
        windowplace::bringOnDisplay(*this);
        setWindowState(windowState().setFlag(Qt::WindowMaximized, last->maximised));
        return;
    }
    windowplace::place(*this, m_wished, m_growth);
}

// Qt takes it back while it shows the window.
void ScreenWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    QMetaObject::invokeMethod(
        this, [this] { standAboveParent(*this); }, Qt::QueuedConnection);
}

void ScreenWindow::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (!event->spontaneous())
        m_host.remember(m_name, {normalGeometry(), isMaximized()});
}

bool ScreenWindow::showFocus(const Control& control) {
    QWidget* widget = m_binder.widgetOf(control);
    if (widget == nullptr || !widget->isEnabled() || !isVisible())
        return false;
    if (!widget->hasFocus())
        widget->setFocus(Qt::OtherFocusReason);
    return true;
}

void ScreenWindow::paintEvent(QPaintEvent*) { m_host.painted(); }

void ScreenWindow::detach() {
    m_screen = nullptr;
    m_binder.detach();
    hide();
}

void ScreenWindow::showSaved(bool saved) {
    if (!std::exchange(m_tellsSaved, true))
        setWindowTitle(windowTitle() + QStringLiteral("[*]"));
    setWindowModified(!saved);
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (m_screen == nullptr)
        return;
    const bool endsAll = m_screen == m_host.program().startScreen();
    if (endsAll ? m_host.allMayClose() : mayClose())
        m_host.run([this] { user::close(*m_screen); });
}

void ScreenWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && m_screen != nullptr)
        m_host.cameToFront(*m_screen);
}

bool ScreenWindow::pressMnemonic(const QKeySequence& key) {
    for (auto* button : findChildren<QAbstractButton*>())
        if (button->isVisible() && button->isEnabled() && button->shortcut() == key) {
            activateWindow();
            button->click();
            return true;
        }
    return false;
}

bool ScreenWindow::mayClose() {
    if (m_lostByClosing.isEmpty() || (m_tellsSaved && !isWindowModified()))
        return true;
    DialogBox box(qString(Programmtitel), m_lostByClosing, this);
    box.setSign(Symbol::Frage);
    box.setButtons(Tasten::JaNein, Antwort::Nein);
    if (box.ask() != Antwort::Ja)
        return false;
    if (m_host.beside.closesKnowingly)
        m_host.beside.closesKnowingly(*m_screen);
    return true;
}

} // namespace zeugnis
