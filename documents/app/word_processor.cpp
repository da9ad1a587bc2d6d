#include "documents/app/word_processor.h"

#include <QDesktopServices>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <system_error>

#ifdef Q_OS_UNIX
#include <csignal>
#include <unistd.h>
#endif

namespace zeugnis::dokumente {
namespace fs = std::filesystem;
namespace {

constexpr int HoechstensMillisekunden = 60000;
constexpr int Takt = 50;

QString qPfad(const fs::path& pfad) { return QString::fromStdU16String(pfad.u16string()); }

QString gefunden(std::initializer_list<const char*> namen) {
    for (const char* name : namen)
        if (QString programm = QStandardPaths::findExecutable(QString::fromLatin1(name));
            !programm.isEmpty())
            return programm;
    return {};
}

QString libreOffice() { return gefunden({"soffice", "libreoffice"}); }

// LibreOffice starts by way of other programs, so all that came of it has to end with it.
void alsEigeneGruppe(QProcess& umwandlung) {
#ifdef Q_OS_UNIX
    umwandlung.setChildProcessModifier([] { ::setpgid(0, 0); });
#else
    static_cast<void>(umwandlung);
#endif
}

void beenden(QProcess& umwandlung) {
#ifdef Q_OS_UNIX
    ::kill(static_cast<pid_t>(-umwandlung.processId()), SIGKILL);
#endif
    umwandlung.kill();
    umwandlung.waitForFinished();
}

void abwarten(QProcess& umwandlung, const std::stop_token& abbruch) {
    QElapsedTimer zeit;
    zeit.start();
    while (umwandlung.state() != QProcess::NotRunning && !umwandlung.waitForFinished(Takt))
        if (abbruch.stop_requested() || zeit.hasExpired(HoechstensMillisekunden))
            return beenden(umwandlung);
}

} // namespace

bool inTextverarbeitungOeffnen(const fs::path& dokument) {
    QString programm = gefunden({"Winword.exe", "winword.exe", "WINWORD.EXE"});
    if (programm.isEmpty())
        programm = libreOffice();
    if (programm.isEmpty())
        return QDesktopServices::openUrl(QUrl::fromLocalFile(qPfad(dokument)));
    return QProcess::startDetached(programm, {qPfad(dokument)});
}

std::optional<fs::path> inPdfUmwandeln(const fs::path& dokument, const fs::path& ordner,
                                       const std::stop_token& abbruch) {
    const QString programm = libreOffice();
    if (programm.isEmpty())
        return std::nullopt;
    // With a profile of its own it works beside a LibreOffice that is already open. With an umlaut
    // in this address that is not encoded it would never end.
    const QString profil =
        QString::fromLatin1(QUrl::fromLocalFile(qPfad(ordner / "profil")).toEncoded());
    fs::path pdf = ordner / dokument.filename();
    pdf.replace_extension(".pdf");
    std::error_code ignored;
    fs::remove(pdf, ignored); // of an earlier conversion

    QProcess umwandlung;
    alsEigeneGruppe(umwandlung);
    umwandlung.start(programm, {QStringLiteral("-env:UserInstallation=") + profil,
                                QStringLiteral("--headless"), QStringLiteral("--convert-to"),
                                QStringLiteral("pdf"), QStringLiteral("--outdir"), qPfad(ordner),
                                qPfad(dokument)});
    abwarten(umwandlung, abbruch);
    return !abbruch.stop_requested() && fs::is_regular_file(pdf, ignored) ? std::optional(pdf)
                                                                          : std::nullopt;
}

} // namespace zeugnis::dokumente
