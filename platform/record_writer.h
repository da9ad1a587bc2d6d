#pragma once

#include "platform/working_directory.h"

#include <concepts>

namespace zeugnis {

/// Composes a comma-record file in memory and writes it in one go. If a failure strikes before
/// close(), the records composed so far are what the file holds afterwards.
class RecordWriter {
  public:
    /// Fails with path-not-found if the file's folder does not exist. `directory` must outlive
    /// the writer and stand in the same folder until the end.
    RecordWriter(const Arbeitsverzeichnis& directory, TextView name);
    ~RecordWriter();
    RecordWriter(const RecordWriter&) = delete;
    RecordWriter& operator=(const RecordWriter&) = delete;

    /// One record: integers and texts in their order.
    template <typename... Fields>
    RecordWriter& record(const Fields&... fields) {
        begin();
        (add(fields), ...);
        end();
        return *this;
    }

    /// The same piece by piece, for records whose fields stand in tables.
    void begin();
    void add(int number);
    void add(TextView text);
    void end();

    /// A line as it stands.
    void rawLine(TextView line);

    /// Writes the file. Fails as writeWholeFile does. Must be called once, at the end.
    void close();

  private:
    const Arbeitsverzeichnis& m_directory;
    Text m_name;
    Text m_content;
    size_t m_recordStart = 0;
    bool m_inRecord = false;
    bool m_closed = false;
};

} // namespace zeugnis
