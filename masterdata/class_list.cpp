#include "masterdata/class_list.h"

#include "files/file_catalogue.h"
#include "platform/record_reader.h"

namespace zeugnis {
namespace {

int zeilenSchreibenUndLesen(const Arbeitsverzeichnis& verzeichnis, const std::vector<Text>& zeilen,
                            Schuelertabelle<Schueler>& kinder) {
    RecordWriter writer(verzeichnis, dateien::Namen1);
    for (const Text& zeile : zeilen)
        writer.rawLine(zeile);
    writer.close();

    int anzahl = 0;
    for (RecordReader reader(verzeichnis, dateien::Namen1); !reader.atEnd(); ++anzahl)
        for (Text* feld : FelderVon(kinder[anzahl]))
            *feld = reader.text();
    return anzahl;
}

} // namespace

void Klassenliste::NamenLaden(Arbeitsverzeichnis& verzeichnis) {
    NamenEinlesen(verzeichnis, *this, [this](int nummer) { Nummer[nummer] = nummer; });
    NummernBilden();
}

void Klassenliste::NummernBilden() {
    for (int i = 1; i <= Schuelerzahl; ++i) {
        NummerText[i] = (i < 10 ? u"0" : u"") + textFromNumber(i);
        Nummer[i] = i;
    }
}

void Klassenliste::SchuelerEntfernen(int stelle) {
    for (int i = stelle; i <= Schuelerzahl; ++i)
        Kinder[i] = Kinder[i + 1];
    --Schuelerzahl;
}

bool Klassenliste::SchuelerAnfuegen() {
    Kinder[Schuelerzahl] = {};
    ++Schuelerzahl;
    if (Schuelerzahl > SchuelerHoechstens)
        return false;
    NummernBilden();
    return true;
}

void Klassenliste::BildnamenBilden() {
    for (int i = 0; i < Schuelerzahl; ++i)
        BildDatei[i] = BildnameVon(Kinder[i]);
}

void Klassenliste::NamenSchreiben(const Arbeitsverzeichnis& verzeichnis) const {
    RecordWriter writer(verzeichnis, dateien::Namen);
    for (int i = 0; i < Schuelerzahl; ++i)
        NamenssatzSchreiben(writer, Nummer[i + 1], Klasse, Kinder[i]);
    writer.close();
}

void Klassenliste::BildlisteSchreiben(const Arbeitsverzeichnis& verzeichnis) const {
    RecordWriter writer(verzeichnis, dateien::Bildliststeuer);
    for (int i = 0; i < Schuelerzahl; ++i)
        writer.record(Nummer[i + 1], Klasse, Kinder[i].Nachname, Kinder[i].Vorname, BildDatei[i]);
    writer.close();
}

void Klassenliste::LeereListeSchreiben(Arbeitsverzeichnis& verzeichnis) const {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    RecordWriter writer(verzeichnis, dateien::Namen);
    NamenssatzSchreiben(writer, 1, Klasse, {});
    writer.close();
}

void Klassenliste::OrdnungUebernehmen(Arbeitsverzeichnis& verzeichnis,
                                      const std::vector<Text>& zeilen) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    const int anzahl = zeilenSchreibenUndLesen(verzeichnis, zeilen, Kinder);
    RecordWriter writer(verzeichnis, dateien::Namen);
    for (int i = 0; i < anzahl; ++i)
        NamenssatzSchreiben(writer, i + 1, Klasse, Kinder[i]);
    writer.close();
}

Text Sortierzeile(const Schueler& kind) {
    Text zeile;
    for (const Text* feld : FelderVon(kind))
        zeile += (zeile.empty() ? u"\"" : u",\"") + *feld + u"\"";
    return zeile;
}

} // namespace zeugnis
