#include "documents/content/class_data.h"

#include "platform/failure.h"

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
    daten.Liste = NamenLaden(verzeichnis);
    if (daten.Liste.Klasse.empty())
        throw Laufzeitfehler(Fehlerart::InvalidCall,
                             u"In der Namensliste steht noch keine Klasse. Tragen Sie sie im "
                             u"Zeugnisprogramm unter „Basisdaten“ ein. Es wurde nichts "
                             u"geschrieben.");
    {
        const Ordnerwechsel in(verzeichnis, dateien::Daten);
        daten.Schule = BasisdatenLesen(verzeichnis, BasisdatenFelder);
    }
    daten.Jahrgang =
        numberFromText(daten.Liste.Klasse.substr(0, 1), u"Das erste Zeichen der Klasse");
    daten.Halbjahr = daten.Schule.Halbjahr;
    const int halbjahr = numberFromText(daten.Halbjahr, u"Das Halbjahr in Basisdaten.txt");
    if (daten.Jahrgang == 1 && halbjahr == 1)
        daten.Halbjahr = u"2";
    daten.Aufbau = ZeugnisaufbauLesen(verzeichnis);
    return daten;
}

Text Klassenstamm(const Stammdaten& daten, TextView art) {
    return daten.Liste.Klasse + Text(art) + textFromNumber(daten.Jahrgang) + daten.Halbjahr;
}

Abschnittstexte AVSVTexteLesen(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste) {
    Abschnittstexte texte(AbschnitteAVSV);
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    const bool stimmt = JeSchuelerAbgleichen(verzeichnis, speicherdateien::AVSVTexte, liste,
                                             [&](RecordReader& reader, int platz) {
                                                 for (Schuelertabelle<Text>& abschnitt : texte)
                                                     abschnitt[platz] = reader.text();
                                             });
    if (!stimmt)
        throw fremdeTexte(u"Arbeits- und Sozialverhalten",
                          u" Öffnen Sie im Zeugnisprogramm „Arbeits- und Sozialverhalten "
                          u"erstellen“; dort werden Sie gefragt, wie es weitergehen soll.");
    return texte;
}

const Speicherdatei& BereichsspeicherVon(const Stammdaten& daten) {
    return HatNoten(daten.Jahrgang) ? speicherdateien::Texte34 : speicherdateien::Texte12;
}

Abschnittstexte BereichstexteLesen(Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten) {
    const Speicherdatei& datei = BereichsspeicherVon(daten);
    Abschnittstexte texte(static_cast<size_t>(datei.Texte));
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    JeSchuelerLesen(
        verzeichnis, datei, [&](RecordReader& reader, int platz, const Schuelerkopf& kopf) {
            const Schueler& kind = daten.Liste.Kinder[platz];
            // The store itself goes by place alone, so a changed class list would show only here.
            if (kopf.Nachname != kind.Nachname || kopf.Vorname != kind.Vorname)
                throw fremdeTexte(HatNoten(daten.Jahrgang) ? u"Zeugnis der Jahrgänge 3 und 4"
                                                           : u"Zeugnis der Jahrgänge 1 und 2",
                                  u" Speichern Sie im Zeugnisprogramm die Stammdaten neu.");
            for (Schuelertabelle<Text>& abschnitt : texte)
                abschnitt[platz] = reader.text();
        });
    return texte;
}

} // namespace zeugnis::dokumente
