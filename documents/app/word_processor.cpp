#include "documents/app/word_processor.h"

#include "platform/path_text.h"
#include "platform/process.h"
#include "platform/program_search.h"
#include "toolkit/qt_text.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <chrono>
#include <system_error>
#include <thread>

namespace zeugnis::dokumente {
namespace fs = std::filesystem;
namespace {

// A pause between two looks whether it has ended.
constexpr auto Takt = std::chrono::milliseconds(20);
constexpr auto Hoechstens = std::chrono::seconds(60);

QString gefunden(std::initializer_list<const char*> namen) {
    for (const char* name : namen)
        if (QString programm = QStandardPaths::findExecutable(QString::fromLatin1(name));
            !programm.isEmpty())
            return programm;
    for (const char* name : namen)
        if (const auto programm = registeredProgram(textFromUtf8(name)))
            return qPath(*programm);
    return {};
}

QString libreOffice() { return gefunden({"soffice", "libreoffice", "soffice.exe"}); }

// LibreOffice starts by way of other programs, so all that came of it ends
// with it.
void ausfuehren(const QString& programm, const std::vector<Text>& worte,
                const std::stop_token& abbruch) {
    const auto umwandlung = ProcessFamily::start(pathFromText(fromQString(programm)), worte);
    const auto ende = std::chrono::steady_clock::now() + Hoechstens;
    while (umwandlung && !umwandlung->hasEnded()) {
        if (abbruch.stop_requested() || std::chrono::steady_clock::now() > ende)
            return;
        std::this_thread::sleep_for(Takt);
    }
}

} // namespace

bool inTextverarbeitungOeffnen(const fs::path& dokument) {
    QString programm = gefunden({"Winword.exe", "winword.exe", "WINWORD.EXE"});
    if (programm.isEmpty())
        programm = libreOffice();
    if (programm.isEmpty())
        return QDesktopServices::openUrl(QUrl::fromLocalFile(qPath(dokument)));
    return QProcess::startDetached(programm, {qPath(dokument)});
}

std::optional<fs::path> inPdfUmwandeln(const fs::path& dokument, const fs::path& ordner,
                                       const std::stop_token& abbruch) {
    const QString programm = libreOffice();
    if (programm.isEmpty())
        return std::nullopt;
    // With a profile of its own it works beside a LibreOffice that is already open. With an umlaut
    // in this address that is not encoded it would never end.
    const QString profil =
        QString::fromLatin1(QUrl::fromLocalFile(qPath(ordner / "profil")).toEncoded());
    fs::path pdf = ordner / dokument.filename();
    pdf.replace_extension(".pdf");
    std::error_code ignored;
    fs::remove(pdf, ignored); // of an earlier conversion

    ausfuehren(programm,
               {u"-env:UserInstallation=" + fromQString(profil), u"--headless", u"--convert-to",
                u"pdf", u"--outdir", textFromPath(ordner), textFromPath(dokument)},
               abbruch);
    return !abbruch.stop_requested() && fs::is_regular_file(pdf, ignored) ? std::optional(pdf)
                                                                          : std::nullopt;
}

} // namespace zeugnis::dokumente
