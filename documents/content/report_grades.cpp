#include "documents/content/report_grades.h"

#include "documents/content/wording.h"

namespace zeugnis::dokumente {
namespace {

// Chosen so that no subject and no grade needs a second line: rows have to stay side by side.
const std::vector<int> Spaltenbreiten = {35, 18, 2, 27, 18};

Text note(int wert) {
    if (wert == LeereZelle)
        return u"–";
    return Text(Notenwort(wert)) + u" (" + textFromNumber(wert) + u")";
}

struct Faecherspalte {
    Cell Namen;
    Cell Noten;
};

Faecherspalte faecherspalte(const Eintrag& eintrag, size_t von, size_t bis) {
    Faecherspalte spalte;
    for (size_t i = von; i < bis; ++i) {
        const Spalte& fach = SpaltenFuer(ErsterJahrgangMitNoten)[i];
        spalte.Namen.paragraphs.push_back(paragraph(StyleId::Fach, Text(fach.Name)));
        spalte.Noten.paragraphs.push_back(paragraph(StyleId::Note, note(eintrag.Werte.at(i))));
    }
    return spalte;
}

} // namespace

Paragraph Versaeumnisse(const Eintrag& eintrag) {
    const Text tage = Zellentext(eintrag.Werte[SpalteTage]);
    const Text unentschuldigt = Zellentext(eintrag.Werte[SpalteUnentschuldigt]);
    return paragraph(StyleId::Versaeumnis, u"Versäumte Unterrichtstage: " + oderStrich(tage) +
                                               u", davon unentschuldigt: " +
                                               oderStrich(unentschuldigt));
}

Table Notentabelle(const Eintrag& eintrag) {
    constexpr size_t Mitte = (ErstesFach + Spaltenzahl) / 2;
    Faecherspalte links = faecherspalte(eintrag, ErstesFach, Mitte);
    Faecherspalte rechts = faecherspalte(eintrag, Mitte, Spaltenzahl);
    return {.columns = Spaltenbreiten,
            .rows = {{std::move(links.Namen), std::move(links.Noten), Cell(),
                      std::move(rechts.Namen), std::move(rechts.Noten)}}};
}

Paragraph Notenschluessel() {
    Text text = u"Noten: ";
    for (int wert = 1; wert <= SchlechtesteNote; ++wert)
        text += (wert > 1 ? u", " : u"") + textFromNumber(wert) + u" = " + Text(Notenwort(wert));
    Paragraph absatz = paragraph(StyleId::Notenschluessel, std::move(text));
    absatz.keepWithNext = true;
    return absatz;
}

} // namespace zeugnis::dokumente
