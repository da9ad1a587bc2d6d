#include "behaviour/avsv_entry_screen.h"
#include "desktop/choice_row.h"
#include "desktop/comfort/choice_keeper.h"
#include "tests/desktop/every_window.h"

#include <QAccessible>
#include <QPushButton>

namespace zeugnis::test {
namespace {

TEST(ChoiceKeeper, ShowsWhatALockedTextWasMadeOfAndRepeatsItByOneKey) {
    OpenWindow open(everyWindow()[3]);
    auto& screen = dynamic_cast<GsArbeitsverhalten&>(open.screen());
    for (const TextView name : {u"2", u"Command1", u"Option1(3)", u"Command3(1)", u"Option1(6)"})
        open.click(name);
    const Text text = screen.Text1(0).text();
    open.host.run([&] { user::click(screen.Text1(0)); });
    EXPECT_TRUE(dynamic_cast<ChoiceRow&>(open.widget(u"Option1(6)")).isFormer());
    open.host.run([&] {
        user::pick(screen.Combo1, 0);
        user::pick(screen.Combo1, 1);
    });
    open.click(u"Command3(1)");
    auto& row = dynamic_cast<ChoiceRow&>(open.widget(u"Option1(6)"));
    EXPECT_TRUE(row.isFormer());
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&row)
                    ->text(QAccessible::Description)
                    .endsWith(QStringLiteral("war gewählt")));
    EXPECT_FALSE(dynamic_cast<ChoiceRow&>(open.widget(u"Option1(3)")).isFormer())
        << "that was a line of another category";

    const QPushButton& link = *open.window().findChild<ChoiceKeeper*>()->link();
    EXPECT_FALSE(link.isVisible());
    open.click(u"Command6");
    EXPECT_TRUE(link.isVisible());
    QTest::keyClick(&open.window(), Qt::Key_F7);
    EXPECT_EQ(screen.Text1(0).text(), text);
    EXPECT_FALSE(link.isVisible() || row.isFormer());
}

} // namespace
} // namespace zeugnis::test
