#include "safety/typed_format.h"

#include "safety/seal.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace zeugnis::safety {
namespace {

constexpr std::string_view Kind = "zeugnis-getippt";
constexpr size_t Fields = 6;

// So that tabs separate fields and line ends separate lines.
constexpr std::array<std::pair<char, char>, 4> Escapes = {
    {{'\\', '\\'}, {'\t', 't'}, {'\r', 'r'}, {'\n', 'n'}}};

std::string escaped(std::string_view text) {
    std::string line;
    for (const char c : text) {
        const auto* escape = std::find_if(Escapes.begin(), Escapes.end(),
                                          [c](const auto& one) { return one.first == c; });
        if (escape != Escapes.end())
            line += '\\';
        line += escape != Escapes.end() ? escape->second : c;
    }
    return line;
}

std::string unescaped(std::string_view line) {
    std::string text;
    for (size_t at = 0; at < line.size(); ++at) {
        char c = line[at];
        if (c == '\\' && at + 1 < line.size()) {
            ++at;
            for (const auto& [sign, letter] : Escapes)
                if (line[at] == letter)
                    c = sign;
        }
        text += c;
    }
    return text;
}

std::vector<std::string> split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    while (true) {
        const size_t end = text.find(separator);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + 1);
    }
}

std::optional<size_t> numberIn(const std::string& text) {
    size_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

} // namespace

std::string runBytes(const Run& run) {
    std::string content = stampOf(run.when) + '\n';
    for (const auto& [screen, all] : run.screens)
        for (const Typed& one : all)
            content += escaped(utf8FromText(screen)) + '\t' + escaped(one.file) + '\t' +
                       escaped(utf8FromText(one.pupil)) + '\t' + std::to_string(one.number) + '\t' +
                       std::to_string(one.field) + '\t' + escaped(utf8FromText(one.value)) + '\n';
    return sealed(Kind, content);
}

std::optional<Run> runFrom(std::string_view bytes) {
    const std::optional<std::string> content = unsealed(Kind, bytes);
    if (!content)
        return std::nullopt;
    std::vector<std::string> lines = split(*content, '\n');
    const std::optional<Moment> when = momentFrom(lines.front());
    if (!when)
        return std::nullopt;
    Run run{*when, {}};
    lines.erase(lines.begin());
    for (const std::string& line : lines) {
        const std::vector<std::string> fields = split(line, '\t');
        if (fields.size() != Fields)
            continue;
        const std::optional<size_t> number = numberIn(fields[3]);
        const std::optional<size_t> field = numberIn(fields[4]);
        if (number && field)
            run.screens[textFromUtf8(unescaped(fields[0]))].push_back(
                {unescaped(fields[1]), textFromUtf8(unescaped(fields[2])), *number, *field,
                 textFromUtf8(unescaped(fields[5]))});
    }
    return run;
}

} // namespace zeugnis::safety
