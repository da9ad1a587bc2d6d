#include "documents/app/temporary_folder.h"

#include "documents/app/document_files.h"
#include "documents/app/review_document.h"
#include "platform/path_text.h"
#include "platform/raw_file.h"
#include "toolkit/qt_text.h"

#include <QDir>

#include <chrono>
#include <system_error>

namespace zeugnis::dokumente {
namespace fs = std::filesystem;
namespace {

constexpr TextView Prefix = u"zeugnisdokumente-";
constexpr const char* LockFile = "offen";
constexpr std::chrono::minutes JustMade{1};
constexpr std::chrono::hours Week{24 * 7};

fs::path pathOf(const QString& path) { return path.toStdU16String(); }

bool isOlder(const fs::path& file, std::chrono::seconds age) {
    std::error_code failed;
    const auto time = fs::last_write_time(file, failed);
    return !failed && fs::file_time_type::clock::now() - time > age;
}

bool isInUse(const fs::path& folder) {
    std::error_code ignored;
    const fs::path lock = folder / LockFile;
    if (!fs::exists(lock, ignored))
        return !isOlder(folder, JustMade);
    const raw::Opened opened = raw::openForWriting(lock);
    if (opened.error != 0)
        return true; // of another user
    const bool held = raw::tryLock(opened.handle) == raw::Lock::Held;
    raw::close(opened.handle);
    return held;
}

bool isEdited(const fs::path& folder) {
    std::error_code ignored;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored)) {
        if (entry.path().extension() != ".doc")
            continue;
        fs::path pdf = entry.path();
        pdf.replace_extension(".pdf");
        if (WirdBearbeitet({.Name = {}, .Doc = entry.path(), .Pdf = pdf}))
            return !isOlder(entry.path(), Week);
    }
    return false;
}

} // namespace

TemporaryFolder::TemporaryFolder()
    : m_folder(QDir::tempPath() + QLatin1Char('/') + qString(Prefix) + QStringLiteral("XXXXXX")) {
    const raw::Opened opened = raw::openForWriting(path() / LockFile);
    m_lock = opened.handle;
    if (m_lock >= 0)
        raw::tryLock(m_lock);
}

TemporaryFolder::~TemporaryFolder() {
    if (m_lock >= 0)
        raw::close(m_lock);
}

fs::path TemporaryFolder::path() const { return pathOf(m_folder.path()); }

void RemoveLeftFolders() {
    std::error_code failed;
    std::error_code ignored;
    for (fs::directory_iterator entry(pathOf(QDir::tempPath()), failed), end;
         !failed && entry != end; entry.increment(failed)) {
        const fs::path& folder = entry->path();
        if (textFromPath(folder.filename()).starts_with(Prefix) && entry->is_directory(ignored) &&
            !entry->is_symlink(ignored) && !isInUse(folder) && !isEdited(folder))
            fs::remove_all(folder, ignored);
    }
}

} // namespace zeugnis::dokumente
