#include "documents/app/document_files.h"
#include "documents/window/preview_window.h"
#include "tests/documents/report_installation.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

namespace zeugnis::dokumente {
namespace {

class PreviewWindowTest : public testing::Test {
  protected:
    PreviewWindowTest() {
        for (const char16_t* name : {u"Ahlers", u"Bäcker", u"Çelik"})
            m_children.push_back({test::schueler(u"Kim", name), test::saetze(70), u""});
        files = make(m_children);
        window = std::make_unique<PreviewWindow>(
            [this] { return AnzeigeFinden(files, [this](const auto&) { return m_converted; }); });
        window->resize(1000, 700);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        contents = window->findChild<QListWidget*>();
        view = window->findChild<PageView*>();
        hint = window->findChild<QLabel*>(QStringLiteral("hinweis"));
    }

    Dokumentdateien make(const std::vector<test::Zeugniskind>& children) {
        m_installation.write(children);
        Arbeitsverzeichnis verzeichnis(m_installation.path());
        return DokumentBereitstellen(
            verzeichnis, {.Dokument = u"ZeugnisseSchreiben.doc", .Makro = u"ZeugnisseSchreiben"});
    }

    void edit() { m_installation.edit("3aZeugnisse32.doc"); }

    void returnToWindow() {
        QEvent event(QEvent::ActivationChange);
        QApplication::setActiveWindow(window.get());
        QApplication::sendEvent(window.get(), &event);
    }

    Dokumentdateien files;
    std::unique_ptr<PreviewWindow> window;
    QListWidget* contents = nullptr;
    PageView* view = nullptr;
    QLabel* hint = nullptr;

