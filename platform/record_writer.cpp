#include "platform/record_writer.h"

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/whole_file.h"

namespace zeugnis {

RecordWriter::RecordWriter(const Arbeitsverzeichnis& directory, TextView name)
    : m_directory(directory), m_name(name) {
    static_cast<void>(m_directory.path(m_name));
}

RecordWriter::~RecordWriter() {
    if (m_closed)
        return;
    try {
        close();
    } catch (const Laufzeitfehler&) {
        // The failure that got us here is the one to report.
    }
}

void RecordWriter::begin() {
    m_recordStart = m_content.size();
    m_inRecord = true;
}

void RecordWriter::add(int number) {
    if (m_content.size() > m_recordStart)
        m_content += u',';
    m_content += textFromNumber(number);
}

void RecordWriter::add(TextView text) {
    if (m_content.size() > m_recordStart)
        m_content += u',';
    m_content += u'"';
    m_content += text;
    m_content += u'"';
}

void RecordWriter::end() {
    m_content += Zeilenende;
    m_inRecord = false;
}

void RecordWriter::rawLine(TextView line) {
    m_content += line;
    m_content += Zeilenende;
}

void RecordWriter::close() {
    m_closed = true;
    if (m_inRecord)
        m_content.resize(m_recordStart);
    writeWholeFile(m_directory, m_name, encodeWindows1252(m_content));
}

} // namespace zeugnis
