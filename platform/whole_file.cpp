#include "platform/whole_file.h"

#include "platform/failure.h"
#include "platform/path_text.h"
#include "platform/raw_file.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <system_error>
#include <vector>

namespace zeugnis {
namespace fs = std::filesystem;
namespace {

// What stands in the file after a write that failed.
enum class Aftermath { Untouched, Restored, Lost, Removed };

TextView aftermathSentence(Aftermath aftermath) {
    switch (aftermath) {
    case Aftermath::Untouched:
        return u" Der bisherige Inhalt ist unverändert.";
    case Aftermath::Restored:
        return u" Der bisherige Inhalt wurde wiederhergestellt.";
    case Aftermath::Lost:
        return u" Der bisherige Inhalt ließ sich nicht wiederherstellen; prüfen Sie diese Datei.";
    case Aftermath::Removed:
        return u" Es wurde keine Datei angelegt.";
    }
    return {};
}

struct Cause {
    Fehlerart kind;
    TextView sentence;
};

Cause causeOf(int error) {
    switch (error) {
    case ENOENT:
        return {Fehlerart::FileNotFound, u"Sie ist nicht vorhanden."};
    case ENOTDIR:
        return {Fehlerart::PathNotFound, u"Der Ordner fehlt."};
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
        return {Fehlerart::DiskFull, u"Auf dem Datenträger ist kein Platz mehr frei."};
    case EISDIR:
        return {Fehlerart::AccessDenied, u"Unter diesem Namen liegt ein Ordner."};
    case EROFS:
        return {Fehlerart::AccessDenied, u"Der Datenträger ist schreibgeschützt."};
    case EACCES:
    case EPERM:
    case EBUSY:
#ifdef ETXTBSY
    case ETXTBSY:
#endif
        return {Fehlerart::AccessDenied,
                u"Der Zugriff wurde verweigert. Vielleicht ist sie in einem anderen Programm "
                u"geöffnet, oder der Ordner ist schreibgeschützt."};
    case EMFILE:
    case ENFILE:
        return {Fehlerart::AccessDenied, u"Auf diesem Rechner sind zu viele Dateien geöffnet."};
    case ENAMETOOLONG:
        return {Fehlerart::AccessDenied, u"Der Name ist zu lang."};
    default:
        return {Fehlerart::AccessDenied, u"Der Datenträger meldet einen Fehler. Vielleicht ist er "
                                         u"defekt oder wurde entfernt."};
    }
}

[[noreturn]] void fail(int error, const Text& shownName, TextView action, TextView after = {}) {
    const Cause cause = causeOf(error);
    throw Laufzeitfehler(cause.kind, u"Die Datei „" + shownName + u"“ kann nicht " + Text(action) +
                                         u" werden: " + Text(cause.sentence) + Text(after));
}

// A second chance for what stood there; the file is there already.
bool restore(const fs::path& path, std::string_view former) {
    const raw::Opened opened = raw::openForWriting(path);
    return opened.error == 0 && raw::replaceContentAndClose(opened.handle, former) == 0;
}

bool isRegularFile(const fs::path& path) {
    std::error_code ignored;
    return fs::is_regular_file(path, ignored);
}

} // namespace

bool hasFile(const Arbeitsverzeichnis& directory, TextView name) {
    return isRegularFile(directory.path(name));
}

std::string readWholeFile(const Arbeitsverzeichnis& directory, TextView name) {
    raw::Content content = raw::read(directory.path(name));
    if (content.error != 0)
        fail(content.error, directory.displayName(name), u"gelesen");
    return std::move(content.bytes);
}

void writeWholeFile(const Arbeitsverzeichnis& directory, TextView name, std::string_view bytes) {
    const fs::path path = directory.path(name);
    const bool stood = isRegularFile(path);
    std::optional<std::string> former;
    if (stood)
        if (raw::Content content = raw::read(path); content.error == 0)
            former = std::move(content.bytes);

    const raw::Opened opened = raw::openForWriting(path);
    int error = opened.error;
    Aftermath aftermath = Aftermath::Untouched;
    if (error == 0) {
        error = raw::replaceContentAndClose(opened.handle, bytes);
        if (error == 0)
            return;
        if (opened.created)
            aftermath = raw::remove(path) == 0 ? Aftermath::Removed : Aftermath::Lost;
        else
            aftermath = former && restore(path, *former) ? Aftermath::Restored : Aftermath::Lost;
    }
    fail(error, directory.displayName(name), u"geschrieben",
         stood || opened.created ? aftermathSentence(aftermath) : TextView());
}

void copyWholeFile(const Arbeitsverzeichnis& directory, TextView from, TextView to) {
    writeWholeFile(directory, to, readWholeFile(directory, from));
}

void deleteFilesEndingIn(const Arbeitsverzeichnis& directory, TextView ending) {
    std::error_code ignored;
    std::vector<fs::path> doomed;
    for (fs::directory_iterator entry(directory.current(), ignored), end; !ignored && entry != end;
         entry.increment(ignored)) {
        const Text name = textFromPath(entry->path().filename());
        const size_t stem = name.size() - std::min(name.size(), ending.size());
        if (sameIgnoringCase(TextView(name).substr(stem), ending) && isRegularFile(entry->path()))
            doomed.push_back(entry->path());
    }
    for (const fs::path& file : doomed)
        fs::remove(file, ignored);
}

} // namespace zeugnis
