#include "platform/whole_file.h"

#include "platform/failure.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <optional>
#include <system_error>
#include <vector>

namespace zeugnis {
namespace fs = std::filesystem;
namespace {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

[[noreturn]] void fail(int error, const Text& shownName, TextView action) {
    const Text sentence =
        u"Die Datei „" + shownName + u"“ kann nicht " + Text(action) + u" werden: ";
    switch (error) {
    case ENOENT:
        throw Laufzeitfehler(Fehlerart::FileNotFound, sentence + u"Sie ist nicht vorhanden.");
    case ENOTDIR:
        throw Laufzeitfehler(Fehlerart::PathNotFound, sentence + u"Der Ordner fehlt.");
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
        throw Laufzeitfehler(Fehlerart::DiskFull,
                             sentence + u"Auf dem Datenträger ist kein Platz mehr frei.");
    case EISDIR:
        throw Laufzeitfehler(Fehlerart::AccessDenied,
                             sentence + u"Unter diesem Namen liegt ein Ordner.");
    default:
        throw Laufzeitfehler(
            Fehlerart::AccessDenied,
            sentence + u"Der Zugriff wurde verweigert. Vielleicht ist sie in einem anderen "
                       u"Programm geöffnet, oder der Ordner ist schreibgeschützt.");
    }
}

struct Content {
    std::string bytes;
    int error = 0;
};

Content readFrom(const fs::path& path) {
    Content content;
    const File file(std::fopen(path.c_str(), "rb"));
    if (!file)
        return {{}, errno};
    std::array<char, 16384> block{};
    size_t count = 0;
    while ((count = std::fread(block.data(), 1, block.size(), file.get())) > 0)
        content.bytes.append(block.data(), count);
    if (std::ferror(file.get()) != 0)
        content.error = errno;
    return content;
}

// 0, or the number of the error. The stream is closed inside, since closing is part of writing.
int writeTo(const fs::path& path, std::string_view bytes) {
    File file(std::fopen(path.c_str(), "wb"));
    if (!file)
        return errno;
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size() &&
                         std::fflush(file.get()) == 0;
    int error = written ? 0 : errno;
    if (std::fclose(file.release()) != 0 && error == 0)
        error = errno;
    return error;
}

bool isRegularFile(const fs::path& path) {
    std::error_code ignored;
    return fs::is_regular_file(path, ignored);
}

} // namespace

bool hasFile(const Arbeitsverzeichnis& directory, TextView name) {
    return isRegularFile(directory.pfad(name));
}

std::string readWholeFile(const Arbeitsverzeichnis& directory, TextView name) {
    Content content = readFrom(directory.pfad(name));
    if (content.error != 0)
        fail(content.error, directory.anzeigename(name), u"gelesen");
    return std::move(content.bytes);
}

void writeWholeFile(const Arbeitsverzeichnis& directory, TextView name, std::string_view bytes) {
    const fs::path path = directory.pfad(name);
    std::optional<std::string> former;
    if (isRegularFile(path))
        if (Content content = readFrom(path); content.error == 0)
            former = std::move(content.bytes);

    const int error = writeTo(path, bytes);
    if (error == 0)
        return;
    if (former)
        writeTo(path, *former);
    fail(error, directory.anzeigename(name), u"geschrieben");
}

void copyWholeFile(const Arbeitsverzeichnis& directory, TextView from, TextView to) {
    writeWholeFile(directory, to, readWholeFile(directory, from));
}

void deleteFilesEndingIn(const Arbeitsverzeichnis& directory, TextView ending) {
    std::error_code ignored;
    std::vector<fs::path> doomed;
    for (fs::directory_iterator entry(directory.aktuell(), ignored), end; !ignored && entry != end;
         entry.increment(ignored)) {
        const std::u8string utf8 = entry->path().filename().u8string();
        const Text name = textFromUtf8(std::string(utf8.begin(), utf8.end()));
        const size_t stem = name.size() - std::min(name.size(), ending.size());
        if (sameIgnoringCase(TextView(name).substr(stem), ending) && isRegularFile(entry->path()))
            doomed.push_back(entry->path());
    }
    for (const fs::path& file : doomed)
        fs::remove(file, ignored);
}

} // namespace zeugnis
