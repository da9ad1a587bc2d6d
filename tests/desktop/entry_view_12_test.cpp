#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "desktop/choice_row.h"
#include "desktop/screen_window.h"
#include "desktop/window_host.h"
#include "tests/desktop/settle_layouts.h"
#include "tests/support/test_programm.h"
#include "years12/entry_screen.h"

#include <QApplication>
#include <QTest>

namespace zeugnis::test {
namespace {

/// The delivered installation, for a class of year 2, with its first child selected.
class EntryView12Test : public testing::Test {
  protected:
    EntryView12Test() {
        std::filesystem::copy(std::filesystem::path(ZEUGNIS_SOURCE_FOLDER) / "install",
                              installation.path(), std::filesystem::copy_options::recursive);
        Text names = installation.read(u"Daten/Namen.Txt");
        for (size_t at = 0; (at = names.find(u"\"3a\"", at)) != Text::npos;)
            names.replace(at, 4, u"\"2b\"");
        installation.write(u"Daten/Namen.Txt", names);
        host.run([this] {
            machine.programm.show(bildschirme::GsStart);
            machine.programm.show(bildschirme::Kompetenzen);
        });
        screen = dynamic_cast<Kompetenzen*>(machine.programm.find(bildschirme::Kompetenzen));
        host.run([this] { user::pick(screen->Combo1, 0); });
        window = host.windowOf(screen);
    }

    void turnTo(int page) {
        QTest::mouseClick(button(screen->Command1(page).Caption), Qt::LeftButton);
        settleLayouts();
    }
    QAbstractButton* button(const Text& caption) {
        for (auto* one : window->findChildren<QAbstractButton*>())
            if (one->isVisible() && one->text().remove(u'&').toStdString() == utf8FromText(caption))
                return one;
        ADD_FAILURE() << utf8FromText(caption);
        return nullptr;
    }

    TemporaryFolder installation;
    TestProgramm machine{installation};
    WindowHost host{machine.programm};
    Kompetenzen* screen = nullptr;
    QWidget* window = nullptr;
};

TEST_F(EntryView12Test, ShowsEveryInscriptionWhole) {
    for (const QSize size : {QSize(1270, 760), QSize(1000, 560)}) {
        window->resize(size);
        for (int page = 0; page < jahrgang12::Bereichszahl; ++page) {
            turnTo(page);
            int rows = 0;
            for (const auto* row : window->findChildren<ChoiceRow*>()) {
                if (!row->isVisible())
                    continue;
                ++rows;
                EXPECT_GE(row->height(), row->heightForWidth(row->width()))
                    << page << row->text().toStdString();
            }
            EXPECT_GE(rows, 12) << page;
        }
    }
}

TEST_F(EntryView12Test, OneKeyLeadsFromTheChoicesToTheirText) {
    turnTo(5);
    QTest::keyClick(window, Qt::Key_F6);
    QTest::keyClicks(window->focusWidget(), "von Hand");
    EXPECT_EQ(screen->Text1(5).text(), u"von Hand");
    QTest::keyClick(window, Qt::Key_F6);
    EXPECT_EQ(screen->Speicher.Bereichstext[5][0], u"von Hand") << "the text has been left";
}

} // namespace
} // namespace zeugnis::test
