#include "files/insertion_files.h"

#include "platform/record_writer.h"

namespace zeugnis {

Platzhaltersatz PlatzhaltersatzLesen(RecordReader& reader) {
    Platzhaltersatz satz;
    satz.Platzhalter = reader.text();
    satz.Hinweis = reader.text();
    return satz;
}

std::vector<Text> EinfuegetexteLesen(const Arbeitsverzeichnis& verzeichnis, TextView datei) {
    std::vector<Text> texte;
    for (RecordReader reader(verzeichnis, datei); !reader.atEnd();)
        texte.push_back(reader.text());
    return texte;
}

void EinfuegetexteSchreiben(const Arbeitsverzeichnis& verzeichnis, TextView datei,
                            std::span<const Text> texte) {
    RecordWriter writer(verzeichnis, datei);
    for (const Text& text : texte)
        writer.record(text);
    writer.close();
}

int AktivFormLesen(const Arbeitsverzeichnis& verzeichnis) {
    return RecordReader(verzeichnis, dateien::AktivForm).integer();
}

void AktivFormSchreiben(const Arbeitsverzeichnis& verzeichnis, int taste) {
    RecordWriter(verzeichnis, Text(dateien::Daten) + u"\\" + Text(dateien::AktivForm))
        .record(taste)
        .close();
}

} // namespace zeugnis
