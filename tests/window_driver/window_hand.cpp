#include "tests/window_driver/window_hand.h"

#include "common/screen_names.h"
#include "controls/list_controls.h"
#include "controls/program.h"
#include "controls/text_box.h"
#include "desktop/screen_window.h"
#include "desktop/text_editor.h"
#include "desktop/text_line_ends.h"
#include "tests/window_driver/own_words.h"
#include "tests/window_driver/pointing.h"
#include "tests/window_driver/still_clock.h"
#include "tests/window_driver/typing.h"
#include "tests/window_driver/widget_check.h"
#include "toolkit/qt_text.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QListWidget>
#include <QWindow>

#include <algorithm>

namespace zeugnis::windowdriver {
namespace {

constexpr char16_t Backspace = 8;
constexpr char16_t Enter = 13;

std::string nameOf(const Control& control) {
    return utf8FromText(control.screen().name() + u"." + control.fullName());
}

} // namespace

WindowHand::WindowHand(std::ostream& out, driver::DialogScript& script)
    : m_out(out), m_dialogs(out, script), m_clock(std::make_unique<StillClock>()) {
    m_clipboard.clear();
}

WindowHand::~WindowHand() = default;

void WindowHand::start(Programm& program) {
    if (!m_host) {
        m_host = std::make_unique<WindowHost>(program);
        QObject::connect(m_host.get(), &WindowHost::failed, &m_dialogs,
                         [this](const Laufzeitfehler& failure) {
                             m_failure = failure;
                             m_dialogs.expectFailureBox();
                         });
        m_dialogs.beforeBox = [this] { m_host->refreshForBox(); };
        m_dialogs.DesktopDialogs::parent = [this] { return m_host->dialogParent(); };
    }
    m_host->run([&] { program.show(bildschirme::GsStart); });
    done();
}

void WindowHand::finish() {
    m_host.reset();
    mouse::settle();
}

void WindowHand::done() {
    mouse::settle();
    if (m_dialogs.complaint)
        throw driver::CommandError(*m_dialogs.complaint);
    if (m_failure)
        throw Laufzeitfehler(*m_failure);
}

QWidget* WindowHand::reach(const Control& control) {
    ScreenWindow* window = m_host->windowOf(&control.screen());
    QWidget* widget = window == nullptr ? nullptr : window->widgetOf(control);
    if (widget == nullptr)
        return nullptr;
    const bool reachable = widget->isVisible() && widget->isEnabled();
    if (reachable != control.reachable() && !isHeldBack(*widget))
        throw driver::CommandError("the widget of " + nameOf(control) +
                                   (reachable ? " can be reached" : " cannot be reached"));
    if (!reachable)
        return nullptr;
    mouse::activate(*widget);
    mouse::bringIntoSight(*widget);
    return widget;
}

// What has no widget must be nothing that one could act on.
bool WindowHand::hasNoWidget(const Control& control) {
    const ScreenWindow* window = m_host->windowOf(&control.screen());
    if (!control.reachable() || (window != nullptr && window->widgetOf(control) != nullptr))
        return false;
    if (control.takesFocus() || control.onClick || control.onDblClick)
        throw driver::CommandError("there is no widget for " + nameOf(control));
    return true;
}

void WindowHand::clickAt(QWidget& widget, const QPoint& wished, bool twice) {
    const std::optional<QPoint> place = mouse::freePlace(widget, wished);
    if (!place)
        return;
    const QPointer<QWidget> alive(&widget);
    const int boxes = m_dialogs.boxesShown();
    mouse::click(widget, *place);
    // The second press of a double click would meet the box that the first one brought up.
    const QWidget* still = alive.data();
    if (twice && still != nullptr && still->isVisible() && m_dialogs.boxesShown() == boxes)
        mouse::secondClick(widget, *place);
}

bool WindowHand::click(Control& control) {
    QWidget* widget = reach(control);
    if (widget == nullptr)
        return hasNoWidget(control);
    if (auto* editor = qobject_cast<TextEditor*>(widget)) {
        clickBox(dynamic_cast<TextBox&>(control), *editor);
    } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        openList(*combo);
        keyboard::press(Qt::Key_Escape);
    } else if (auto* list = qobject_cast<QListWidget*>(widget)) {
        clickAt(*list, edgeOf(*list));
    } else {
        clickAt(*widget, widget->rect().center());
    }
    done();
    return true;
}

