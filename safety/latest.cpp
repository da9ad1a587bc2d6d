#include "safety/latest.h"

#include "files/file_catalogue.h"
#include "platform/path_text.h"
#include "platform/raw_file.h"
#include "safety/actions.h"
#include "safety/layouts.h"
#include "safety/seal.h"

#include <algorithm>

namespace zeugnis::safety {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view Kind = "zeugnis-zuletzt";
constexpr std::string_view Ending = ".zuletzt";

// One folder for all: "Daten%2FNamen.Txt.zuletzt"
std::string fileNameOf(std::string_view name) {
    std::string file;
    for (const char c : name)
        file += c == '/' ? "%2F" : c == '%' ? "%25" : std::string(1, c);
    return file + std::string(Ending);
}

std::string nameIn(std::string file) {
    file.resize(file.size() - Ending.size());
    for (const auto& [code, sign] : {std::pair("%2F", '/'), std::pair("%25", '%')})
        for (size_t at = file.find(code); at != std::string::npos; at = file.find(code, at + 1))
            file.replace(at, 3, 1, sign);
    return file;
}

} // namespace

bool Latest::covers(const std::string& name) {
    if (isReportList(name))
        return true;
    const Text shown = shownName(name);
    const Text data = Text(dateien::Daten) + u"\\";
    const Text copies = data + Text(dateien::Sicherheit);
    return sameIgnoringCase(TextView(shown).substr(0, data.size()), data) &&
           !sameIgnoringCase(TextView(shown).substr(0, copies.size()), copies) &&
           worthKeeping(name);
}

int Latest::keep(const std::string& name, std::string_view content) const {
    if (const int error = makeFolder(m_paths, m_paths.latest); error != 0)
        return error;
    const raw::Opened opened = raw::openForWriting(m_paths.latest / pathFromUtf8(fileNameOf(name)));
    if (opened.error != 0)
        return opened.error;
    const std::string bytes = sealed(Kind, content);
    int error = raw::write(opened.handle, bytes);
    if (error == 0)
        error = raw::truncate(opened.handle, bytes.size());
    const int closing = raw::close(opened.handle);
    return error != 0 ? error : closing;
}

std::optional<std::string> Latest::of(const std::string& name) const {
    const raw::Content content = raw::read(m_paths.latest / pathFromUtf8(fileNameOf(name)));
    if (content.error != 0)
        return std::nullopt;
    return unsealed(Kind, content.bytes);
}

std::vector<std::string>
Latest::names(const std::function<bool(const std::string& name)>& wanted) const {
    std::vector<std::string> taken;
    for (const fs::path& file : filesEndingIn(m_paths.latest, Ending))
        if (std::string name = nameIn(utf8FromPath(file.filename())); wanted(name) && of(name))
            taken.push_back(std::move(name));
    return taken;
}

} // namespace zeugnis::safety
