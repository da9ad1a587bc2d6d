#include "platform/record_reader.h"

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <utility>

namespace zeugnis {
namespace {

constexpr TextView Separators = u",\r\n";

} // namespace

RecordReader::RecordReader(const Arbeitsverzeichnis& directory, TextView name)
    : RecordReader(decodeWindows1252(readWholeFile(directory, name)), directory.displayName(name)) {
}

RecordReader::RecordReader(Text content, Text shownName)
    : m_content(std::move(content)), m_shownName(std::move(shownName)) {}

Text RecordReader::text() { return nextField(); }

int RecordReader::integer() {
    const Text field = nextField();
    return numberFromText(field, place());
}

void RecordReader::skip(int count) {
    for (int i = 0; i < count; ++i)
        nextField();
}

int RecordReader::row(int number, int rows) const {
    if (number < 0 || number >= rows)
        throw Laufzeitfehler(Fehlerart::IndexOutOfRange,
                             place() + u": Die laufende Nummer " + textFromNumber(number) +
                                 u" davor führt auf keine der Zeilen 0 bis " +
                                 textFromNumber(rows - 1) + u".");
    return number;
}

Text RecordReader::place() const {
    return u"Datei „" + m_shownName + u"“, Datensatz " + textFromNumber(m_lineOfField) +
           u", Feld " + textFromNumber(m_lastField);
}

Text RecordReader::nextField() {
    if (atEnd())
        throw Laufzeitfehler(Fehlerart::EndOfFile,
                             place() +
                                 u": Danach fehlt mindestens ein Feld; die Datei ist zu Ende.");
    m_lineOfField = m_line;
    m_lastField = ++m_field;
    while (!atEnd() && m_content[m_at] == u' ')
        ++m_at;

    if (!atEnd() && m_content[m_at] == u'"') {
        const size_t first = m_at + 1;
        const size_t closing = m_content.find(u'"', first);
        Text value = m_content.substr(first, closing - first);
        m_at = closing == Text::npos
                   ? m_content.size()
                   : std::min(m_content.find_first_of(Separators, closing + 1), m_content.size());
        skipDelimiter();
        return value;
    }

    const size_t end = std::min(m_content.find_first_of(Separators, m_at), m_content.size());
    Text value = trimmed(TextView(m_content).substr(m_at, end - m_at));
    m_at = end;
    skipDelimiter();
    return value;
}

void RecordReader::skipDelimiter() {
    if (atEnd())
        return;
    const char16_t delimiter = m_content[m_at++];
    if (delimiter == u',')
        return;
    if (delimiter == u'\r' && !atEnd() && m_content[m_at] == u'\n')
        ++m_at;
    ++m_line;
    m_field = 0;
}

} // namespace zeugnis
