#include "files/school_data.h"

#include "files/file_catalogue.h"
#include "platform/record_reader.h"
#include "platform/record_writer.h"

#include <algorithm>
#include <array>

namespace zeugnis {
namespace {

constexpr std::array<Text Schuldaten::*, BasisdatenFelder> Felder =
    std::to_array<Text Schuldaten::*>({
        &Schuldaten::Schulname,
        &Schuldaten::Schulzusatz,
        &Schuldaten::Schulanschrift,
        &Schuldaten::Ausgabeort,
        &Schuldaten::Ausgabedatum,
        &Schuldaten::Schuljahr,
        &Schuldaten::Halbjahr,
        &Schuldaten::NaechstesSchuljahr,
        &Schuldaten::Konferenzdatum,
        &Schuldaten::Klassenleitung,
    });

} // namespace

Schuldaten BasisdatenLesen(const Arbeitsverzeichnis& verzeichnis, int felder) {
    RecordReader reader(verzeichnis, dateien::Basisdaten);
    Schuldaten daten;
    for (int i = 0; i < felder; ++i)
        daten.*Felder.at(static_cast<size_t>(i)) = reader.text();
    return daten;
}

Text NaechstesSchuljahrNach(const Text& schuljahr) {
    const int jahr = numberFromText(TextView(schuljahr).substr(0, 4),
                                    u"Die Jahreszahl am Anfang des Schuljahres");
    return textFromNumber(jahr + 1) + u"/" + textFromNumber(jahr + 2);
}

bool IstZahl(TextView text, int zahl) {
    const Text wert = trimmed(text);
    TextView ziffern = wert;
    if (ziffern.starts_with(u'+'))
        ziffern.remove_prefix(1);
    ziffern.remove_prefix(std::min(ziffern.find_first_not_of(u'0'), ziffern.size()));
    return ziffern == textFromNumber(zahl);
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
