#include "documents/content/report_grades.h"

#include "documents/content/wording.h"

#include <algorithm>
#include <span>

namespace zeugnis::dokumente {
namespace {

// No subject and no grade that is delivered needs a second line.
const std::vector<int> Spaltenbreiten = {2920, 1720, 584, 2180, 1780};
constexpr int Mittelspalte = 2;

Text note(int wert) {
    if (wert == LeereZelle)
        return u"–";
    return Text(Notenwort(wert)) + u" (" + textFromNumber(wert) + u")";
}

Cell zelle(StyleId stil, Text text) { return {.paragraphs = {paragraph(stil, std::move(text))}}; }

void fachAnfuegen(Row& zeile, const Eintrag& eintrag, const Zeugnisaufbau& aufbau, size_t spalte) {
    const std::span<const Spalte> spalten = SpaltenFuer(ErsterJahrgangMitNoten);
    const bool vorhanden = spalte < spalten.size();
    zeile.push_back(vorhanden ? zelle(StyleId::Fach, Fachname(spalten[spalte], aufbau)) : Cell());
    zeile.push_back(vorhanden ? zelle(StyleId::Note, note(eintrag.Werte.at(spalte))) : Cell());
}

} // namespace

Paragraph Versaeumnisse(const Eintrag& eintrag) {
    const Text tage = Zellentext(eintrag.Werte[SpalteTage]);
    const Text unentschuldigt = Zellentext(eintrag.Werte[SpalteUnentschuldigt]);
    return paragraph(StyleId::Versaeumnis, u"Versäumte Unterrichtstage: " + oderStrich(tage) +
                                               u", davon unentschuldigt: " +
                                               oderStrich(unentschuldigt));
}

bool HatNotenluecke(const Eintrag& eintrag) {
    return std::find(eintrag.Werte.begin() + ErstesFach, eintrag.Werte.end(), LeereZelle) !=
           eintrag.Werte.end();
}

Table Notentabelle(const Eintrag& eintrag, const Zeugnisaufbau& aufbau) {
    constexpr size_t Haelfte = (Spaltenzahl - ErstesFach + 1) / 2;
    Table tabelle{.columns = Spaltenbreiten,
                  .rows = {},
                  .ruled = true,
                  .gap = Mittelspalte,
                  .keepRows = true,
                  .keepWithNext = true};
    for (size_t spalte = ErstesFach; spalte < ErstesFach + Haelfte; ++spalte) {
        Row zeile;
        fachAnfuegen(zeile, eintrag, aufbau, spalte);
        zeile.emplace_back();
        fachAnfuegen(zeile, eintrag, aufbau, spalte + Haelfte);
        tabelle.rows.push_back(std::move(zeile));
    }
    return tabelle;
}

Paragraph Notenschluessel(bool mitStrich) {
    Text text = u"Noten: ";
    for (int wert = 1; wert <= SchlechtesteNote; ++wert)
        text += (wert > 1 ? u", " : u"") + textFromNumber(wert) + u" = " + Text(Notenwort(wert));
    if (mitStrich)
        text += u"; – = nicht erteilt";
    return paragraph(StyleId::Notenschluessel, std::move(text));
}

} // namespace zeugnis::dokumente
