#include "files/sibank_path.h"

#include "files/file_catalogue.h"
#include "platform/record_reader.h"
#include "platform/record_writer.h"

namespace zeugnis {

Text SibankpfadLesen(const Arbeitsverzeichnis& verzeichnis) {
    return RecordReader(verzeichnis, dateien::Sibankpfad).text();
}

void SibankpfadSchreiben(const Arbeitsverzeichnis& verzeichnis, const Text& pfad) {
    RecordWriter(verzeichnis, dateien::Sibankpfad).record(pfad).close();
}

std::array<Text, 2> StandardpfadeLesen(const Arbeitsverzeichnis& verzeichnis) {
    RecordReader reader(verzeichnis, dateien::Standardpfade);
    std::array<Text, 2> pfade;
    for (Text& pfad : pfade)
        pfad = reader.text();
    return pfade;
}

} // namespace zeugnis
