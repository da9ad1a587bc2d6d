#include "desktop/tinted_button.h"
#include "tests/desktop/every_window.h"

#include <QAccessible>
#include <QLabel>

#include <algorithm>
#include <set>

namespace zeugnis::test {
namespace {

using Node = QAccessibleInterface;

void forEach(Node* node, const std::function<void(Node&)>& look) {
    if (node == nullptr || node->state().invisible)
        return;
    look(*node);
    for (int i = 0; i < node->childCount(); ++i)
        if (Node* child = node->child(i); child != nullptr && child->parent() != nullptr)
            forEach(child, look);
}

std::string inWords(const Node& node) {
    return std::to_string(node.role()) + " \"" + node.text(QAccessible::Name).toStdString() +
           "\" \"" + node.text(QAccessible::Description).toStdString() + '"';
}

qsizetype letters(const QString& text) {
    return std::count_if(text.begin(), text.end(), [](QChar one) { return one.isLetter(); });
}

// What can take the keyboard: a role to work with, a name in words, and nothing like it beside it.
void expectWorkable(Node& window) {
    static const std::set<QAccessible::Role> Roles = {
        QAccessible::Button,   QAccessible::PageTab,      QAccessible::RadioButton,
        QAccessible::CheckBox, QAccessible::EditableText, QAccessible::ComboBox,
        QAccessible::List,     QAccessible::Graphic,      QAccessible::StaticText};
    std::set<std::string> seen;
    forEach(&window, [&](Node& node) {
        const auto* widget = qobject_cast<QWidget*>(node.object());
        if (widget == nullptr || widget->focusPolicy() == Qt::NoFocus || widget->isWindow())
            return;
        EXPECT_TRUE(Roles.contains(node.role())) << inWords(node);
        EXPECT_GE(letters(node.text(QAccessible::Name)), 3) << inWords(node);
        EXPECT_TRUE(seen.insert(inWords(node)).second) << inWords(node);
    });
}

// Signs that stand for the eye only.
void expectNoNoise(Node& window) {
    forEach(&window, [&](Node& node) {
        const QString name = node.text(QAccessible::Name);
        EXPECT_TRUE(name.isEmpty() || std::any_of(name.begin(), name.end(),
                                                  [](QChar one) { return one.isLetterOrNumber(); }))
            << inWords(node);
        EXPECT_NE(node.role(), QAccessible::Separator);
        EXPECT_NE(node.role(), QAccessible::Border) << "read as a window of its own";
    });
}

// Space in a window that has just come up, or changed, must open neither the help nor what lies
// hidden behind a heading, and not lead out.
void expectKeyboardAtWork(OpenWindow& open) {
    const QWidget* focus = open.window().focusWidget();
    ASSERT_NE(focus, nullptr);
    EXPECT_TRUE(focus->isEnabled() && focus->isVisible());
    const auto* button = qobject_cast<const TintedButton*>(focus);
    EXPECT_FALSE(button != nullptr && button->showsSign()) << focus->accessibleName().toStdString();
    EXPECT_EQ(qobject_cast<const QLabel*>(focus), nullptr) << focus->accessibleName().toStdString();
    EXPECT_FALSE(button != nullptr && QString(button->text()).remove(u'&') == u"Beenden");
}

Node& told(OpenWindow& open, TextView name) {
    return *QAccessible::queryAccessibleInterface(&open.widget(name));
}

std::string name(OpenWindow& open, TextView control) {
    return told(open, control).text(QAccessible::Name).toStdString();
}

std::string description(OpenWindow& open, TextView name) {
    return told(open, name).text(QAccessible::Description).toStdString();
}

class EveryWindowTest : public testing::TestWithParam<WindowState> {};

TEST_P(EveryWindowTest, CanBeWorkedInWithoutSeeingIt) {
    OpenWindow open(GetParam());
    const auto look = [&] {
        Node* tree = QAccessible::queryAccessibleInterface(&open.window());
        expectWorkable(*tree);
        expectNoNoise(*tree);
    };
    look();
    expectKeyboardAtWork(open);
    for (const TextView click : GetParam().clicks) {
        SCOPED_TRACE(utf8FromText(click));
        open.click(click);
        look();
        expectKeyboardAtWork(open);
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, EveryWindowTest, testing::ValuesIn(everyWindow()),
                         [](const auto& one) { return std::string(one.param.name); });

const WindowState& windowNamed(std::string_view name) {
    return *std::find_if(everyWindow().begin(), everyWindow().end(),
                         [&](const WindowState& one) { return one.name == name; });
}

TEST(Told, WorkAndSocialBehaviourTellsWhatIsChosen) {
    OpenWindow open(windowNamed("avsv"));
    open.click(u"2");
    open.click(u"Command1");
    EXPECT_TRUE(told(open, u"Command1").state().selected);
    EXPECT_FALSE(told(open, u"Command2").state().selected);
    EXPECT_TRUE(told(open, u"Command3(0)").state().selected);
    EXPECT_EQ(description(open, u"Command3(0)"), "keine Zeile gewählt");
    EXPECT_EQ(told(open, u"Option1(3)").role(), QAccessible::RadioButton);
    EXPECT_EQ(description(open, u"Option1(3)"), "Zeile 3, hellgrün");
    told(open, u"Option1(3)")
        .actionInterface()
        ->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(description(open, u"Command3(0)"), "Zeile 3 gewählt, hellgrün");
    open.click(u"Command3(1)");
    EXPECT_FALSE(told(open, u"Option1(3)").state().checked);
    open.click(u"Command3(0)");
    EXPECT_TRUE(told(open, u"Option1(3)").state().checked) << "the choice, although no dot is set";
    open.click(u"Text1(0)");
    EXPECT_EQ(name(open, u"Picture4"), "Der Text ist gesperrt.");
    EXPECT_EQ(told(open, u"Picture4").role(), QAccessible::AlertMessage);
    open.click(u"Command6");
    EXPECT_EQ(name(open, u"Picture4"), "Die Sperre ist aufgehoben.");
    EXPECT_EQ(description(open, u"Command3(0)"), "keine Zeile gewählt");
}

TEST(Told, Years1And2TellPagesAndChoices) {
    OpenWindow open(windowNamed("years12"));
    open.click(u"2");
    open.click(u"Command1(1)");
    EXPECT_TRUE(told(open, u"Command1(1)").state().selected);
    EXPECT_EQ(description(open, u"Command1(1)"), "noch leer");
    open.click(u"Option2(1)");
    open.click(u"Option3(1)");
    EXPECT_EQ(description(open, u"Command1(1)"), "hat einen Text");
    EXPECT_TRUE(told(open, u"Option2(1)").state().checked) << "the dot has moved on";
    open.click(u"Command1(3)");
    EXPECT_FALSE(told(open, u"Command1(1)").state().selected);
}

// From the list of pupils to the text, past ten lines and seven categories.
TEST(Told, GroupsAreOneStopAndArrowsPressNothing) {
    OpenWindow open(windowNamed("avsv"));
    open.click(u"2");
    open.click(u"Command1");
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(open.window().focusWidget(), key);
        open.settle();
    };
    const auto focused = [&](TextView control) {
        return open.window().focusWidget() == &open.widget(control) &&
               open.machine.programm.focus() == &open.control(control);
    };
    open.widget(u"Combo1").setFocus(Qt::TabFocusReason);
    for (const TextView stop : {u"Command1", u"Command3(0)", u"Option1(0)", u"Text1(0)"}) {
        press(Qt::Key_Tab);
        EXPECT_TRUE(focused(stop)) << utf8FromText(stop);
    }
    open.widget(u"Command3(0)").setFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Up})
        press(key);
    EXPECT_TRUE(focused(u"Command3(2)"));
    EXPECT_TRUE(told(open, u"Command3(0)").state().selected) << "arrows press nothing";
    press(Qt::Key_Return);
    EXPECT_TRUE(told(open, u"Command3(2)").state().selected);
    press(Qt::Key_Tab);
    press(Qt::Key_End);
    EXPECT_TRUE(focused(u"Option1(9)"));
    EXPECT_EQ(description(open, u"Command3(2)"), "keine Zeile gewählt");
    press(Qt::Key_Space);
    EXPECT_EQ(description(open, u"Command3(2)"), "Zeile 9 gewählt, rosa");
}

TEST(Told, ColoursOfLinesAndTheHalvesOfTheMasterDataHaveNames) {
    OpenWindow editor(windowNamed("editorAVSV"));
    editor.click(u"Command1(1)");
    const std::string before = description(editor, u"Command7(1)");
    editor.click(u"Command7(1)");
    EXPECT_FALSE(before.empty());
    EXPECT_NE(description(editor, u"Command7(1)"), before);
    EXPECT_EQ(description(editor, u"Command7(1)"), description(editor, u"Text2(1)"));

    OpenWindow basis(windowNamed("masterData"));
    std::vector<std::string> parts;
    forEach(QAccessible::queryAccessibleInterface(&basis.window()), [&](Node& node) {
        if (node.role() == QAccessible::Grouping)
            parts.push_back(node.text(QAccessible::Name).toStdString());
    });
    EXPECT_EQ(parts, (std::vector<std::string>{"Schuldaten", "Schülerdaten"}));
}

} // namespace
} // namespace zeugnis::test
