#include "documents/content/school_report.h"

#include "documents/content/report_frame.h"
#include "documents/content/wording.h"
#include "platform/failure.h"

#include <array>
#include <span>

namespace zeugnis::dokumente {
namespace {

// The sections of a report between its head and its end, in their order.
constexpr std::array<TextView, Bereiche12> Ueberschriften12 = {
    u"Interessen und Fertigkeiten",
    u"Sprechen und Zuhören",
    u"Lesen und mit Texten umgehen",
    u"Schreiben, Texte verfassen",
    u"Zahlen und Operationen",
    u"Größen und Messen",
    u"Raum und Form",
    u"Bemerkungen",
};
constexpr std::array<TextView, Bereiche34> Ueberschriften34 = {
    u"Förderunterricht und Arbeitsgemeinschaften",
    u"Besondere Interessen",
    u"Bemerkungen",
};

void bereichAnfuegen(Section& seiten, TextView ueberschrift, const Text& inhalt) {
    seiten.blocks.emplace_back(paragraph(StyleId::Bereich, Text(ueberschrift)));
    seiten.blocks.emplace_back(paragraph(StyleId::Bereichstext, oderStrich(inhalt)));
}

Section zeugnis(const Zeugnisdaten& daten, int platz) {
    const Schueler& kind = daten.Stamm.Liste.Kinder[platz];
    Section seiten;
    seiten.footer = Kindname(kind) + u", Klasse " + daten.Stamm.Liste.Klasse;
    seiten.blocks = Zeugniskopf(daten.Stamm, kind);
    bereichAnfuegen(seiten, u"Arbeitsverhalten", daten.AVSV.AV.Texte[platz]);
    bereichAnfuegen(seiten, u"Sozialverhalten", daten.AVSV.SV.Texte[platz]);
    const std::span<const TextView> ueberschriften =
        daten.Stamm.Jahrgang < 3 ? std::span<const TextView>(Ueberschriften12) : Ueberschriften34;
    for (size_t i = 0; i < ueberschriften.size(); ++i)
        bereichAnfuegen(seiten, ueberschriften[i], daten.Bereiche.at(i)[platz]);
    LetztenAbsatzHalten(seiten.blocks);
    seiten.blocks.emplace_back(Zeugnisschluss(daten.Stamm.Schule));
    return seiten;
}

} // namespace

Zeugnisdaten ZeugnisdatenLesen(Arbeitsverzeichnis& verzeichnis) {
    Zeugnisdaten daten{.Stamm = StammdatenLesen(verzeichnis), .AVSV = {}, .Bereiche = {}};
    if (daten.Stamm.Liste.Schuelerzahl < 1)
        throw Laufzeitfehler(Fehlerart::InvalidCall,
                             u"In der Namensliste steht kein Kind. Es wurde nichts geschrieben.");
    daten.AVSV = AVSVTexteLesen(verzeichnis, daten.Stamm.Liste);
    daten.Bereiche = BereichstexteLesen(verzeichnis, daten.Stamm);
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
