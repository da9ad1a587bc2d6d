#include "documents/app/word_processor.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <system_error>

namespace zeugnis::dokumente {
namespace fs = std::filesystem;
namespace {

constexpr int HoechstensMillisekunden = 60000;

QString qPfad(const fs::path& pfad) { return QString::fromStdU16String(pfad.u16string()); }

QString gefunden(std::initializer_list<const char*> namen) {
    for (const char* name : namen)
        if (QString programm = QStandardPaths::findExecutable(QString::fromLatin1(name));
            !programm.isEmpty())
            return programm;
    return {};
}

QString libreOffice() { return gefunden({"soffice", "libreoffice"}); }

} // namespace

bool inTextverarbeitungOeffnen(const fs::path& dokument) {
    QString programm = gefunden({"Winword.exe", "winword.exe", "WINWORD.EXE"});
    if (programm.isEmpty())
        programm = libreOffice();
    if (programm.isEmpty())
        return QDesktopServices::openUrl(QUrl::fromLocalFile(qPfad(dokument)));
    return QProcess::startDetached(programm, {qPfad(dokument)});
}

std::optional<fs::path> inPdfUmwandeln(const fs::path& dokument, const fs::path& ordner) {
    const QString programm = libreOffice();
    if (programm.isEmpty())
        return std::nullopt;
    // With a profile of its own it works beside a LibreOffice that is already open. With an umlaut
    // in this address that is not encoded it would never end.
    const QString profil =
        QString::fromLatin1(QUrl::fromLocalFile(qPfad(ordner / "profil")).toEncoded());
    QProcess umwandlung;
    umwandlung.start(programm, {QStringLiteral("-env:UserInstallation=") + profil,
                                QStringLiteral("--headless"), QStringLiteral("--convert-to"),
                                QStringLiteral("pdf"), QStringLiteral("--outdir"), qPfad(ordner),
                                qPfad(dokument)});
    if (!umwandlung.waitForFinished(HoechstensMillisekunden)) {
        umwandlung.terminate();
        umwandlung.waitForFinished();
    }
    fs::path pdf = ordner / dokument.filename();
    pdf.replace_extension(".pdf");
    std::error_code ignored;
    return fs::is_regular_file(pdf, ignored) ? std::optional(pdf) : std::nullopt;
}

} // namespace zeugnis::dokumente
