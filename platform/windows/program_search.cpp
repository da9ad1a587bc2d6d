#include "platform/program_search.h"

#include "platform/process.h"
#include "platform/windows/windows_text.h"

#include <array>

namespace zeugnis {
namespace {

constexpr std::wstring_view AppPaths = L"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";
constexpr std::wstring_view Verbatim = L"\\\\?\\";

} // namespace

std::optional<std::filesystem::path> registeredProgram(TextView name) {
    const std::wstring key = std::wstring(AppPaths) + wideFromText(name);
    for (HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        std::array<wchar_t, 1024> value{};
        DWORD bytes = sizeof value;
        // The names in it ("%ProgramFiles%") are put in by the call.
        if (::RegGetValueW(root, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, value.data(),
                           &bytes) != ERROR_SUCCESS)
            continue;
        std::wstring path(value.data());
        std::erase(path, L'"'); // some stand in quotes
        std::error_code ignored;
        if (std::filesystem::is_regular_file(path, ignored))
            return path;
    }
    return std::nullopt;
}

std::vector<std::filesystem::path> dictionaryFolders() {
    return {programFile().parent_path() / "dictionaries"};
}

// Hunspell takes a name that begins like this for UTF-8.
std::string nameForCLibrary(const std::filesystem::path& file) {
    std::wstring name = std::filesystem::absolute(file).make_preferred().native();
    if (!name.starts_with(Verbatim))
        name.insert(0, Verbatim);
    return utf8FromText(textFromWide(name));
}

bool drawsWithoutDisplay() { return true; }

} // namespace zeugnis
