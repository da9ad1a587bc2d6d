#include "desktop/desktop_machine.h"

#include "desktop/dialog_box.h"
#include "desktop/jpeg_pictures.h"
#include "platform/code_page.h"
#include "toolkit/qt_text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPixmap>

namespace zeugnis {

QWidget* DesktopDialogs::prepare() {
    if (beforeBox)
        beforeBox();
    return parent ? parent() : nullptr;
}

Antwort DesktopDialogs::message(const Meldung& meldung) {
    DialogBox box(qString(meldung.titel), qString(meldung.text), prepare());
    box.setSign(meldung.symbol);
    box.setButtons(meldung.tasten, meldung.standardAntwort());
    const Antwort answer = box.ask();
    if (afterBox)
        afterBox(meldung, answer);
    return answer;
}

std::optional<Text> DesktopDialogs::input(const Text& title, const Text& prompt) {
    DialogBox box(qString(title), qString(prompt), prepare());
    const QLineEdit* edit = box.addInput();
    if (box.ask() != Antwort::Ok)
        return std::nullopt;
    return nearestInWindows1252(fromQString(edit->text()));
}

void DesktopClipboard::clear() { QGuiApplication::clipboard()->clear(); }

void DesktopClipboard::setText(const Text& text) {
    QGuiApplication::clipboard()->setText(qString(text));
}

Text DesktopClipboard::text() {
    return withBoxLineEnds(nearestInWindows1252(fromQString(QGuiApplication::clipboard()->text())));
}

bool DesktopPictures::canShow(const std::filesystem::path& file) {
    return !jpegPicture(file).isNull();
}

} // namespace zeugnis
