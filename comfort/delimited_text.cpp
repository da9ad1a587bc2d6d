#include "comfort/delimited_text.h"

#include "platform/code_page.h"

#include <algorithm>
#include <array>

namespace zeugnis {
namespace {

constexpr char16_t Quote = u'"';
constexpr std::array<char16_t, 3> Separators = {u';', u'\t', u','};
constexpr int LinesLookedAt = 5;

bool isBlank(char16_t sign) { return sign == u' ' || sign == u'\t' || sign == u'\u00A0'; }

Text cellText(Text cell) {
    std::replace_if(
        cell.begin(), cell.end(), [](char16_t c) { return c == u'\r' || c == u'\n'; }, u' ');
    const auto begin = std::find_if_not(cell.begin(), cell.end(), isBlank);
    const auto end = std::find_if_not(cell.rbegin(), Text::reverse_iterator(begin), isBlank);
    return {begin, end.base()};
}

/// Goes over a text and tells what is inside quotes. A quote opens a cell only at its beginning.
class Records {
  public:
    Records(TextView text, char16_t separator) : m_text(text), m_separator(separator) {}

    std::vector<Tabellenzeile> all() {
        while (m_place < m_text.size())
            step();
        if (!m_cell.empty() || !m_record.empty())
            endRecord();
        return std::move(m_records);
    }

  private:
    void step() {
        const char16_t sign = m_text[m_place++];
        if (m_quoted) {
            insideQuotes(sign);
        } else if (sign == Quote && cellText(m_cell).empty()) {
            m_cell.clear();
            m_quoted = true;
        } else if (sign == m_separator) {
            endCell();
        } else if (sign == u'\r' || sign == u'\n') {
            if (sign == u'\r' && next() == u'\n')
                ++m_place;
            endRecord();
        } else {
            m_cell += sign;
        }
    }

    void insideQuotes(char16_t sign) {
        if (sign != Quote) {
            m_cell += sign;
        } else if (next() == Quote) {
            m_cell += sign;
            ++m_place;
        } else {
            m_quoted = false;
        }
    }

    [[nodiscard]] char16_t next() const {
        return m_place < m_text.size() ? m_text[m_place] : u'\0';
    }

    void endCell() {
        m_record.push_back(cellText(std::move(m_cell)));
        m_cell.clear();
    }

    void endRecord() {
        endCell();
        if (std::ranges::all_of(m_record, &Text::empty))
            m_record.clear();
        m_records.push_back(std::move(m_record));
        m_record.clear();
    }

    TextView m_text;
    char16_t m_separator;
    size_t m_place = 0;
    bool m_quoted = false;
    Text m_cell;
    Tabellenzeile m_record;
    std::vector<Tabellenzeile> m_records;
};

char16_t separatorOf(TextView text) {
    std::array<int, Separators.size()> seen{};
    bool quoted = false;
    int lines = 0;
    for (const char16_t sign : text) {
        if (sign == Quote)
            quoted = !quoted;
        if (quoted)
            continue;
        if (sign == u'\n' && ++lines == LinesLookedAt)
            break;
        const auto* const found = std::ranges::find(Separators, sign);
        if (found != Separators.end())
            ++seen.at(static_cast<size_t>(found - Separators.begin()));
    }
    return Separators.at(static_cast<size_t>(std::ranges::max_element(seen) - seen.begin()));
}

} // namespace

Text textFromSpreadsheet(std::string_view bytes) {
    constexpr std::string_view Mark = "\xEF\xBB\xBF";
    if (bytes.starts_with(Mark))
        return textFromUtf8(bytes.substr(Mark.size()));
    Text text = textFromUtf8(bytes);
    return text.find(u'\uFFFD') == Text::npos ? text : decodeWindows1252(bytes);
}

std::vector<Tabellenzeile> delimitedRecords(TextView text) {
    return Records(text, separatorOf(text)).all();
}

} // namespace zeugnis