  private:
    test::ReportInstallation m_installation;
    std::vector<test::Zeugniskind> m_children;
    std::optional<std::filesystem::path> m_converted;
};

TEST_F(PreviewWindowTest, TheListLeadsToTheChildrenAndFollowsTheScrolling) {
    ASSERT_EQ(contents->count(), 3);
    EXPECT_EQ(contents->item(2)->text(), QStringLiteral("Kim Çelik"));
    contents->setFocus();
    QTest::keyClick(contents, Qt::Key_End);
    EXPECT_EQ(view->currentPage(), 6);
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Home);
    EXPECT_EQ(contents->currentRow(), 0);
    EXPECT_EQ(view->currentPage(), 0);
}

TEST_F(PreviewWindowTest, KeysChangeTheSizeOfTheView) {
    const auto* zoom = window->findChild<QComboBox*>();
    EXPECT_EQ(zoom->currentText(), QStringLiteral("100 %"));
    QTest::keyClick(window.get(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(zoom->currentText(), QStringLiteral("125 %"));
    QTest::keyClick(window.get(), Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(window.get(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(view->factor(), 0.9);
    QTest::keyClick(window.get(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(zoom->currentText(), QStringLiteral("Ganze Seite"));
    EXPECT_LT(view->factor(), 0.9);
}

TEST_F(PreviewWindowTest, SaysThatTheDocumentWasEditedMeanwhile) {
    EXPECT_TRUE(hint->isHidden());
    edit();
    returnToWindow();
    EXPECT_FALSE(hint->isHidden());
    EXPECT_TRUE(hint->text().contains(QStringLiteral("Stand davor")));
}

TEST_F(PreviewWindowTest, AFindingLeadsToThePageWithItsSection) {
    const auto finding = [](int place, const Text& name, TextView section) {
        return Befund{.Platz = place, .Kind = name, .Abschnitt = section, .Satz = u"Satz."};
    };
    std::vector<Befund> findings = {finding(AlleKinder, u"", u""),
                                    finding(2, u"Kim Çelik", u"Bemerkungen"),
                                    finding(0, u"Kim Ahlers", u"Arbeitsverhalten"),
                                    // As in a document without bookmarks: found by its name.
                                    finding(9, u"Kim Çelik", u"")};
    window->showChecks({.Pruefen = [&] { return findings; }, .Gesehen = {}, .Lernen = {}});
    auto* list = window->findChild<ChecksPanel*>()->findChild<QListWidget*>();
    ASSERT_EQ(list->count(), 7);
    EXPECT_EQ(list->item(1)->text(), QStringLiteral("Kim Çelik"));
    EXPECT_EQ(list->item(2)->text(), QStringLiteral("Satz."));
    list->setFocus();
    for (const auto& [row, page] : {std::pair(0, 0), {2, 8}, {4, 0}, {6, 6}}) {
        list->setCurrentRow(row);
        QTest::keyClick(list, Qt::Key_Return);
        EXPECT_EQ(view->currentPage(), page) << row;
    }
}

TEST(ChecksPanelTest, ShowsAKindCountsChildrenAndLetsGoWhatWasSeenOrLearnt) {
    std::vector<Befund> findings = {
        {.Platz = 0, .Kind = u"Kim", .Satz = u"eins", .Woerter = {u"Wort"}},
        {.Platz = 0, .Kind = u"Kim", .Satz = u"zwei"},
        {.Platz = 1, .Kind = u"Zoé", .Satz = u"drei", .Art = Befundart::Liste}};
    std::vector<Text> seen;
    std::vector<Text> learnt;
    ChecksPanel panel({.Pruefen = [&] { return findings; },
                       .Gesehen =
                           [&](const Befund& one) {
                               seen.push_back(one.Satz);
                               findings.erase(findings.begin() + 1);
                           },
                       .Lernen =
                           [&](const Befund& one) {
                               learnt = one.Woerter;
                               findings.erase(findings.begin());
                           }});
    panel.QWidget::show();
    auto* list = panel.findChild<QListWidget*>();
    auto* summary = panel.findChild<QLabel*>(QStringLiteral("leise"));
    const auto buttons = panel.findChildren<QPushButton*>();
    ASSERT_EQ(buttons.size(), 4);
    EXPECT_FALSE(buttons[3]->isVisible()) << "there are no twins";
    EXPECT_TRUE(summary->text().startsWith(QStringLiteral("3 Hinweise bei 2 Kindern.")));
    EXPECT_FALSE(buttons[1]->isEnabled());
    list->setCurrentRow(2);
    EXPECT_FALSE(buttons[2]->isEnabled());
    QTest::mouseClick(buttons[1], Qt::LeftButton);
    list->setCurrentRow(1);
    QTest::mouseClick(buttons[2], Qt::LeftButton);
    EXPECT_EQ(seen, std::vector<Text>{u"zwei"});
    EXPECT_EQ(learnt, std::vector<Text>{u"Wort"});
    EXPECT_TRUE(summary->text().startsWith(QStringLiteral("Ein Hinweis bei einem Kind.")));
    auto* kind = panel.findChild<QComboBox*>();
    QTest::keyClick(kind, Qt::Key_Down);
    EXPECT_EQ(summary->text(), QStringLiteral("Hier ist nichts aufgefallen."));
    QTest::keyClick(kind, Qt::Key_Down);
    EXPECT_EQ(list->count(), 2);

    const ChecksPanel broken({.Pruefen = []() -> std::vector<Befund> {
                                  throw Laufzeitfehler(Fehlerart::EndOfFile, u"Es fehlt etwas.");
                              },
                              .Gesehen = {},
                              .Lernen = {}});
    EXPECT_TRUE(broken.findChild<QLabel*>(QStringLiteral("leise"))
                    ->text()
                    .contains(QStringLiteral("nicht geprüft werden. Es fehlt etwas.")));
}

TEST_F(PreviewWindowTest, CanBeUsedByKeyboardAndScreenReader) {
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->isHidden())
            continue;
        const auto* button = qobject_cast<const QPushButton*>(widget);
        EXPECT_TRUE(!widget->accessibleName().isEmpty() ||
                    (button != nullptr && button->text().contains(u'&')))
            << widget->metaObject()->className();
    }
    EXPECT_TRUE(view->accessibleDescription().contains(QStringLiteral("Kim Ahlers")))
        << view->accessibleDescription().toStdString();
}

} // namespace
} // namespace zeugnis::dokumente