bool WindowHand::doubleClick(Control& control) {
    QWidget* widget = reach(control);
    if (widget == nullptr)
        return hasNoWidget(control);
    if (qobject_cast<QComboBox*>(widget) != nullptr)
        return click(control);
    if (auto* editor = qobject_cast<TextEditor*>(widget))
        doubleClickBox(dynamic_cast<TextBox&>(control), *editor);
    else if (auto* list = qobject_cast<QListWidget*>(widget))
        clickAt(*list, edgeOf(*list), true);
    else
        clickAt(*widget, widget->rect().center(), true);
    done();
    return true;
}

// A click puts the caret where the mouse is, so the hand clicks where it stands. A selection is
// lost by that and has to be made anew before the next key.
void WindowHand::clickBox(TextBox& box, TextEditor& editor) {
    const Selection wanted = wantedSelection(box);
    QTextCursor cursor = editor.textCursor();
    cursor.setPosition(documentPosition(box.text(), wanted.end));
    const QRect there = editor.cursorRect(cursor);
    clickAt(*editor.viewport(), there.center());
    m_selections[&box] = wanted;
}

// A double click selects the word under the mouse. Where the wanted selection ends elsewhere, the
// key that does the same is pressed.
void WindowHand::doubleClickBox(TextBox& box, TextEditor& editor) {
    const Selection wanted = wantedSelection(box);
    const int end = documentPosition(box.text(), wanted.end);
    QTextCursor word(editor.document());
    word.setPosition(end);
    const QRect there = editor.cursorRect(word);
    word.select(QTextCursor::WordUnderCursor);
    const bool sameEnd = word.selectionEnd() == end || !word.hasSelection();
    if (sameEnd && editor.viewport()->rect().contains(there.center())) {
        clickAt(*editor.viewport(), there.center(), true);
        m_selections[&box] = wanted;
        return;
    }
    if (takeUp(box) != nullptr) {
        placeCaret(box, editor);
        keyboard::press(Qt::Key_Return, Qt::ControlModifier);
    }
}

QPoint WindowHand::edgeOf(const QListWidget& list) { return {2, list.height() / 2}; }

// The release that ends a press on the list itself must not count for what it opened.
void WindowHand::openList(QComboBox& combo) {
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0);
    clickAt(combo, combo.rect().center());
    mouse::settle();
    QApplication::setDoubleClickInterval(interval);
    if (!combo.view()->isVisible())
        throw driver::CommandError("the list does not open");
}

void WindowHand::pickInOpenList(const QComboBox& combo, int entry) {
    QAbstractItemView* view = combo.view();
    const QModelIndex index = combo.model()->index(entry, combo.modelColumn());
    view->scrollTo(index);
    mouse::settle();
    const QPoint place = view->visualRect(index).center();
    mouse::moveTo(*view->viewport(), place);
    mouse::click(*view->viewport(), place);
}

void WindowHand::pickInList(QListWidget& list, int entry) {
    list.scrollToItem(list.item(entry));
    mouse::settle();
    clickAt(*list.viewport(), list.visualItemRect(list.item(entry)).center());
}

bool WindowHand::pick(ListControl& control, int entry) {
    QWidget* widget = reach(control);
    if (widget == nullptr)
        return false;
    if (auto* list = qobject_cast<QListWidget*>(widget)) {
        if (!list->item(entry)->flags().testFlag(Qt::ItemIsEnabled))
            return false;
        pickInList(*list, entry);
    } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        openList(*combo);
        pickInOpenList(*combo, entry);
    }
    done();
    return true;
}

// As the last press of Tab does it. A widget that has the keyboard already is left and come to.
void WindowHand::giveFocus(Control& control, QWidget& widget) {
    if (m_host->program().focus() == &control && widget.hasFocus())
        return;
    if (widget.hasFocus())
        widget.clearFocus();
    widget.setFocus(Qt::TabFocusReason);
    mouse::settle();
}

bool WindowHand::focus(Control& control) {
    QWidget* widget = reach(control);
    if (widget == nullptr)
        return control.takesFocus() ? hasNoWidget(control) : false;
    if (!control.takesFocus())
        return false;
    giveFocus(control, *widget);
    done();
    return true;
}

void WindowHand::blur(Screen& screen) {
    const Control* focus = m_host->program().focus();
    if (focus != nullptr && &focus->screen() == &screen)
        emit qApp->applicationStateChanged(Qt::ApplicationInactive);
    done();
}

TextEditor* WindowHand::editorOf(const TextBox& box) const {
    ScreenWindow* window = m_host->windowOf(&box.screen());
    return window == nullptr ? nullptr : qobject_cast<TextEditor*>(window->widgetOf(box));
}

// The keys that move the caret are pressed when the box is next worked in, as it may not even be in
// sight.
void WindowHand::caret(TextBox& box, size_t start, size_t end) {
    const size_t length = box.text().size();
    const size_t first = std::min(std::min(start, end), length);
    m_selections[&box] = {first, std::min(std::max(start, end), length), box.text(), editorOf(box)};
}

