#include "masterdata/school_data.h"

#include "platform/record_reader.h"
#include "platform/record_writer.h"
#include "shell/file_catalogue.h"

#include <array>

namespace zeugnis {
namespace {

constexpr std::array<Text Schuldaten::*, BasisdatenFelder> Felder = {
    &Schuldaten::Schulname,      &Schuldaten::Schulzusatz,        &Schuldaten::Schulanschrift,
    &Schuldaten::Ausgabeort,     &Schuldaten::Ausgabedatum,       &Schuldaten::Schuljahr,
    &Schuldaten::Halbjahr,       &Schuldaten::NaechstesSchuljahr, &Schuldaten::Konferenzdatum,
    &Schuldaten::Klassenleitung,
};

} // namespace

Schuldaten BasisdatenLesen(const Arbeitsverzeichnis& verzeichnis, int felder) {
    RecordReader reader(verzeichnis, dateien::Basisdaten);
    Schuldaten daten;
    for (int i = 0; i < felder; ++i)
        daten.*Felder.at(static_cast<size_t>(i)) = reader.text();
    return daten;
}

void BasisdatenSchreiben(const Arbeitsverzeichnis& verzeichnis, const Schuldaten& daten) {
    RecordWriter writer(verzeichnis, dateien::Basisdaten);
    writer.begin();
    for (const auto feld : Felder)
        writer.add(daten.*feld);
    writer.end();
    writer.close();
}

} // namespace zeugnis
