#include "tests/window_driver/own_words.h"

#include "controls/program.h"
#include "controls/text_box.h"
#include "desktop/entry_list.h"
#include "desktop/screen_window.h"
#include "desktop/text_editor.h"
#include "desktop/text_line_ends.h"
#include "tests/window_driver/looking.h"
#include "tests/window_driver/pointing.h"
#include "tests/window_driver/typing.h"
#include "tests/window_driver/window_hand.h"
#include "toolkit/entry_combo.h"
#include "toolkit/qt_text.h"

#include <QApplication>
#include <QKeySequence>

#include <algorithm>

namespace zeugnis::windowdriver {
namespace {

std::string nameOf(const Control& control) {
    return utf8FromText(control.screen().name() + u"." + control.fullName());
}

} // namespace

struct OwnWords::Word {
    TextView name;
    void (OwnWords::*carryOut)(const Words&);
    size_t words; ///< behind the name
};

const std::vector<OwnWords::Word>& OwnWords::all() {
    static const std::vector<Word> All = {
        {u"press", &OwnWords::press, 1},
        {u"keys", &OwnWords::keys, 1},
        {u"wheel", &OwnWords::wheel, 1},
        {u"drag", &OwnWords::drag, 2},
        {u"come", &OwnWords::come, 1},
        {u"open", &OwnWords::open, 1},
        {u"highlighted", &OwnWords::highlighted, 1},
        {u"contrast", &OwnWords::contrast, 1},
        {u"focused", &OwnWords::focused, 0},
        {u"front", &OwnWords::front, 0},
        {u"mnemonics", &OwnWords::mnemonics, 1},
        {u"covered", &OwnWords::covered, 2},
        {u"ownboxes", &OwnWords::ownBoxes, 0},
        {u"picture", &OwnWords::picture, 1},
    };
    return All;
}

OwnWords::OwnWords(WindowHand& hand) : m_hand(hand), m_out(hand.m_out) {}

bool OwnWords::carryOut(const Words& words) {
    const auto found = std::find_if(all().begin(), all().end(), [&](const Word& word) {
        return word.name == words[0].text && word.words + 1 == words.size();
    });
    if (found == all().end())
        return false;
    (this->*found->carryOut)(words);
    m_hand.done();
    return true;
}

Screen& OwnWords::screen(const Text& name) {
    Screen* found = m_hand.m_host->program().find(name);
    if (found == nullptr)
        throw driver::CommandError("the screen is not loaded: " + utf8FromText(name));
    return *found;
}

ScreenWindow& OwnWords::window(const Text& name) {
    ScreenWindow* found = m_hand.m_host->windowOf(&screen(name));
    if (found == nullptr || !found->isVisible())
        throw driver::CommandError("the screen is not shown: " + utf8FromText(name));
    return *found;
}

Control& OwnWords::control(const driver::Word& word) {
    const size_t dot = std::min(word.text.find(u'.'), word.text.size());
    Control* found = screen(word.text.substr(0, dot))
                         .find(word.text.substr(std::min(dot + 1, word.text.size())));
    if (found == nullptr)
        throw driver::CommandError("no such control: " + utf8FromText(word.text));
    return *found;
}

void OwnWords::press(const Words& words) {
    const QKeySequence sequence(qString(words[1].text));
    if (sequence.isEmpty())
        throw driver::CommandError("no such key: " + utf8FromText(words[1].text));
    keyboard::press(sequence[0].key(), sequence[0].keyboardModifiers());
}

void OwnWords::keys(const Words& words) {
    for (const char16_t character : words[1].text)
        keyboard::type(character);
}

void OwnWords::wheel(const Words& words) {
    QWidget* widget = m_hand.reach(control(words[1]));
    if (widget != nullptr)
        mouse::turnWheel(*widget, widget->rect().center());
}

void OwnWords::drag(const Words& words) {
    auto* box = dynamic_cast<TextBox*>(&control(words[1]));
    TextEditor* editor = box == nullptr ? nullptr : m_hand.takeUp(*box);
    if (editor == nullptr)
        throw driver::CommandError("nothing to drag in");
    m_hand.placeCaret(*box, *editor);
    const auto place = [&](int at) {
        QTextCursor cursor(editor->document());
        cursor.setPosition(at);
        return editor->cursorRect(cursor).center();
    };
    const auto to = static_cast<size_t>(numberFromText(words[2].text, u"place"));
    mouse::drag(*editor->viewport(), place(documentPosition(box->text(), to)),
                editor->textCursor().selectedText());
}

void OwnWords::come(const Words& words) { mouse::activate(window(words[1].text)); }

void OwnWords::open(const Words& words) {
    auto* combo = qobject_cast<EntryCombo*>(m_hand.reach(control(words[1])));
    if (combo == nullptr)
        throw driver::CommandError("no list to open: " + utf8FromText(words[1].text));
    m_hand.openList(*combo);
}

void OwnWords::highlighted(const Words& words) {
    const QWidget* widget = window(control(words[1]).screen().name()).widgetOf(control(words[1]));
    const std::optional<QString> entry = highlightedEntry(*widget);
    m_out << nameOf(control(words[1])) << " highlights "
          << (entry ? driver::jsonString(fromQString(*entry)) : "nothing") << '\n';
}

void OwnWords::contrast(const Words& words) {
    auto* combo = qobject_cast<EntryCombo*>(m_hand.reach(control(words[1])));
    if (combo == nullptr)
        throw driver::CommandError("no list to open: " + utf8FromText(words[1].text));
    m_hand.openList(*combo);
    m_out << nameOf(control(words[1]))
          << (leastContrastIn(*combo) >= 4.5 ? " can be read" : " cannot be read") << '\n';
    keyboard::press(Qt::Key_Escape);
}

void OwnWords::focused(const Words& /*words*/) {
    for (const Screen* one : m_hand.m_host->program().screens())
        for (const Control* candidate : one->controls())
            if (const ScreenWindow* shown = m_hand.m_host->windowOf(one);
                shown != nullptr && QApplication::focusWidget() != nullptr &&
                shown->widgetOf(*candidate) == QApplication::focusWidget()) {
                m_out << "focus " << nameOf(*candidate) << '\n';
                return;
            }
    m_out << "focus nowhere\n";
}

void OwnWords::front(const Words& /*words*/) {
    for (const Screen* one : m_hand.m_host->program().screens())
        if (const QWidget* shown = m_hand.m_host->windowOf(one);
            shown != nullptr && shown == QApplication::activeWindow())
            m_out << "front " << utf8FromText(one->name()) << '\n';
}

void OwnWords::mnemonics(const Words& words) {
    const std::vector<std::string> doubles = doubleMnemonicsOf(window(words[1].text));
    if (doubles.empty())
        m_out << "mnemonics differ\n";
    for (const std::string& one : doubles)
        m_out << "mnemonic twice " << one << '\n';
}

// Which buttons and lists of a screen lie under the window of another.
void OwnWords::covered(const Words& words) {
    const QRect above = window(words[2].text).frameGeometry();
    std::string names;
    for (const Control* one : screen(words[1].text).controls()) {
        const QWidget* widget = window(words[1].text).widgetOf(*one);
        if (widget == nullptr || !one->reachable() || !isButton(*widget))
            continue;
        const QRect place(widget->mapToGlobal(QPoint(0, 0)), widget->size());
        if (above.intersects(place.intersected(widget->window()->frameGeometry())))
            names += ' ' + utf8FromText(one->fullName());
    }
    m_out << "covered" << (names.empty() ? " nothing" : names) << '\n';
}

void OwnWords::ownBoxes(const Words& /*words*/) { m_hand.m_dialogs.tellOwnBoxes(); }

void OwnWords::picture(const Words& words) {
    if (!displayNow().save(qString(words[1].text)))
        throw driver::CommandError("the picture cannot be written");
}

} // namespace zeugnis::windowdriver
