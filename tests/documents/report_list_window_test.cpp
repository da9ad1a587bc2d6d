#include "documents/window/report_list_window.h"
#include "tests/documents/report_installation.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

namespace zeugnis::dokumente {
namespace {

constexpr TextView Datei = u"3aZeugnisliste32.txt";

class ReportListWindowTest : public testing::Test {
  protected:
    ReportListWindowTest() {
        installation.write({{test::schueler(u"Kim", u"Ahlers"), u"", u""},
                            {test::schueler(u"Lena", u"Bäcker"), u"", u""}});
        open(false);
    }

    void open(bool anew) {
        window.reset();
        window = make(anew);
        view = window->findChild<ReportListView*>();
        refusal = window->findChild<QLabel*>(QStringLiteral("fehler"));
    }

    std::unique_ptr<ReportListWindow> make(bool anew) {
        Arbeitsverzeichnis folder(installation.path());
        auto one = std::make_unique<ReportListWindow>(
            folder, ListeBereitstellen(folder, anew),
            [this](const Dokumentdateien& files) { printed = files.Doc.filename().string(); });
        one->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(one.get()));
        return one;
    }

    // Keys go to the open editor, or else to the table.
    void keys(const char* text) {
        for (const char* one = text; *one != '\0'; ++one)
            QTest::keyClick(receiver(), *one);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(receiver(), key, modifiers);
        QApplication::processEvents();
    }

    // The rows of both children, cells joined by blanks, an empty one as a dot.
    std::string cells(int columns) {
        std::string all;
        for (int row = 0; row < 2; ++row)
            for (int column = 0; column < columns; ++column) {
                const QString text = view->model()->index(row, column).data().toString();
                all += (text.isEmpty() ? "." : text.toStdString()) +
                       (column + 1 == columns ? "|" : " ");
            }
        return all;
    }

    Text file() { return installation.read(Datei); }

    std::unique_ptr<ReportListWindow> window;
    ReportListView* view = nullptr;
    QLabel* refusal = nullptr;
    std::string printed;

    QString hint() { return window->findChild<QLabel*>(QStringLiteral("hinweis"))->text(); }
    void click(const char* words) {
        for (auto* button : window->findChildren<QPushButton*>())
            if (button->isVisible() &&
                button->text().remove(u'&').contains(QString::fromUtf8(words)))
                return QTest::mouseClick(button, Qt::LeftButton);
        ADD_FAILURE() << words;
    }

    test::ReportInstallation installation;

  private:
    QWidget* receiver() {
        for (auto* editor : view->viewport()->findChildren<QLineEdit*>())
            if (editor->isVisible())
                return editor;
        return view;
    }
};

TEST_F(ReportListWindowTest, OpensWhereTheFirstChildLacksWhatAnotherHas) {
    EXPECT_EQ(view->currentIndex(), view->model()->index(0, 0)) << "nothing is entered";
    keys("1");
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    keys("2");
    press(Qt::Key_Down);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    keys("3");
    press(Qt::Key_Return);
    open(false);
    EXPECT_EQ(cells(3), "1 . 2|3 . .|");
    EXPECT_EQ(view->currentIndex(), view->model()->index(1, 2)) << "nobody was absent unexcused";
}

TEST_F(ReportListWindowTest, IsFilledInLikeASpreadsheetAndSavesAtOnce) {
    keys("12");
    press(Qt::Key_Tab);
    keys("1");
    press(Qt::Key_Return);
    EXPECT_EQ(cells(3), "12 1 .|. . .|");
    EXPECT_EQ(file().substr(0, file().find(u'\r')),
              u"1,\"3a\",\"Ahlers\",\"Kim\",12,1,-1,-1,-1,-1,-1,-1,-1,-1,-1,-1");
    EXPECT_EQ(view->currentIndex(), view->model()->index(1, 1));
    press(Qt::Key_Left);
    keys("3");
    press(Qt::Key_Right); // a cell that is typed over is left by the arrow
    press(Qt::Key_Right);
    keys("2");
    press(Qt::Key_Up);
    EXPECT_EQ(cells(3), "12 1 .|3 . 2|");
    press(Qt::Key_Z, Qt::ControlModifier);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(cells(3), "12 1 .|. . .|");
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(cells(3), "12 1 .|3 . .|");
    open(false);
    EXPECT_EQ(cells(3), "12 1 .|3 . .|");
}

TEST_F(ReportListWindowTest, CutsNoHeadingInAnyFont) {
    for (const double share : {1.0, 1.5, 2.0}) {
        QFont font = QApplication::font();
        font.setPointSizeF(font.pointSizeF() * share);
        view->setFont(font);
        QApplication::processEvents();
        const QHeaderView& head = *view->horizontalHeader();
        for (int column = 0; column < view->model()->columnCount(); ++column) {
            const QString text = view->model()->headerData(column, Qt::Horizontal).toString();
            const QSize needed = head.fontMetrics().size(0, text);
            EXPECT_LT(needed.width(), head.sectionSize(column)) << share << text.toStdString();
            EXPECT_LT(needed.height(), head.height()) << share << text.toStdString();
        }
        EXPECT_LT(view->fontMetrics().height(), view->rowHeight(0));
    }
}

TEST_F(ReportListWindowTest, RefusesWhatCannotBeAndStaysThere) {
    view->setCurrentIndex(view->model()->index(0, 2));
    const Text before = file();
    for (const Qt::Key leaving : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Down}) {
        keys("7");
        press(leaving);
        EXPECT_FALSE(refusal->isHidden());
        EXPECT_TRUE(refusal->text().contains(QStringLiteral("Kim Ahlers – Deutsch: „7“")));
        EXPECT_EQ(view->currentIndex(), view->model()->index(0, 2));
    }
    EXPECT_EQ(file(), before);
    keys("4");
    press(Qt::Key_Return);
    EXPECT_TRUE(refusal->isHidden());
    EXPECT_EQ(cells(3), ". . 4|. . .|");
}

