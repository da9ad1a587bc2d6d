#include "safety/records.h"

#include <algorithm>

namespace zeugnis::safety {
namespace {

bool isLineEnd(char16_t unit) { return unit == u'\r' || unit == u'\n'; }

class Lines {
  public:
    explicit Lines(TextView content) : m_content(content) {}

    std::vector<Record> all() {
        std::vector<Record> records;
        while (m_at < m_content.size())
            records.push_back(next());
        return records;
    }

  private:
    Record next() {
        Record record;
        while (true) {
            record.fields.push_back(field());
            if (m_at >= m_content.size())
                return record;
            if (m_content[m_at] != u',')
                break;
            ++m_at;
        }
        if (m_content.substr(m_at).starts_with(Zeilenende))
            ++m_at;
        ++m_at;
        record.complete = true;
        return record;
    }

    Field field() {
        while (m_at < m_content.size() && m_content[m_at] == u' ')
            ++m_at;
        Field field{.begin = m_at};
        if (m_at < m_content.size() && m_content[m_at] == u'"') {
            const size_t close = m_content.find(u'"', m_at + 1);
            field.quoted = true;
            field.closed = close != TextView::npos;
            const size_t end = field.closed ? close : m_content.size();
            field.value = m_content.substr(m_at + 1, end - m_at - 1);
            m_at = field.closed ? end + 1 : end;
            field.end = m_at;
            const size_t rest = delimiter();
            field.trailing = !trimmed(m_content.substr(m_at, rest - m_at)).empty();
            m_at = rest;
        } else {
            m_at = delimiter();
            field.value = trimmed(m_content.substr(field.begin, m_at - field.begin));
            field.end = m_at;
        }
        return field;
    }

    [[nodiscard]] size_t delimiter() const {
        const auto found =
            std::find_if(m_content.begin() + static_cast<std::ptrdiff_t>(m_at), m_content.end(),
                         [](char16_t unit) { return unit == u',' || isLineEnd(unit); });
        return static_cast<size_t>(found - m_content.begin());
    }

    TextView m_content;
    size_t m_at = 0;
};

} // namespace

std::vector<Record> recordsOf(TextView content) { return Lines(content).all(); }

} // namespace zeugnis::safety
