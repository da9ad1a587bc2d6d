#include "platform/working_directory.h"

#include "platform/failure.h"

#include <optional>
#include <system_error>
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

fs::path pathFromText(TextView name) {
    const std::string utf8 = utf8FromText(name);
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

Text textFromPath(const fs::path& path) {
    const std::u8string utf8 = path.u8string();
    return textFromUtf8(std::string(utf8.begin(), utf8.end()));
}

std::optional<fs::path> entryIn(const fs::path& folder, TextView name) {
    std::error_code ignored;
    fs::path exact = folder / pathFromText(name);
    if (fs::exists(fs::symlink_status(exact, ignored)))
        return exact;
    for (fs::directory_iterator entry(folder, ignored), end; !ignored && entry != end;
         entry.increment(ignored)) {
        if (sameIgnoringCase(textFromPath(entry->path().filename()), name))
            return entry->path();
    }
    return std::nullopt;
}

// The folder that a row of names leads to, or nothing if one of them is missing.
std::optional<fs::path> folderBehind(const fs::path& start, const std::vector<Text>& names,
                                     size_t count) {
    fs::path folder = start;
    for (size_t i = 0; i < count; ++i) {
        if (names[i] == u"..") {
            folder = folder.parent_path();
            continue;
        }
        const std::optional<fs::path> next = entryIn(folder, names[i]);
        std::error_code ignored;
        if (!next || !fs::is_directory(*next, ignored))
            return std::nullopt;
        folder = *next;
    }
    return folder;
}

} // namespace

Arbeitsverzeichnis::Arbeitsverzeichnis(const fs::path& programFolder) {
    std::error_code failed;
    m_base = fs::canonical(programFolder, failed);
    if (failed || !fs::is_directory(m_base, failed))
        throw Laufzeitfehler(Fehlerart::PathNotFound, u"Der Programmordner „" +
                                                          textFromPath(programFolder) +
                                                          u"“ ist nicht vorhanden.");
    m_current = m_base;
}

void Arbeitsverzeichnis::wechseln(TextView folder) {
    const std::vector<Text> names = components(folder);
    const std::optional<fs::path> target = folderBehind(m_current, names, names.size());
    if (!target)
        throw Laufzeitfehler(Fehlerart::PathNotFound,
                             u"Der Ordner „" + anzeigename(folder) + u"“ ist nicht vorhanden.");
    m_current = *target;
}

fs::path Arbeitsverzeichnis::pfad(TextView name) const {
    const std::vector<Text> names = components(name);
    if (names.empty())
        return m_current;
    const std::optional<fs::path> folder = folderBehind(m_current, names, names.size() - 1);
    std::error_code ignored;
    if (!folder || !fs::is_directory(*folder, ignored))
        throw Laufzeitfehler(Fehlerart::PathNotFound,
                             u"Der Ordner zu „" + anzeigename(name) + u"“ ist nicht vorhanden.");
    return entryIn(*folder, names.back()).value_or(*folder / pathFromText(names.back()));
}

Text Arbeitsverzeichnis::anzeigename(TextView name) const {
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