WindowHand::Selection WindowHand::wantedSelection(const TextBox& box) {
    TextEditor* editor = editorOf(box);
    if (const auto found = m_selections.find(&box); found != m_selections.end()) {
        if (found->second.of == box.text() && found->second.editor == editor)
            return found->second;
        m_selections.erase(found);
    }
    return {box.selectionStart(), box.selectionEnd(), box.text(), editor};
}

void WindowHand::placeCaret(const TextBox& box, TextEditor& editor) {
    const Selection wanted = wantedSelection(box);
    if (!box.Locked)
        keyboard::select(editor, documentPosition(box.text(), wanted.start),
                         documentPosition(box.text(), wanted.end));
    m_selections.erase(&box);
}

TextEditor* WindowHand::takeUp(TextBox& box) {
    auto* editor = qobject_cast<TextEditor*>(reach(box));
    if (editor != nullptr)
        giveFocus(box, *editor);
    return editor;
}

void WindowHand::pressKey(const TextEditor& editor, char16_t key) {
    if (key == Backspace)
        keyboard::press(Qt::Key_Backspace);
    else if (key == Enter)
        keyboard::press(Qt::Key_Return, editor.oneLine() ? Qt::ShiftModifier : Qt::NoModifier);
    else if (key >= u' ')
        keyboard::type(key);
}

bool WindowHand::type(TextBox& box, const Text& characters) {
    const QPointer<TextEditor> editor = takeUp(box);
    if (editor.isNull())
        return false;
    placeCaret(box, *editor);
    for (size_t i = 0; i < characters.size() && !editor.isNull(); ++i) {
        if (characters[i] == u'\n' && i > 0 && characters[i - 1] == u'\r')
            continue;
        if (!editor->hasFocus())
            mouse::activate(*editor);
        pressKey(*editor, characters[i] == u'\n' ? Enter : characters[i]);
    }
    done();
    return true;
}

// No keyboard has a line feed; as a character of a text it means Enter.
bool WindowHand::key(TextBox& box, char16_t key) {
    return type(box, key == u'\n' ? Text() : Text(1, key));
}

// On the closed list a letter opens it; a list of names takes no text of its own.
bool WindowHand::type(ComboBox& combo, const Text& characters) {
    QWidget* widget = reach(combo);
    if (widget == nullptr)
        return false;
    giveFocus(combo, *widget);
    for (const char16_t character : characters)
        keyboard::type(character);
    keyboard::press(Qt::Key_Escape);
    done();
    return true;
}

bool WindowHand::paste(TextBox& box, const Text& text) {
    TextEditor* editor = takeUp(box);
    if (editor == nullptr)
        return false;
    placeCaret(box, *editor);
    const size_t start = box.selectionStart();
    if (!text.empty()) {
        const bool asItStands = editor->oneLine() && text.find_first_of(u"\r\n") != Text::npos;
        keyboard::paste(text, asItStands ? Qt::ControlModifier | Qt::ShiftModifier
                                         : Qt::KeyboardModifiers(Qt::ControlModifier));
    } else if (editor->textCursor().hasSelection()) {
        keyboard::press(Qt::Key_Delete);
        caret(box, start, start);
    }
    done();
    return true;
}

// Waits until the timer fires, in a shorter time than it would take.
void WindowHand::tick(Timer& timer) {
    if (ScreenWindow* window = m_host->windowOf(&timer.screen()))
        static_cast<StillClock&>(*m_clock).strike(*window, timer);
    done();
}

bool WindowHand::close(Screen& screen) {
    ScreenWindow* window = m_host->windowOf(&screen);
    if (window == nullptr || !window->isVisible())
        return false;
    window->close();
    done();
    return true;
}

// As the clipboard holds it: what comes to the screens has the form that the files can hold.
Text WindowHand::clipboardText() { return fromQString(QGuiApplication::clipboard()->text()); }

void WindowHand::lookAt(const Control& control) {
    const ScreenWindow* window = m_host->windowOf(&control.screen());
    const QWidget* widget = window == nullptr ? nullptr : window->widgetOf(control);
    if (widget == nullptr)
        return;
    if (const std::optional<std::string> difference = differenceBetween(control, *widget))
        throw driver::CommandError("the widget of " + nameOf(control) + " differs: " + *difference);
}

bool WindowHand::ownCommand(const std::vector<driver::Word>& words) {
    return OwnWords(*this).carryOut(words);
}

} // namespace zeugnis::windowdriver
