#include "folders/folder_copy.h"

#include "platform/failure.h"
#include "platform/path_text.h"
#include "platform/raw_file.h"

#include <cerrno>

namespace zeugnis {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(int error, const Text& sentence) {
    const bool full = raw::meansFull(error);
    throw Laufzeitfehler(full ? Fehlerart::DiskFull : Fehlerart::AccessDenied,
                         sentence + (full ? u" Der Datenträger ist voll." : u""));
}

void writeNew(const fs::path& file, std::string_view bytes) {
    const Text name = u"Die Datei „" + textFromPath(file.filename()) + u"“ kann nicht ";
    const raw::Opened opened = raw::openForWriting(file);
    if (opened.error != 0)
        fail(opened.error, name + u"angelegt werden.");
    if (const int error = raw::replaceContentAndClose(opened.handle, bytes); error != 0)
        fail(error, name + u"geschrieben werden.");
    const raw::Content written = raw::read(file);
    if (written.error != 0 || written.bytes != bytes)
        fail(written.error, name + u"so gelesen werden, wie sie geschrieben wurde.");
}

} // namespace

FolderCopy::FolderCopy(const fs::path& place)
    : m_place(place.has_filename() ? place : place.parent_path()), m_beside(m_place) {
    m_beside += raw::BesideEnding;
    std::error_code failed;
    if (fs::exists(m_place, failed) && !fs::is_empty(m_place, failed))
        fail(EEXIST, u"Den Ordner „" + textFromPath(m_place) +
                         u"“ gibt es schon. Bitte wählen Sie einen anderen.");
    fs::remove_all(m_beside, failed);
    fs::create_directories(m_beside, failed);
    if (failed)
        fail(failed.value(),
             u"Der Ordner „" + textFromPath(m_place) + u"“ kann nicht angelegt werden.");
}

FolderCopy::~FolderCopy() {
    std::error_code ignored;
    fs::remove_all(m_beside, ignored);
}

int FolderCopy::copyFrom(const fs::path& source,
                         const std::function<bool(const fs::path&)>& wanted) {
    int files = 0;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(source)) {
        const fs::path name = entry.path().lexically_relative(source);
        if (entry.is_directory()) {
            fs::create_directories(m_beside / name);
        } else if (entry.is_regular_file() && wanted(name)) {
            const raw::Content content = raw::read(entry.path());
            if (content.error != 0)
                fail(content.error,
                     u"Die Datei „" + textFromPath(name) + u"“ kann nicht gelesen werden.");
            writeNew(m_beside / name, content.bytes);
            ++files;
        }
    }
    return files;
}

void FolderCopy::putInPlace() {
    std::error_code failed;
    fs::remove(m_place, failed); // an empty one, which some systems do not rename over
    if (const int error = raw::rename(m_beside, m_place); error != 0)
        fail(error, u"Der Ordner „" + textFromPath(m_place) + u"“ kann nicht angelegt werden.");
    raw::syncFolder(m_place.parent_path());
}

Text obstacleIn(const std::function<void()>& work) {
    try {
        work();
        return {};
    } catch (const std::exception& failure) {
        return sentenceOf(failure);
    }
}

} // namespace zeugnis
