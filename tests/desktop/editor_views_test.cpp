#include "behaviour/avsv_editor.h"
#include "checks/hunspell_spelling.h"
#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "desktop/text_editor.h"
#include "desktop/window_host.h"
#include "editors/editor34.h"
#include "review/insertion_window.h"
#include "review/review_screen.h"
#include "shell/start_page.h"
#include "tests/desktop/settle_layouts.h"
#include "tests/support/test_programm.h"

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>

#include <algorithm>

namespace zeugnis::test {
namespace {

/// The delivered installation, class 3a, with the tools on the start page.
class EditorViewsTest : public testing::Test {
  protected:
    EditorViewsTest() {
        std::filesystem::copy(std::filesystem::path(ZEUGNIS_SOURCE_FOLDER) / "install",
                              installation.path(), std::filesystem::copy_options::recursive);
        host.run([this] { machine.programm.show(bildschirme::GsStart); });
        host.run([this] { user::click(screen<GsStart>(bildschirme::GsStart).Command2); });
    }

    template <typename S>
    S& screen(TextView name) {
        return dynamic_cast<S&>(*machine.programm.find(name));
    }
    void click(Control& control) {
        host.run([&] { ASSERT_TRUE(user::click(control)); });
        settleLayouts();
    }
    void openEditor(int button) {
        click(screen<GsStart>(bildschirme::GsStart).Command1(button));
        machine.dialogs.answers.push_back(Antwort::Ja);
    }
    template <typename W>
    W* named(const QString& name) {
        for (QWidget* one : QApplication::allWidgets())
            if (auto* typed = qobject_cast<W*>(one);
                typed != nullptr && typed->isVisible() && typed->accessibleName() == name)
                return typed;
        ADD_FAILURE() << name.toStdString();
        return nullptr;
    }

    TemporaryFolder installation;
    TestProgramm machine{installation};
    WindowHost host{machine.programm};
};

TEST_F(EditorViewsTest, AModuleIsAsHighAsItsTextAndStaysOneParagraph) {
    openEditor(5);
    auto& editor = screen<GSAenderung34>(bildschirme::GSAenderung34);
    click(editor.Command1(1));
    auto* box = named<TextEditor>(QStringLiteral("Feste Aussagen, Text 1"));
    const int before = box->height();
    box->setFocus();
    QTest::keyClicks(box, QStringLiteral(" und noch viel mehr Worte").repeated(4));
    settleLayouts();
    EXPECT_GT(box->height(), before + 10);
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(editor.Text2(2).text().find(u'\r'), Text::npos);
    EXPECT_EQ(machine.programm.focus(), &editor.Text2(3));
}

TEST_F(EditorViewsTest, SaysThatASaveOfTheStandardLeavesTheCurrentModules) {
    const auto warned = [] {
        const auto all = QApplication::allWidgets();
        return std::any_of(all.begin(), all.end(), [](QWidget* one) {
            auto* label = qobject_cast<QLabel*>(one);
            return label != nullptr && label->isVisible() &&
                   label->text().startsWith(QStringLiteral("Standard geladen"));
        });
    };
    for (const int load : {1, 0}) {
        openEditor(5);
        auto& editor = screen<GSAenderung34>(bildschirme::GSAenderung34);
        EXPECT_FALSE(warned());
        click(editor.Command1(load));
        EXPECT_EQ(warned(), load == 0);
        machine.dialogs.answers.push_back(Antwort::Nein);
        click(editor.Command6);
    }
}

TEST_F(EditorViewsTest, TheTitleTakesADoubleClickWithTheMouse) {
    openEditor(4);
    auto& editor = screen<GSAVSVAenderung>(bildschirme::GSAVSVAenderung);
    click(editor.Command1(1));
    machine.dialogs.answers.push_back(Antwort::Nein);
    for (QWidget* one : QApplication::allWidgets())
        if (auto* label = qobject_cast<QLabel*>(one);
            label != nullptr && label->isVisible() && label->text().startsWith(u"Eingabefenster"))
            QTest::mouseDClick(label, Qt::LeftButton);
    EXPECT_EQ(machine.dialogs.shown.back().tasten, Tasten::JaNeinAbbrechen);
}

TEST_F(EditorViewsTest, ModulesAreCheckedForSpellingButNotWhatTheProgramSays) {
    if (!DeutscheRechtschreibung())
        GTEST_SKIP() << "no German dictionary";
    openEditor(5);
    auto& editor = screen<GSAenderung34>(bildschirme::GSAenderung34);
    click(editor.Command1(1));
    click(editor.Command2(0));
    std::vector<const TextEditor*> said;
    TextEditor* module = nullptr;
    for (QWidget* one : QApplication::allWidgets())
        if (auto* box = qobject_cast<TextEditor*>(one); box != nullptr && box->isVisible()) {
            if (box->property("paper").toBool())
                said.push_back(box);
            else if (module == nullptr && !box->isReadOnly())
                module = box;
        }
    ASSERT_TRUE(module != nullptr && !said.empty());
    module->setFocus();
    QTest::keyClicks(module, QStringLiteral("arbeited und "));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !module->extraSelections().empty(); }, 10'000));
    for (const TextEditor* box : said)
        EXPECT_TRUE(box->extraSelections().empty()) << box->toPlainText().toStdString();
}

// A click on the head of the list would end the program.
TEST_F(EditorViewsTest, TheHeadOfThePlaceholdersIsOutOfReach) {
    openEditor(5);
    auto& editor = screen<GSAenderung34>(bildschirme::GSAenderung34);
    click(editor.Command1(1));
    click(editor.Command7(0));
    auto* list = named<QListWidget>(QStringLiteral("Einfügetexte"));
    list->setFocus();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(0)).center());
    QTest::keyClick(list, Qt::Key_Home);
    QTest::keyClick(list, Qt::Key_Return);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(2)).center());
    EXPECT_EQ(utf8FromText(machine.clipboard.text()), "<Vorname>");
    EXPECT_EQ(list->item(2)->text(), QStringLiteral("<Vorname>  –  Vorname des Kindes"));
}

TEST_F(EditorViewsTest, TheReviewBeginsAtItsTopAndKeepsItsText) {
    click(screen<GsStart>(bildschirme::GsStart).Command3);
    click(screen<GsStart>(bildschirme::GsStart).Command1(3));
    auto& review = screen<GsAnzeige>(bildschirme::GsAnzeige);
    click(review.Check1(9));
    click(review.Command1(0));
    auto* box = named<TextEditor>(QStringLiteral("Bisherige Texte der Klasse"));
    EXPECT_GT(box->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(box->verticalScrollBar()->value(), 0);
    const Text before = review.Text1.text();
    box->setFocus();
    QTest::keyClicks(box, QStringLiteral("x"));
    EXPECT_EQ(review.Text1.text(), before);
}

} // namespace
} // namespace zeugnis::test
