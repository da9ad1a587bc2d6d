#include "behaviour/avsv_entry_screen.h"
#include "checks/hunspell_spelling.h"
#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "desktop/screen_window.h"
#include "desktop/window_host.h"
#include "folders/new_class.h"
#include "tests/support/test_programm.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

namespace zeugnis::test {
namespace {

// The class that a new folder shows, with one text that has a slip.
TEST(ClassAtAGlance, LeadsFromTheStartPageToTheHintAndTellsWhatIsNotSaved) {
    if (!DeutscheRechtschreibung())
        GTEST_SKIP() << "no German dictionary";
    const TemporaryFolder folder;
    ASSERT_EQ(BeispielklasseAnlegen(std::filesystem::path(ZEUGNIS_SOURCE_FOLDER) / "install",
                                    folder.path()),
              u"");
    TestProgramm machine(folder);
    auto& screen = machine.open<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten);
    user::pick(screen.Combo1, 2);
    user::click(screen.Command2);
    user::click(screen.Text1(1));
    screen.Text1(1).setText(u"Das Kind flitzbogelt gern im Unterricht.");
    user::click(screen.Command4);
    machine.programm.unload(bildschirme::GsArbeitsverhalten);

    WindowHost host(machine.programm);
    host.run([&] { machine.programm.show(bildschirme::GsStart); });
    const auto link = [&](const QString& text) -> QPushButton* {
        for (auto* one :
             host.windowOf(machine.programm.startScreen())->findChildren<QPushButton*>())
            if (one->isVisible() && one->text().endsWith(text))
                return one;
        return nullptr;
    };
    QPushButton* hints = nullptr;
    ASSERT_TRUE(QTest::qWaitFor([&] {
        hints = link(QStringLiteral("Hinweis"));
        if (hints == nullptr)
            hints = link(QStringLiteral("Hinweise"));
        return hints != nullptr;
    }));
    QTest::mouseClick(hints, Qt::LeftButton);
    auto* entry =
        dynamic_cast<GsArbeitsverhalten*>(machine.programm.find(bildschirme::GsArbeitsverhalten));
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->Combo1.listIndex(), 2);
    EXPECT_EQ(entry->Bereich, Abschnitt::SV);

    ScreenWindow& window = *host.windowOf(entry);
    auto* rail = window.findChild<QListWidget*>(QStringLiteral("classRail"));
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return rail->item(2)
            ->data(Qt::AccessibleTextRole)
            .toString()
            .contains(QStringLiteral("Schreibung prüfen: „flitzbogelt“"));
    }));
    EXPECT_FALSE(window.isWindowModified());
    host.run([&] {
        user::click(entry->Text1(1));
        user::type(entry->Text1(1), u"x");
    });
    EXPECT_TRUE(window.isWindowModified());
    auto* line = window.findChild<QLabel*>(QStringLiteral("savedLine"));
    EXPECT_TRUE(line->text().endsWith(QStringLiteral("geändert"))) << line->text().toStdString();
    host.run([&] { user::click(entry->Command4); });
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_TRUE(line->text().startsWith(QStringLiteral("Gespeichert um")));
}

} // namespace
} // namespace zeugnis::test
