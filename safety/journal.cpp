#include "safety/journal.h"

#include "safety/seal.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace zeugnis::safety {
namespace {

constexpr std::string_view Head = "zeugnis-vorgang 1 ";
constexpr std::string_view File = "datei ";
constexpr std::string_view Same = "wie ";
constexpr std::string_view NoFile = "neu ";
constexpr std::string_view End = "getan ";
constexpr std::string_view Mark = " *";
constexpr size_t ChecksumLength = 16;

// A line that proves itself.
std::string markedLine(const std::string& line) {
    return line + std::string(Mark) + checksumText(line) + '\n';
}

// Names may hold any byte but these two, and lines must stay lines.
std::string escaped(std::string_view name) {
    std::string line;
    for (const char c : name)
        line += c == '\n' ? "%0A" : c == '%' ? "%25" : std::string(1, c);
    return line;
}

std::string unescaped(std::string_view line) {
    std::string name;
    while (!line.empty()) {
        const bool newline = line.starts_with("%0A");
        const bool percent = line.starts_with("%25");
        name += newline ? '\n' : percent ? '%' : line.front();
        line.remove_prefix(newline || percent ? 3 : 1);
    }
    return name;
}

struct ContentLine {
    std::string_view sum;
    size_t length;
    std::string name;
};

std::optional<ContentLine> contentLine(std::string_view rest) {
    const size_t blank = rest.find(' ', ChecksumLength + 1);
    if (rest.size() <= ChecksumLength || blank == std::string_view::npos)
        return std::nullopt;
    const std::string_view digits = rest.substr(ChecksumLength + 1, blank - ChecksumLength - 1);
    size_t length = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), length);
    if (error != std::errc() || end != digits.data() + digits.size())
        return std::nullopt;
    return ContentLine{rest.substr(0, ChecksumLength), length, unescaped(rest.substr(blank + 1))};
}

class Reading {
  public:
    explicit Reading(std::string_view bytes) : m_rest(bytes) {}

    Journal whole() {
        while (!m_rest.empty()) {
            const std::optional<std::string_view> line = nextLine();
            if (line && take(*line)) {
                // Only what stands in front of something whole is damage.
                m_journal.damaged = m_journal.damaged || m_skipped;
                m_skipped = false;
            } else {
                m_skipped = true;
            }
        }
        return std::move(m_journal);
    }

  private:
    // The next line if it is one of ours; the rest begins behind the line in any case.
    std::optional<std::string_view> nextLine() {
        const size_t end = m_rest.find('\n');
        const std::string_view line = m_rest.substr(0, end);
        m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
        const size_t tail = Mark.size() + ChecksumLength;
        if (end == std::string_view::npos || line.size() < tail)
            return std::nullopt;
        const std::string_view body = line.substr(0, line.size() - tail);
        if (line.substr(body.size()) != std::string(Mark) + checksumText(body))
            return std::nullopt;
        return body;
    }

    bool take(std::string_view line) {
        if (line.starts_with(Head))
            return takeHead(line.substr(Head.size()));
        if (line.starts_with(File))
            return takeContent(contentLine(line.substr(File.size())));
        if (line.starts_with(Same))
            return takeSame(contentLine(line.substr(Same.size())));
        if (line.starts_with(NoFile)) {
            m_journal.files.push_back({unescaped(line.substr(NoFile.size()))});
            return true;
        }
        if (line.starts_with(End)) {
            m_journal.action = textFromUtf8(line.substr(End.size()));
            return true;
        }
        return false;
    }

    bool takeHead(std::string_view stamp) {
        const std::optional<Moment> begin = momentFrom(stamp);
        m_journal.begin = begin.value_or(Moment());
        return begin.has_value();
    }

    bool takeContent(const std::optional<ContentLine>& line) {
        if (!line || line->length >= m_rest.size() || m_rest[line->length] != '\n')
            return false;
        const std::string_view content = m_rest.substr(0, line->length);
        if (checksumText(content) != line->sum)
            return false;
        m_rest.remove_prefix(line->length + 1);
        m_journal.files.push_back({line->name, std::string(content)});
        return true;
    }

    bool takeSame(const std::optional<ContentLine>& line) {
        if (!line)
            return false;
        const auto twin =
            std::find_if(m_journal.files.begin(), m_journal.files.end(), [&](const Former& file) {
                return file.content && file.content->size() == line->length &&
                       checksumText(*file.content) == line->sum;
            });
        if (twin == m_journal.files.end()) {
            m_journal.damaged = true;
            return false;
        }
        Former same{line->name, twin->content};
        m_journal.files.push_back(std::move(same));
        return true;
    }

    std::string_view m_rest;
    Journal m_journal;
    bool m_skipped = false;
};

} // namespace

std::string journalStem(Moment begin, int number) {
    std::string stem = stampOf(begin) + '-' + std::to_string(journalsPerSecond + number).substr(1);
    std::erase(stem, ':');
    stem.erase(7, 1);
    stem.erase(4, 1);
    std::replace(stem.begin(), stem.end(), ' ', '-');
    return stem;
}

std::string journalHead(Moment begin) { return markedLine(std::string(Head) + stampOf(begin)); }

std::string journalRecord(const Former& file, const std::vector<Former>& before) {
    if (!file.content)
        return markedLine(std::string(NoFile) + escaped(file.name));
    const bool known = std::any_of(before.begin(), before.end(), [&](const Former& other) {
        return other.content == file.content;
    });
    std::string record =
        markedLine(std::string(known ? Same : File) + checksumText(*file.content) + ' ' +
                   std::to_string(file.content->size()) + ' ' + escaped(file.name));
    if (!known)
        record.append(*file.content) += '\n';
    return record;
}

std::string journalEnd(const Text& action) {
    return markedLine(std::string(End) + escaped(utf8FromText(action)));
}

Journal readJournal(std::string_view bytes) { return Reading(bytes).whole(); }

} // namespace zeugnis::safety
