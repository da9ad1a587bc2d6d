#pragma once

#include "behaviour/avsv_entry_screen.h"
#include "common/screen_names.h"
#include "desktop/choice_row.h"
#include "desktop/screen_window.h"
#include "desktop/text_editor.h"
#include "desktop/window_host.h"
#include "tests/support/test_programm.h"
#include "toolkit/qt_text.h"

#include <QApplication>
#include <QComboBox>
#include <QTest>

namespace zeugnis::test {

/// The entry window on a small installation, with the second child selected and AV chosen.
class EntryWindowTest : public testing::Test {
  protected:
    EntryWindowTest() : machine(installation), host(machine.programm) {
        host.run([this] {
            machine.programm.show(bildschirme::GsStart);
            machine.programm.show(bildschirme::GsArbeitsverhalten);
        });
        screen = dynamic_cast<GsArbeitsverhalten*>(
            machine.programm.find(bildschirme::GsArbeitsverhalten));
        selectChild(1);
        QTest::mouseClick(button("Arbeitsverhalten"), Qt::LeftButton);
        editor = widget<TextEditor>("Zeugnistext zum Arbeitsverhalten");
    }

    template <typename W>
    W* widget(const char* accessibleName) {
        for (QWidget* one : QApplication::allWidgets())
            if (one->accessibleName() == QLatin1String(accessibleName))
                if (auto* typed = qobject_cast<W*>(one); typed != nullptr && typed->isVisible())
                    return typed;
        ADD_FAILURE() << "no widget named " << accessibleName;
        return nullptr;
    }

    QAbstractButton* button(const char* caption) {
        for (QWidget* one : QApplication::allWidgets())
            if (auto* typed = qobject_cast<QAbstractButton*>(one);
                typed != nullptr && typed->isVisible() &&
                typed->text().remove(u'&') == QLatin1String(caption))
                return typed;
        ADD_FAILURE() << "no button " << caption;
        return nullptr;
    }

    void selectChild(int index) {
        auto* names = widget<QComboBox>("Namensliste");
        names->setCurrentIndex(index);
        emit names->activated(index);
    }

    void setText(const Text& text) {
        host.run([&] { screen->Text1(0).setText(text); });
    }

    [[nodiscard]] std::string boxText() const { return utf8FromText(screen->Text1(0).text()); }

    void placeCaret(int position) {
        QTextCursor cursor = editor->textCursor();
        cursor.setPosition(position);
        editor->setTextCursor(cursor);
    }

    TestInstallation installation;
    TestProgramm machine;
    WindowHost host;
    GsArbeitsverhalten* screen = nullptr;
    TextEditor* editor = nullptr;
};

} // namespace zeugnis::test
