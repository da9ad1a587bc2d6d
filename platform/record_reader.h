#pragma once

#include "platform/working_directory.h"

#include <type_traits>

namespace zeugnis {

/// Reads the fields of a comma-record file one by one. A line end separates fields just as a
/// comma does, so the number and order of the reads is the format.
class RecordReader {
  public:
    /// Reads the whole file at once. Fails as readWholeFile does.
    RecordReader(const Arbeitsverzeichnis& directory, TextView name);

    /// Reads records that are already in memory; `shownName` names them in failures.
    RecordReader(Text content, Text shownName);

    [[nodiscard]] bool atEnd() const { return m_at >= m_content.size(); }

    /// The next field. Fails with end-of-file behind the last one; `integer` also with
    /// type-mismatch and, outside 16 bits, overflow.
    Text text();
    int integer();

    /// Reads over `count` fields of any type.
    void skip(int count);

    /// The row that the next record goes to, if it lies in a table of `rows` rows;
    /// otherwise fails with index-out-of-range and names the record.
    [[nodiscard]] int row(int number, int rows) const;

    /// The file, line and field that was read last, for failures.
    [[nodiscard]] Text place() const;

  private:
    Text nextField();
    void skipDelimiter();

    Text m_content;
    Text m_shownName;
    size_t m_at = 0;
    int m_line = 1;
    int m_field = 0;
    int m_lineOfField = 1;
    int m_lastField = 0;
};

/// Reads a file whose records begin with a running number. The number of one record decides the
/// row of the next one; the first goes to row 0. `readRest(reader, row, number)` takes the fields
/// behind the number; if it returns bool, false ends the reading. Returns the last number read,
/// 0 for an empty file. A row outside 0 to `rows` - 1 fails before the record is read.
template <typename ReadRest>
int readNumberedRecords(const Arbeitsverzeichnis& directory, TextView name, int rows,
                        ReadRest readRest) {
    RecordReader reader(directory, name);
    int number = 0;
    while (!reader.atEnd()) {
        const int row = reader.row(number, rows);
        number = reader.integer();
        if constexpr (std::is_same_v<decltype(readRest(reader, row, number)), bool>) {
            if (!readRest(reader, row, number))
                break;
        } else {
            readRest(reader, row, number);
        }
    }
    return number;
}

} // namespace zeugnis
