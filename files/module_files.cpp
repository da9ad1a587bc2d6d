#include "files/module_files.h"

#include "platform/record_reader.h"
#include "platform/record_writer.h"

namespace zeugnis {

Text Modulname(const Moduldatei& datei, TextView jahrgang) {
    return Text(datei.Stamm) + Text(datei.JeJahrgang ? jahrgang : TextView()) + u".Txt";
}

Text Standardname(TextView datei) {
    const size_t endung = datei.rfind(u'.');
    return Text(datei.substr(0, endung)) + u"Standard" + Text(datei.substr(endung));
}

void ModuldateiLesen(const Arbeitsverzeichnis& verzeichnis, TextView name, const Moduldatei& datei,
                     int zeilen, Bausteintabelle& tabelle) {
    readNumberedRecords(verzeichnis, name, zeilen, [&](RecordReader& reader, int zeile, int) {
        for (int spalte = 1; spalte <= datei.Spalten; ++spalte)
            tabelle(spalte, zeile) = reader.text();
    });
}

void ModuldateiSchreiben(const Arbeitsverzeichnis& verzeichnis, TextView name,
                         const Moduldatei& datei, const Bausteintabelle& tabelle) {
    RecordWriter writer(verzeichnis, name);
    for (int zeile = 0; zeile < datei.Geschrieben; ++zeile) {
        writer.begin();
        writer.add(zeile + 1);
        for (int spalte = 1; spalte <= datei.Spalten; ++spalte)
            writer.add(tabelle(spalte, zeile));
        writer.end();
    }
    writer.close();
}

} // namespace zeugnis
