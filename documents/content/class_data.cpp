#include "documents/content/class_data.h"

#include "masterdata/pupil_records.h"
#include "platform/failure.h"
#include "platform/record_reader.h"
#include "shell/file_catalogue.h"

namespace zeugnis::dokumente {
namespace {

Laufzeitfehler fremdeTexte(TextView wozu, TextView abhilfe) {
    return {Fehlerart::InvalidCall,
            u"Die Namensliste stimmt nicht mit den gespeicherten Texten zum " + Text(wozu) +
                u" überein. Damit kein Kind einen fremden Text bekommt, wurde nichts "
                u"geschrieben." +
                Text(abhilfe)};
}

} // namespace

Stammdaten StammdatenLesen(Arbeitsverzeichnis& verzeichnis) {
    Stammdaten daten;
    {
        const Ordnerwechsel in(verzeichnis, dateien::Daten);
        daten.Schule = BasisdatenLesen(verzeichnis, BasisdatenFelder);
    }
    daten.Liste = NamenLaden(verzeichnis);
    daten.Jahrgang =
        numberFromText(daten.Liste.Klasse.substr(0, 1), u"Das erste Zeichen der Klasse");
    daten.Halbjahr = daten.Schule.Halbjahr;
    const int halbjahr = numberFromText(daten.Halbjahr, u"Das Halbjahr in Basisdaten.txt");
    if (daten.Jahrgang == 1 && halbjahr == 1)
        daten.Halbjahr = u"2";
    return daten;
}

Text Klassenstamm(const Stammdaten& daten, TextView art) {
    return daten.Liste.Klasse + Text(art) + textFromNumber(daten.Jahrgang) + daten.Halbjahr;
}

AVSVSpeicher AVSVTexteLesen(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste) {
    AVSVSpeicher speicher;
    if (!SpeicherLaden(verzeichnis, liste, speicher))
        throw fremdeTexte(u"Arbeits- und Sozialverhalten",
                          u" Öffnen Sie im Zeugnisprogramm „Arbeits- und Sozialverhalten "
                          u"erstellen“; dort werden Sie gefragt, wie es weitergehen soll.");
    return speicher;
}

Bereichstexte BereichstexteLesen(Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten) {
    const bool istUnten = daten.Jahrgang < 3;
    Bereichstexte texte(static_cast<size_t>(istUnten ? Bereiche12 : Bereiche34));
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    RecordReader reader(verzeichnis, istUnten ? dateien::Speicher12 : dateien::Speicher34);
    for (int platz = 0; !reader.atEnd(); ++platz) {
        PlatzPruefen(reader, platz);
        reader.skip(2);
        const Schueler& kind = daten.Liste.Kinder[platz];
        // The store itself goes by place alone, so a changed class list would show only here.
        const bool stimmt = reader.text() == kind.Nachname && reader.text() == kind.Vorname;
        if (!stimmt)
            throw fremdeTexte(istUnten ? u"Zeugnis der Jahrgänge 1 und 2"
                                       : u"Zeugnis der Jahrgänge 3 und 4",
                              u" Speichern Sie im Zeugnisprogramm die Stammdaten neu.");
        for (Schuelertabelle<Text>& bereich : texte)
            bereich[platz] = reader.text();
    }
    return texte;
}

} // namespace zeugnis::dokumente
