#include "documents/content/school_report.h"

#include "documents/content/report_frame.h"
#include "documents/content/report_grades.h"
#include "documents/content/report_sections.h"
#include "documents/content/wording.h"
#include "platform/failure.h"

#include <span>

namespace zeugnis::dokumente {
namespace {

constexpr size_t Verhaltensabschnitte = AbschnitteAVSV; // behind them come the grades

void bereichAnfuegen(Section& seiten, const Abschnittstext& abschnitt) {
    seiten.blocks.emplace_back(paragraph(StyleId::Bereich, Text(abschnitt.Ueberschrift)));
    seiten.blocks.emplace_back(paragraph(StyleId::Bereichstext, oderStrich(abschnitt.Inhalt)));
}

Section zeugnis(const Zeugnisdaten& daten, int platz) {
    const Schueler& kind = daten.Stamm.Liste.Kinder[platz];
    const Eintrag eintrag = daten.Liste ? daten.Liste->Eintraege[platz] : Eintrag();
    const bool hatNoten = HatNoten(daten.Stamm.Jahrgang);
    Section seiten;
    seiten.footer = Kindname(kind) + u", Klasse " + daten.Stamm.Liste.Klasse;
    seiten.blocks = Zeugniskopf(daten.Stamm, kind);
    seiten.blocks.emplace_back(Versaeumnisse(eintrag));
    const std::vector<Abschnittstext> abschnitte = AbschnitteVon(daten, platz);
    for (size_t i = 0; i < abschnitte.size(); ++i) {
        if (i == Verhaltensabschnitte && hatNoten) {
            seiten.blocks.emplace_back(paragraph(StyleId::Bereich, u"Leistungen in den Fächern"));
            seiten.blocks.emplace_back(Notentabelle(eintrag));
        }
        bereichAnfuegen(seiten, abschnitte[i]);
    }
    LetztenAbsatzHalten(seiten.blocks);
    if (hatNoten)
        seiten.blocks.emplace_back(Notenschluessel());
    seiten.blocks.emplace_back(Zeugnisschluss(daten.Stamm.Schule));
    return seiten;
}

} // namespace

std::vector<Abschnittstext> AbschnitteVon(const Zeugnisdaten& daten, int platz) {
    std::vector<Abschnittstext> abschnitte = {
        {u"Arbeitsverhalten", daten.AVSV.at(0)[platz]},
        {u"Sozialverhalten", daten.AVSV.at(1)[platz]},
    };
    const std::span<const TextView> ueberschriften = Bereichsueberschriften(daten.Stamm.Jahrgang);
    for (size_t i = 0; i < ueberschriften.size(); ++i)
        abschnitte.push_back({ueberschriften[i], daten.Bereiche.at(i)[platz]});
    return abschnitte;
}

Zeugnisdaten ZeugnisdatenLesen(Arbeitsverzeichnis& verzeichnis) {
    Zeugnisdaten daten{.Stamm = StammdatenLesen(verzeichnis), .AVSV = {}, .Bereiche = {}};
    if (daten.Stamm.Liste.Schuelerzahl < 1)
        throw Laufzeitfehler(Fehlerart::InvalidCall,
                             u"In der Namensliste steht kein Kind. Es wurde nichts geschrieben.");
    daten.AVSV = AVSVTexteLesen(verzeichnis, daten.Stamm.Liste);
    daten.Bereiche = BereichstexteLesen(verzeichnis, daten.Stamm);
    daten.Liste = ZeugnislisteLesen(verzeichnis, daten.Stamm);
    return daten;
}

Document ZeugnisseBilden(const Zeugnisdaten& daten) {
    Document dokument;
    dokument.title = u"Zeugnisse der Klasse " + daten.Stamm.Liste.Klasse + u", Schuljahr " +
                     daten.Stamm.Schule.Schuljahr + u", " + daten.Stamm.Halbjahr + u". Halbjahr";
    for (int platz = 0; platz < daten.Stamm.Liste.Schuelerzahl; ++platz)
        dokument.sections.push_back(zeugnis(daten, platz));
    return dokument;
}

} // namespace zeugnis::dokumente
