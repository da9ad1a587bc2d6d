#pragma once

#include "files/pupil_list.h"
#include "files/section_stores.h"
#include "platform/record_reader.h"

namespace zeugnis {

/// The stores by pupil hold one record per pupil in the order of the class list. Each record
/// begins with a number and this head.
struct Schuelerkopf {
    Text Klasse;
    Text Nachname;
    Text Vorname;
};

/// Reads what stands behind the number.
Schuelerkopf SchuelerkopfLesen(RecordReader& reader);

/// Fails with index-out-of-range if there is no slot left for the next record.
void PlatzPruefen(const RecordReader& reader, int platz);

/// Reads a store by position alone: `readRest(reader, slot, head)` takes the fields behind the
/// head. A 37th record fails with index-out-of-range.
template <typename ReadRest>
void JeSchuelerLesen(const Arbeitsverzeichnis& verzeichnis, const Speicherdatei& speicher,
                     ReadRest readRest) {
    RecordReader reader(verzeichnis, speicher.Datei);
    for (int platz = 0; !reader.atEnd(); ++platz) {
        PlatzPruefen(reader, platz);
        reader.skip(1);
        const Schuelerkopf kopf = SchuelerkopfLesen(reader);
        readRest(reader, platz, kopf);
    }
}

/// Reads a store by running number: `readRest(reader, slot)` takes the fields behind the head.
/// Returns false at the first record whose family name is not the class list's; that record has
/// been read, the rest has not. Fails with index-out-of-range for numbers outside the slots.
template <typename ReadRest>
bool JeSchuelerAbgleichen(const Arbeitsverzeichnis& verzeichnis, const Speicherdatei& speicher,
                          const Namensliste& liste, ReadRest readRest) {
    bool stimmt = true;
    readNumberedRecords(verzeichnis, speicher.Datei, Schuelerplaetze,
                        [&](RecordReader& reader, int platz, int nummer) -> bool {
                            const Schuelerkopf kopf = SchuelerkopfLesen(reader);
                            readRest(reader, platz);
                            const int kind = reader.row(nummer - 1, Schuelerplaetze);
                            stimmt = liste.Kinder[kind].Nachname == kopf.Nachname;
                            return stimmt;
                        });
    return stimmt;
}

/// Writes a file anew for the class list: `addRest(writer, slot)` adds the fields behind the head.
template <typename AddRest>
void JeSchuelerSchreiben(const Arbeitsverzeichnis& verzeichnis, TextView datei,
                         const Namensliste& liste, AddRest addRest) {
    RecordWriter writer(verzeichnis, datei);
    for (int platz = 0; platz < liste.Schuelerzahl; ++platz) {
        const Schueler& kind = liste.Kinder[platz];
        writer.begin();
        writer.add(platz + 1);
        writer.add(liste.Klasse);
        writer.add(kind.Nachname);
        writer.add(kind.Vorname);
        addRest(writer, platz);
        writer.end();
    }
    writer.close();
}

/// The texts, or the locks, of all sections of a store, in the order of its fields.
template <typename T, int Abschnitte>
using Abschnittswerte = Tabelle<Schuelertabelle<T>, Abschnitte>;

/// Writes a store that holds nothing but one text, or one lock, per section.
template <typename T, int Abschnitte>
void AbschnitteSchreiben(const Arbeitsverzeichnis& verzeichnis, const Speicherdatei& speicher,
                         const Namensliste& liste, const Abschnittswerte<T, Abschnitte>& werte) {
    JeSchuelerSchreiben(verzeichnis, speicher.Datei, liste, [&](RecordWriter& writer, int platz) {
        for (const auto& eine : werte)
            writer.add(eine[platz]);
    });
}

/// Copies a store to Sicherheit, under its stem and the date `heute` (dd.mm.yyyy).
void SicherheitskopieAnlegen(const Arbeitsverzeichnis& verzeichnis, const Speicherdatei& speicher,
                             const Text& heute);

} // namespace zeugnis
