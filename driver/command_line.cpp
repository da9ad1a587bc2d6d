#include "driver/command_line.h"

#include <array>
#include <cstdio>

namespace zeugnis::driver {
namespace {

class Scanner {
  public:
    explicit Scanner(Text line) : m_line(std::move(line)) {}

    std::vector<Word> words() {
        std::vector<Word> result;
        for (;;) {
            while (more() && (peek() == u' ' || peek() == u'\t' || peek() == u'\r'))
                ++m_at;
            if (!more())
                return result;
            result.push_back(peek() == u'"' ? quotedWord() : bareWord());
        }
    }

  private:
    [[nodiscard]] bool more() const { return m_at < m_line.size(); }
    [[nodiscard]] char16_t peek() const { return m_line[m_at]; }

    char16_t next() {
        if (!more())
            throw CommandError("the text in double quotes does not end");
        return m_line[m_at++];
    }

    Word bareWord() {
        const size_t end = std::min(m_line.find_first_of(u" \t\r", m_at), m_line.size());
        Word word{m_line.substr(m_at, end - m_at), false};
        m_at = end;
        return word;
    }

    Word quotedWord() {
        Word word{{}, true};
        ++m_at;
        for (char16_t unit = next(); unit != u'"'; unit = next())
            word.text += unit == u'\\' ? escape() : unit;
        return word;
    }

    char16_t escape() {
        const char16_t kind = next();
        switch (kind) {
        case u'"':
        case u'\\':
        case u'/':
            return kind;
        case u'b':
            return u'\b';
        case u'f':
            return u'\f';
        case u'n':
            return u'\n';
        case u'r':
            return u'\r';
        case u't':
            return u'\t';
        case u'u':
            return hexUnit();
        default:
            throw CommandError("unknown escape in a text");
        }
    }

    char16_t hexUnit() {
        unsigned value = 0;
        for (int i = 0; i < 4; ++i) {
            const char16_t digit = next();
            if (digit >= u'0' && digit <= u'9')
                value = value * 16 + (digit - u'0');
            else if ((digit | 0x20) >= u'a' && (digit | 0x20) <= u'f')
                value = value * 16 + 10 + ((digit | 0x20U) - u'a');
            else
                throw CommandError("\\u needs four hexadecimal digits");
        }
        return static_cast<char16_t>(value);
    }

    Text m_line;
    size_t m_at = 0;
};

} // namespace

std::vector<Word> splitCommand(std::string_view line) {
    return Scanner(textFromUtf8(line)).words();
}

std::string jsonString(TextView text) {
    Text json = u"\"";
    for (const char16_t unit : text) {
        switch (unit) {
        case u'"':
            json += u"\\\"";
            break;
        case u'\\':
            json += u"\\\\";
            break;
        case u'\r':
            json += u"\\r";
            break;
        case u'\n':
            json += u"\\n";
            break;
        case u'\t':
            json += u"\\t";
            break;
        case u'\b':
            json += u"\\b";
            break;
        case u'\f':
            json += u"\\f";
            break;
        default:
            if (unit < u' ') {
                std::array<char, 8> escape{};
                std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(unit));
                json += textFromUtf8(escape.data());
            } else {
                json += unit;
            }
        }
    }
    return utf8FromText(json + u"\"");
}

} // namespace zeugnis::driver