TEST_F(ReportListWindowTest, ClosingTakesWhatIsBeingTypedUnlessItIsRefused) {
    keys("201");
    EXPECT_FALSE(window->close());
    EXPECT_FALSE(refusal->isHidden());
    keys("20");
    EXPECT_TRUE(window->close());
    EXPECT_EQ(file().substr(0, 26), u"1,\"3a\",\"Ahlers\",\"Kim\",20,-");
}

TEST_F(ReportListWindowTest, CopiesPastesAndClearsBlocks) {
    QApplication::clipboard()->setText(QStringLiteral("4\t1\t2\n5\t0\t3\n"));
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(cells(3), "4 1 2|5 0 3|");
    view->selectAll();
    QApplication::clipboard()->clear();
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith(QStringLiteral("4\t1\t2\t\t")));
    press(Qt::Key_Delete);
    EXPECT_EQ(cells(3), ". . .|. . .|");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(cells(3), "4 1 2|5 0 3|");
}

TEST_F(ReportListWindowTest, TwoWindowsDoNotOverwriteEachOther) {
    const std::unique_ptr<ReportListWindow> other = make(false);
    keys("9");
    press(Qt::Key_Return);
    const Text saved = file();
    auto* table = other->findChild<ReportListView*>();
    QTest::keyClick(table, '8');
    QTest::keyClick(table->viewport()->findChild<QLineEdit*>(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return table->model()->index(0, 0).data().toString() == QStringLiteral("9"); }));
    EXPECT_EQ(file(), saved);
    EXPECT_TRUE(other->findChild<QLabel*>(QStringLiteral("hinweis"))
                    ->text()
                    .contains(QStringLiteral("an anderer Stelle")));
}

// What another program may do to the file while the table is open.
TEST_F(ReportListWindowTest, ADamagedFileTakesNothingFromTheTable) {
    const Text one = u"1,\"3a\",\"Ahlers\",\"Kim\",12,-1,-1,-1,-1,-1,-1,-1,-1,-1,-1,-1\r\n";
    const struct {
        std::optional<Text> content; // nothing: it is removed
        const char* words;
    } damages[] = {{u"", "ist leer"},
                   {one.substr(0, 30), "bricht mittendrin ab"},
                   {one, "nur 1 von 2 Kindern"},
                   {std::nullopt, "nicht mehr da"}};
    for (const auto& damage : damages)
        for (const bool keep : {true, false}) {
            SCOPED_TRACE(damage.words);
            view->setCurrentIndex(view->model()->index(0, 0));
            keys("12");
            press(Qt::Key_Return);
            keys("5");
            press(Qt::Key_Return);
            if (damage.content)
                installation.write(Datei, *damage.content);
            else
                installation.remove(Datei);
            view->setCurrentIndex(view->model()->index(1, 2));
            keys("3");
            press(Qt::Key_Return);
            EXPECT_EQ(cells(3), "12 . .|5 . 3|");
            EXPECT_TRUE(hint().contains(QString::fromUtf8(damage.words))) << hint().toStdString();
            click(keep ? "Tabelle" : "Datei");
            EXPECT_EQ(cells(3) == "12 . .|5 . 3|", keep);
            EXPECT_FALSE(hint().contains(QStringLiteral("wählen")));
            if (!keep) {
                Arbeitsverzeichnis folder(installation.path());
                const Text copy = LetzteKopie(folder, StammdatenLesen(folder));
                EXPECT_EQ(ListenzeilenLesen(folder, copy, 3).at(1).Werte.Werte[2], 3);
            }
            EXPECT_TRUE(window->close());
            open(false);
            EXPECT_EQ(cells(3) == "12 . .|5 . 3|", keep);
            installation.remove(Datei);
            open(true);
        }
}

TEST_F(ReportListWindowTest, AFailedWriteTakesNothingFromTheTable) {
    keys("12");
    press(Qt::Key_Return);
    struct sigaction ignore {};
    ignore.sa_handler = SIG_IGN;
    sigaction(SIGXFSZ, &ignore, nullptr);
    rlimit former{};
    getrlimit(RLIMIT_FSIZE, &former);
    const rlimit small{.rlim_cur = 20, .rlim_max = former.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    for (const char* value : {"5", "6"}) {
        view->setCurrentIndex(view->model()->index(1, 0));
        keys(value);
        press(Qt::Key_Return);
        EXPECT_TRUE(hint().contains(QStringLiteral("noch nicht gespeichert")));
    }
    setrlimit(RLIMIT_FSIZE, &former);
    keys("7");
    press(Qt::Key_Return);
    EXPECT_EQ(hint(), "");
    EXPECT_TRUE(window->close());
    open(false);
    EXPECT_EQ(cells(1), "12|7|");
}

TEST_F(ReportListWindowTest, BegunAnewItOffersTheFormerEntries) {
    keys("9");
    press(Qt::Key_Return);
    open(true);
    EXPECT_EQ(cells(1), ".|.|");
    click("übernehmen");
    EXPECT_EQ(cells(1), "9|.|");
    press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(printed, "3aZeugnisliste32.doc");
}

} // namespace
} // namespace zeugnis::dokumente
