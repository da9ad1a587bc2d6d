#include "documents/content/school_report.h"

#include "documents/content/paper_text.h"
#include "documents/content/report_frame.h"
#include "documents/content/report_grades.h"
#include "documents/content/report_sections.h"
#include "documents/content/wording.h"
#include "platform/failure.h"

namespace zeugnis::dokumente {
namespace {

using Quelle = Abschnittsplan::Quelle;

constexpr TextView NichtVersetzt = u"nicht in den ";
constexpr TextView Wiederholt = u"wiederholt laut Konferenzbeschluss";

const Text& textVon(const Zeugnisdaten& daten, const Abschnittsplan& plan, int platz) {
    return (plan.Woher == Quelle::AVSV ? daten.AVSV : daten.Bereiche).at(plan.Nummer)[platz];
}

void notenAnfuegen(std::vector<Block>& bloecke, const Eintrag& eintrag,
                   const Zeugnisaufbau& aufbau) {
    bloecke.emplace_back(paragraph(StyleId::Bereich, Text(Notenueberschrift)));
    bloecke.emplace_back(Notentabelle(eintrag, aufbau));
    bloecke.emplace_back(Notenschluessel(HatNotenluecke(eintrag)));
}

Paragraph aus(int quelle, StyleId stil, Text text) {
    Paragraph absatz = paragraph(stil, std::move(text));
    absatz.source = quelle;
    return absatz;
}

void ueberschriftAnfuegen(std::vector<Block>& bloecke, int quelle, const Abschnittsplan& plan,
                          TextView fach) {
    if (!plan.Fach.empty() && plan.Fach != fach)
        bloecke.emplace_back(aus(quelle, StyleId::Bereich, Text(plan.Fach)));
    bloecke.emplace_back(aus(quelle, plan.Fach.empty() ? StyleId::Bereich : StyleId::Lernbereich,
                             Text(plan.Ueberschrift)));
}

Section zeugnis(const Zeugnisdaten& daten, int platz) {
    const Stammdaten& stamm = daten.Stamm;
    const Schueler& kind = stamm.Liste.Kinder[platz];
    const Eintrag eintrag = daten.Liste ? daten.Liste->Eintraege[platz] : Eintrag();
    Section seiten{.footer = Kindname(kind) + u", Klasse " + stamm.Liste.Klasse,
                   .blocks = Zeugniskopf(stamm, kind, Zeugnistitel(stamm))};
    std::vector<Block>& bloecke = seiten.blocks;
    bloecke.emplace_back(Versaeumnisse(eintrag));
    TextView fach;
    int quelle = -1;
    for (const Abschnittsplan& plan : AbschnitteFuer(stamm.Jahrgang, stamm.Aufbau)) {
        ++quelle;
        if (plan.Woher == Quelle::Noten) {
            notenAnfuegen(bloecke, eintrag, stamm.Aufbau);
            continue;
        }
        ueberschriftAnfuegen(bloecke, quelle, plan, fach);
        fach = plan.Fach;
        const Text text = AufPapier(textVon(daten, plan, platz));
        bloecke.emplace_back(aus(quelle, StyleId::Bereichstext, oderStrich(text)));
    }
    std::get<Paragraph>(bloecke.back()).keepEndWithNext = true;
    for (Block& block : Zeugnisschluss(stamm, IstNichtVersetzt(daten, platz)))
        bloecke.push_back(std::move(block));
    return seiten;
}

} // namespace

std::vector<Abschnittstext> AbschnitteVon(const Zeugnisdaten& daten, int platz) {
    std::vector<Abschnittstext> abschnitte;
    for (const Abschnittsplan& plan : AbschnitteFuer(daten.Stamm.Jahrgang, daten.Stamm.Aufbau))
        if (plan.Woher != Quelle::Noten)
            abschnitte.push_back({plan.Ueberschrift, textVon(daten, plan, platz)});
    return abschnitte;
}

Abschnittstexte* TexteAus(Zeugnisdaten& daten, const Speicherdatei& speicher) {
    if (speicher.Datei == speicherdateien::AVSVTexte.Datei)
        return &daten.AVSV;
    return speicher.Datei == BereichsspeicherVon(daten.Stamm).Datei ? &daten.Bereiche : nullptr;
}

Zeugnisdaten ZeugnisdatenLesen(Arbeitsverzeichnis& verzeichnis, const OffeneTexte& offen) {
    Zeugnisdaten daten{.Stamm = StammdatenLesen(verzeichnis), .AVSV = {}, .Bereiche = {}};
    if (daten.Stamm.Liste.Schuelerzahl < 1)
        throw Laufzeitfehler(Fehlerart::InvalidCall,
                             u"In der Namensliste steht kein Kind. Es wurde nichts geschrieben.");
    const Abschnittstexte* texte =
        offen.Anstelle == nullptr ? nullptr : TexteAus(daten, *offen.Anstelle);
    const auto istOffen = [&](const Abschnittstexte& andere) { return texte == &andere; };
    daten.AVSV =
        istOffen(daten.AVSV) ? offen.Texte : AVSVTexteLesen(verzeichnis, daten.Stamm.Liste);
    daten.Bereiche =
        istOffen(daten.Bereiche) ? offen.Texte : BereichstexteLesen(verzeichnis, daten.Stamm);
    daten.Liste = ZeugnislisteLesen(verzeichnis, daten.Stamm);
    return daten;
}

// Parents who ask for a repetition need no remedy.
bool IstNichtVersetzt(const Zeugnisdaten& daten, int platz) {
    const Text& bemerkungen = daten.Bereiche.back()[platz];
    const size_t nicht = bemerkungen.find(NichtVersetzt);
    return (nicht != Text::npos && bemerkungen.find(u" versetzt", nicht) != Text::npos) ||
           bemerkungen.find(Wiederholt) != Text::npos;
}

Document ZeugnisBilden(const Zeugnisdaten& daten, int platz) {
    return {.title = Text(Zeugnistitel(daten.Stamm)) + u" für " +
                     Kindname(daten.Stamm.Liste.Kinder[platz]) + u", Klasse " +
                     daten.Stamm.Liste.Klasse,
            .sections = {zeugnis(daten, platz)}};
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
