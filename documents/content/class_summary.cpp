#include "documents/content/class_summary.h"

#include "documents/content/report_sections.h"

#include <algorithm>
#include <set>

namespace zeugnis::dokumente {
namespace {

Text beiWievielen(TextView was, int anzahl) {
    return Text(was) + (anzahl == 1 ? u"einem" : textFromNumber(anzahl));
}

} // namespace

std::optional<Fundort> FundortVon(const Stammdaten& stamm, TextView ueberschrift, int platz) {
    for (const Abschnittsplan& plan : AbschnitteFuer(stamm.Jahrgang, stamm.Aufbau))
        if (plan.Woher != Abschnittsplan::Quelle::Noten && plan.Ueberschrift == ueberschrift)
            return Fundort{platz, plan.Woher == Abschnittsplan::Quelle::AVSV,
                           static_cast<int>(plan.Nummer)};
    return std::nullopt;
}

Klassenbild KlassenbildVon(const Zeugnisdaten& daten, const std::vector<Befund>& befunde,
                           bool mitHinweisen) {
    Klassenbild bild;
    std::set<int> kinder;
    for (int platz = 0; platz < daten.Stamm.Liste.Schuelerzahl; ++platz) {
        const Schueler& kind = daten.Stamm.Liste.Kinder[platz];
        if (!trimmed(kind.Vorname + kind.Nachname).empty())
            kinder.insert(platz);
    }
    bild.Kinder = static_cast<int>(kinder.size());
    std::set<int> ohneText;
    std::set<int> ohneNoten;
    int hinweise = 0;
    for (const Befund& befund : befunde) {
        if (!kinder.contains(befund.Platz))
            continue;
        if (befund.Art == Befundart::OhneText) {
            ohneText.insert(befund.Platz);
            if (!bild.OhneText)
                bild.OhneText = FundortVon(daten.Stamm, befund.Abschnitt, befund.Platz);
        } else if (befund.Art == Befundart::Noten) {
            ohneNoten.insert(befund.Platz);
        } else if (befund.Art == Befundart::Text) {
            ++hinweise;
            if (!bild.ErsterHinweis)
                bild.ErsterHinweis = FundortVon(daten.Stamm, befund.Abschnitt, befund.Platz);
        }
    }
    bild.Vollstaendig = bild.Kinder - static_cast<int>(ohneText.size());
    if (mitHinweisen)
        bild.Hinweise = hinweise;
    else
        bild.ErsterHinweis.reset();
    if (HatNoten(daten.Stamm.Jahrgang) && daten.Liste)
        bild.OhneNoten = static_cast<int>(ohneNoten.size());
    return bild;
}

Klassensatz KlassensatzVon(const Klassenbild& bild) {
    Klassensatz satz;
    if (bild.Kinder == 0) {
        satz.Kinder = u"Noch keine Kinder";
        return satz;
    }
    satz.Kinder = bild.Kinder == 1 ? Text(u"1 Kind") : textFromNumber(bild.Kinder) + u" Kinder";
    if (bild.Vollstaendig == bild.Kinder)
        satz.Texte = u"Alle Texte vollständig";
    else if (bild.Vollstaendig == 0)
        satz.Texte = u"Texte noch bei keinem vollständig";
    else
        satz.Texte = beiWievielen(u"Texte vollständig bei ", bild.Vollstaendig);
    if (bild.Hinweise)
        satz.Hinweise = *bild.Hinweise == 0   ? Text(u"Kein Hinweis")
                        : *bild.Hinweise == 1 ? Text(u"1 Hinweis")
                                              : textFromNumber(*bild.Hinweise) + u" Hinweise";
    if (bild.OhneNoten && *bild.OhneNoten > 0)
        satz.Noten = beiWievielen(u"Noten fehlen bei ", *bild.OhneNoten);
    else if (bild.OhneNoten)
        satz.Noten = u"Alle Noten eingetragen";
    return satz;
}

} // namespace zeugnis::dokumente
