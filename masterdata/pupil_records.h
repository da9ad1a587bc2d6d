#pragma once

#include "masterdata/pupil_list.h"
#include "platform/record_reader.h"
#include "platform/record_writer.h"

namespace zeugnis {

/// The stores by pupil hold one record per pupil in the order of the class list. Each record
/// begins with number, class, family name and first name.
inline constexpr int SchuelerkopfFelder = 4;

/// Fails with index-out-of-range if there is no slot left for the next record.
void PlatzPruefen(const RecordReader& reader, int platz);

/// Reads a store by position alone: `readRest(reader, slot)` takes the fields behind the head,
/// whose own fields do not count. A 37th record fails with index-out-of-range.
template <typename ReadRest>
void JeSchuelerLesen(const Arbeitsverzeichnis& verzeichnis, TextView datei, ReadRest readRest) {
    RecordReader reader(verzeichnis, datei);
    for (int platz = 0; !reader.atEnd(); ++platz) {
        PlatzPruefen(reader, platz);
        reader.skip(SchuelerkopfFelder);
        readRest(reader, platz);
    }
}

/// Writes a store anew for the class list: `addRest(writer, slot)` adds the fields behind the head.
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

/// Copies a store to Sicherheit, as `stamm`, the date `heute` (dd.mm.yyyy) and ".txt".
void SicherheitskopieAnlegen(const Arbeitsverzeichnis& verzeichnis, TextView datei, TextView stamm,
                             const Text& heute);

} // namespace zeugnis
