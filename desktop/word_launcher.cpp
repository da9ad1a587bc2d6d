#include "desktop/word_launcher.h"

#include "platform/failure.h"
#include "platform/program_search.h"
#include "platform/working_directory.h"
#include "toolkit/qt_text.h"

#include <QProcess>
#include <QStandardPaths>

#include <system_error>

namespace zeugnis {
namespace {

QString foundProgram(const QString& name) {
    for (const QString& spelling : {name, name.toLower(), name.toUpper()})
        if (QString found = QStandardPaths::findExecutable(spelling); !found.isEmpty())
            return found;
    if (const auto registered = registeredProgram(fromQString(name)))
        return qPath(*registered);
    return {};
}

bool documentExists(const QString& name, const std::filesystem::path& programFolder) {
    try {
        std::error_code ignored;
        return std::filesystem::exists(Arbeitsverzeichnis(programFolder).path(fromQString(name)),
                                       ignored);
    } catch (const Laufzeitfehler&) {
        return false; // its folder is missing
    }
}

} // namespace

void WordLauncher::start(const Text& commandLine, const std::filesystem::path& programFolder) {
    QStringList words = qString(commandLine).split(u' ', Qt::SkipEmptyParts);
    const QString word = foundProgram(words.takeFirst());
    const bool byWord =
        !word.isEmpty() && !words.isEmpty() && documentExists(words[0], programFolder);
    const QString program = byWord ? word : m_ownFolder + QStringLiteral("/zeugnisdokumente");
    if (!QProcess::startDetached(program, words, qPath(programFolder)))
        throw Laufzeitfehler(Fehlerart::ProgramNotFound,
                             u"Das Programm „" + fromQString(program) +
                                 u"“ kann nicht gestartet werden. Es sollte „" + commandLine +
                                 u"“ ausführen.");
}

} // namespace zeugnis
