#include "platform/working_directory.h"

#include "platform/failure.h"
#include "platform/path_text.h"
#include "platform/stored_name.h"
#include "platform/write_watcher.h"

#include <algorithm>
#include <optional>
#include <system_error>
#include <unicode/unorm2.h>
#include <vector>

namespace zeugnis {
namespace fs = std::filesystem;
namespace {

std::vector<Text> components(TextView name) {
    std::vector<Text> parts;
    while (!name.empty()) {
        const size_t end = name.find_first_of(u"\\/");
        const TextView part = name.substr(0, end);
        if (!part.empty() && part != u".")
            parts.emplace_back(part);
        name.remove_prefix(end == TextView::npos ? name.size() : end + 1);
    }
    return parts;
}

// Some disks and copying tools tell an umlaut as a letter and its dots.
Text composed(TextView name) {
    if (std::all_of(name.begin(), name.end(), [](char16_t unit) { return unit < 0x80; }))
        return Text(name);
    UErrorCode error = U_ZERO_ERROR;
    const UNormalizer2* form = unorm2_getNFCInstance(&error);
    Text result(name.size() * 3, u'\0');
    const int32_t length =
        unorm2_normalize(form, name.data(), static_cast<int32_t>(name.size()), result.data(),
                         static_cast<int32_t>(result.size()), &error);
    if (U_FAILURE(error) != 0)
        return Text(name);
    result.resize(static_cast<size_t>(length));
    return result;
}

struct Entry {
    std::optional<fs::path> path = std::nullopt;
    bool sure =
        true; ///< without a path: whether there is none, or the folder could not be searched
};

bool isMissing(const std::error_code& error) {
    return !error || error == std::errc::no_such_file_or_directory ||
           error == std::errc::not_a_directory;
}

Entry entryIn(const fs::path& folder, TextView name) {
    std::error_code failed;
    const fs::path exact = folder / pathFromText(name);
    if (fs::exists(fs::symlink_status(exact, failed)))
        return {asStored(exact)};
    if (!isMissing(failed))
        return {.sure = false};
    fs::directory_iterator entry(folder, failed);
    for (const fs::directory_iterator end; !failed && entry != end; entry.increment(failed)) {
        if (sameIgnoringCase(composed(textFromPath(entry->path().filename())), composed(name)))
            return {entry->path()};
    }
    return {.sure = isMissing(failed)};
}

// The folder that a row of names leads to.
Entry folderBehind(const fs::path& start, const std::vector<Text>& names, size_t count) {
    fs::path folder = start;
    for (size_t i = 0; i < count; ++i) {
        if (names[i] == u"..") {
            folder = folder.parent_path();
            continue;
        }
        Entry next = entryIn(folder, names[i]);
        if (!next.path)
            return next;
        std::error_code failed;
        if (!fs::is_directory(*next.path, failed))
            return {.sure = isMissing(failed)};
        folder = *next.path;
    }
    return {folder};
}

[[noreturn]] void failWithout(bool sure, const Text& folder, WriteWatcher* watcher) {
    if (sure)
        throw Laufzeitfehler(Fehlerart::PathNotFound,
                             u"Der Ordner " + folder + u" ist nicht vorhanden.");
    if (watcher != nullptr)
        watcher->machineFailed();
    throw Laufzeitfehler(Fehlerart::AccessDenied,
                         u"Der Ordner " + folder +
                             u" kann nicht geöffnet werden: Der Zugriff wurde verweigert, oder der "
                             u"Datenträger meldet einen Fehler.");
}

} // namespace

fs::path startFolder() {
    std::error_code failed;
    fs::path folder = fs::current_path(failed);
    if (failed)
        throw Laufzeitfehler(Fehlerart::PathNotFound,
                             u"Der Ordner, in dem das Programm gestartet wurde, ist nicht mehr "
                             u"vorhanden. Starten Sie es bitte noch einmal in seinem Ordner.");
    return folder;
}

Arbeitsverzeichnis::Arbeitsverzeichnis(const fs::path& programFolder) {
    std::error_code failed;
    m_base = fs::canonical(programFolder, failed);
    if (failed || !fs::is_directory(m_base, failed))
        throw Laufzeitfehler(Fehlerart::PathNotFound, u"Der Programmordner „" +
                                                          textFromPath(programFolder) +
                                                          u"“ ist nicht vorhanden.");
    m_current = m_base;
}

void Arbeitsverzeichnis::change(TextView folder) {
    const std::vector<Text> names = components(folder);
    const Entry target = folderBehind(m_current, names, names.size());
    if (!target.path)
        failWithout(target.sure, u"„" + displayName(folder) + u"“", m_watcher);
    m_current = *target.path;
}

fs::path Arbeitsverzeichnis::path(TextView name) const {
    const std::vector<Text> names = components(name);
    if (names.empty())
        return m_current;
    const Entry folder = folderBehind(m_current, names, names.size() - 1);
    std::error_code failed;
    if (!folder.path || !fs::is_directory(*folder.path, failed))
        failWithout(folder.sure && isMissing(failed), u"zu „" + displayName(name) + u"“",
                    m_watcher);
    const Entry entry = entryIn(*folder.path, names.back());
    // Else a file of another case might get a twin.
    if (!entry.path && !entry.sure)
        failWithout(false, u"zu „" + displayName(name) + u"“", m_watcher);
    return entry.path.value_or(*folder.path / pathFromText(names.back()));
}

Text Arbeitsverzeichnis::displayName(TextView name) const {
    Text shown = textFromPath(m_current.lexically_relative(m_base));
    if (shown.empty() || shown == u".")
        shown.clear();
    else
        shown += u'\\';
    shown += name;
    for (char16_t& unit : shown)
        if (unit == u'/')
            unit = u'\\';
    return shown;
}

} // namespace zeugnis
