#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "desktop/choice_row.h"
#include "desktop/screen_window.h"
#include "desktop/window_host.h"
#include "tests/desktop/settle_layouts.h"
#include "tests/support/test_programm.h"
#include "years34/entry_screen.h"

#include <QApplication>
#include <QTest>

namespace zeugnis::test {
namespace {

/// The delivered installation with its first child selected.
class EntryView34Test : public testing::Test {
  protected:
    EntryView34Test() {
        std::filesystem::copy(std::filesystem::path(ZEUGNIS_SOURCE_FOLDER) / "install",
                              installation.path(), std::filesystem::copy_options::recursive);
        host.run([this] {
            machine.programm.show(bildschirme::GsStart);
            machine.programm.show(bildschirme::GSAGFI);
        });
        screen = dynamic_cast<GSAGFI*>(machine.programm.find(bildschirme::GSAGFI));
        host.run([this] { user::pick(screen->Combo1, 0); });
        for (QWidget* one : QApplication::topLevelWidgets())
            if (one->isVisible() && one->windowTitle() == QStringLiteral("Förder Interessen[*]"))
                window = one;
    }

    void turnTo(int page) {
        host.run([&] { user::click(screen->Command2(page)); });
        settleLayouts();
    }

    TemporaryFolder installation;
    TestProgramm machine{installation};
    WindowHost host{machine.programm};
    GSAGFI* screen = nullptr;
    QWidget* window = nullptr;
};

TEST_F(EntryView34Test, ShowsEveryInscriptionWhole) {
    for (const QSize size : {QSize(1270, 760), QSize(1000, 640)}) {
        window->resize(size);
        for (const int page : {0, 1, 2}) {
            turnTo(page);
            int rows = 0;
            for (const auto* one : window->findChildren<ChoiceRow*>()) {
                if (!one->isVisible())
                    continue;
                ++rows;
                EXPECT_GE(one->height(), one->heightForWidth(one->width()))
                    << page << one->text().toStdString();
            }
            EXPECT_EQ(rows, page == 0 ? 10 : page == 1 ? 21 : 17);
        }
    }
}

TEST_F(EntryView34Test, AKindOfSupportWithoutAModuleCannotBeClicked) {
    turnTo(0);
    CheckBox& emptied = screen->Check1(2);
    QWidget* row = host.windowOf(screen)->widgetOf(emptied);
    emptied.Caption.clear();
    host.refresh();
    QTest::mouseClick(row, Qt::LeftButton);
    EXPECT_FALSE(machine.programm.ended());
    EXPECT_EQ(screen->Text1.text(), u"");
}

} // namespace
} // namespace zeugnis::test
