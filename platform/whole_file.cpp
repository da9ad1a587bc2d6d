#include "platform/whole_file.h"

#include "platform/failure.h"
#include "platform/path_text.h"
#include "platform/raw_file.h"
#include "platform/write_watcher.h"

#include <algorithm>
#include <cerrno>
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
    case ENXIO:
        return {Fehlerart::AccessDenied, u"Unter diesem Namen liegt etwas anderes als eine Datei."};
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

[[noreturn]] void fail(int error, const Arbeitsverzeichnis& directory, TextView name,
                       TextView action, TextView after = {}) {
    const Cause cause = causeOf(error);
    const bool missing =
        cause.kind == Fehlerart::FileNotFound || cause.kind == Fehlerart::PathNotFound;
    if (WriteWatcher* watcher = directory.watcher(); watcher != nullptr && !missing)
        watcher->machineFailed();
    throw Laufzeitfehler(cause.kind, u"Die Datei „" + directory.displayName(name) +
                                         u"“ kann nicht " + Text(action) + u" werden: " +
                                         Text(cause.sentence) + Text(after));
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

// Tells the watcher, if there is one, of a write and of its end.
class Watched {
  public:
    Watched(const Arbeitsverzeichnis& directory, const fs::path& path, const FormerContent& former,
            std::string_view bytes)
        : m_watcher(directory.watcher()), m_path(path), m_bytes(bytes) {
        if (m_watcher != nullptr)
            m_watcher->beforeWrite(path, former, bytes);
    }
    ~Watched() {
        if (m_watcher != nullptr)
            m_watcher->afterWrite(m_path, m_bytes, m_done);
    }
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;

    void done() { m_done = true; }

  private:
    WriteWatcher* m_watcher;
    const fs::path& m_path;
    std::string_view m_bytes;
    bool m_done = false;
};

} // namespace

bool hasFile(const Arbeitsverzeichnis& directory, TextView name) {
    return isRegularFile(directory.path(name));
}

std::string readWholeFile(const Arbeitsverzeichnis& directory, TextView name) {
    raw::Content content = raw::read(directory.path(name));
    if (content.error != 0)
        fail(content.error, directory, name, u"gelesen");
    return std::move(content.bytes);
}

void writeWholeFile(const Arbeitsverzeichnis& directory, TextView name, std::string_view bytes) {
    const fs::path path = directory.path(name);
    FormerContent former{.stood = isRegularFile(path)};
    if (former.stood)
        if (raw::Content content = raw::read(path); content.error == 0)
            former.bytes = std::move(content.bytes);
    Watched watched(directory, path, former, bytes);

    const raw::Opened opened = raw::openForWriting(path);
    int error = opened.error;
    Aftermath aftermath = Aftermath::Untouched;
    if (error == 0) {
        error = raw::replaceContentAndClose(opened.handle, bytes);
        if (error == 0)
            return watched.done();
        if (opened.created)
            aftermath = raw::remove(path) == 0 ? Aftermath::Removed : Aftermath::Lost;
        else
            aftermath = former.bytes && restore(path, *former.bytes) ? Aftermath::Restored
                                                                     : Aftermath::Lost;
    }
    fail(error, directory, name, u"geschrieben",
         former.stood || opened.created ? aftermathSentence(aftermath) : TextView());
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
    WriteWatcher* watcher = directory.watcher();
    if (watcher != nullptr)
        watcher->beforeRemoval(doomed);
    for (const fs::path& file : doomed)
        fs::remove(file, ignored);
    if (watcher != nullptr)
        watcher->afterRemoval(doomed);
}

} // namespace zeugnis
