#include "behaviour/avsv_entry_screen.h"
#include "desktop/comfort/report_pane.h"
#include "desktop/comfort/report_view.h"
#include "tests/desktop/every_window.h"

#include <QElapsedTimer>
#include <QLabel>

namespace zeugnis::test {
namespace {

class ReportPaneTest : public testing::Test {
  protected:
    ReportPaneTest() : open(avsv()) {
        open.click(u"2");
        open.click(u"Command1");
        QTest::qWait(200); // until the window has found its place on the small display
        resize(1500);
    }
    static const WindowState& avsv() { return everyWindow()[3]; }
    void resize(int width) {
        open.window().resize(width, 800);
        settleLayouts();
    }
    void pressF9() {
        QTest::keyClick(QApplication::activeWindow(), Qt::Key_F9);
        QTest::qWait(3 * ReportPane::Pause);
    }
    [[nodiscard]] QString fit() { return pane().findChild<QLabel*>("reportFit")->text(); }
    [[nodiscard]] ReportPane& pane() { return *open.window().findChild<ReportPane*>(); }
    [[nodiscard]] ReportView& view() { return *pane().findChild<ReportView*>(); }

    OpenWindow open;
};

TEST_F(ReportPaneTest, ShowsEachChangeAndLeadsToTheSectionThatIsPressed) {
    EXPECT_FALSE(pane().isVisible());
    pressF9();
    ASSERT_TRUE(pane().isVisible());
    EXPECT_FALSE(pane().isWindow());
    EXPECT_EQ(fit(), QStringLiteral("Passt auf 2 Seiten"));
    const QImage before = view().grab().toImage();
    open.host.run([&] {
        user::click(open.control(u"Text1(0)"));
        user::paste(dynamic_cast<TextBox&>(open.control(u"Text1(0)")),
                    Text(9000, u'x') + u" und so fort");
    });
    QTest::qWait(3 * ReportPane::Pause);
    EXPECT_TRUE(fit().endsWith(QStringLiteral("Zeilen zu viel für 2 Seiten"))) << qPrintable(fit());
    EXPECT_NE(view().grab().toImage(), before) << "not saved, not left, and shown all the same";

    QTest::keyClick(&view(), Qt::Key_End);
    QTest::keyClick(&view(), Qt::Key_Down);
    QTest::keyClick(&view(), Qt::Key_Down);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&view(), Qt::Key_Down);
    QTest::keyClick(&view(), Qt::Key_Return);
    EXPECT_EQ(dynamic_cast<GsArbeitsverhalten&>(open.screen()).Bereich, Abschnitt::SV);
    EXPECT_EQ(dynamic_cast<GsArbeitsverhalten&>(open.screen()).Speicher.AV.Texte[1].size(), 9012U)
        << "the box has been left as by a hand";
    pressF9();
    EXPECT_FALSE(pane().isVisible());
}

TEST_F(ReportPaneTest, FoldsWhereThereIsNoRoomAndThenOpensByItself) {
    pressF9();
    EXPECT_GT(pane().width(), 400);
    resize(1100);
    EXPECT_EQ(open.window().width(), 1100) << "the pane did not hold it";
    EXPECT_FALSE(pane().isVisible());
    resize(1500);
    EXPECT_TRUE(pane().isVisible());
    resize(1100);
    pressF9();
    EXPECT_TRUE(pane().isVisible() && pane().isWindow());
    resize(1500);
    EXPECT_TRUE(pane().isVisible() && !pane().isWindow());
    pressF9();
    EXPECT_FALSE(pane().isVisible());
    resize(1500);
    EXPECT_FALSE(pane().isVisible()) << "it was closed";
}

} // namespace
} // namespace zeugnis::test
