#include "documents/content/blank_report.h"

#include "documents/content/list_frame.h"
#include "documents/content/report_columns.h"
#include "documents/content/report_frame.h"
#include "documents/content/report_grades.h"
#include "documents/content/report_sections.h"

#include <algorithm>
#include <array>
#include <span>

namespace zeugnis::dokumente {
namespace {

constexpr Twips Fachzeilenhoehe = 380;

const Text ZumEintragen(16, u'_');

// Fills the pages evenly. Sections are counted from 0, work behaviour being the first.
constexpr int Zeilen = 5;
constexpr std::array<int, 2> SeitenanfaengeUnten = {3, 7};
constexpr std::array<int, 1> SeitenanfaengeOben = {2};
constexpr int NotenNach = 1;

Text oderPlatz(const Text& angabe) { return printable(angabe).empty() ? ZumEintragen : angabe; }

Schuldaten mitPlatz(Schuldaten schule) {
    for (Text* angabe : {&schule.Ausgabeort, &schule.Ausgabedatum, &schule.Konferenzdatum})
        *angabe = oderPlatz(*angabe);
    return schule;
}

// The empty paragraph leaves room to write on the line.
Cell platzMit(const Text& angabe) {
    return {.paragraphs = {paragraph(StyleId::Schlussangabe, u""),
                           paragraph(StyleId::Formularangabe, angabe)}};
}

Table kopfzeilen(const Text& klasse) {
    return {
        .columns = {12, 1, 7},
        .rows = {
            {platzMit(u"Vor- und Nachname"), {}, platzMit(u"Klasse " + klasse)},
            {platzMit(u"geboren am, in"), {}, platzMit(u"versäumte Tage, davon unentschuldigt")}}};
}

Table notentabelle() {
    Table tabelle{.columns = {6, 3, 6, 3}, .rows = {}, .grid = true, .rowHeight = Fachzeilenhoehe};
    const std::span<const Spalte> faecher = SpaltenFuer(ErsterJahrgangMitNoten).subspan(ErstesFach);
    const size_t haelfte = faecher.size() / 2;
    for (size_t i = 0; i < haelfte; ++i)
        tabelle.rows.push_back({Zelle(StyleId::Listenzeile, Text(faecher[i].Name)),
                                {},
                                Zelle(StyleId::Listenzeile, Text(faecher[i + haelfte].Name)),
                                {}});
    return tabelle;
}

std::vector<TextView> ueberschriften(int jahrgang) {
    std::vector<TextView> alle = {u"Arbeitsverhalten", u"Sozialverhalten"};
    const auto bereiche = Bereichsueberschriften(jahrgang);
    alle.insert(alle.end(), bereiche.begin(), bereiche.end());
    return alle;
}

Paragraph bereich(TextView ueberschrift) { return paragraph(StyleId::Bereich, Text(ueberschrift)); }

void bereicheAnfuegen(std::vector<Block>& seiten, int jahrgang) {
    const bool istUnten = !HatNoten(jahrgang);
    const std::span<const int> anfaenge =
        istUnten ? std::span<const int>(SeitenanfaengeUnten) : SeitenanfaengeOben;
    int nummer = 0;
    for (const TextView ueberschrift : ueberschriften(jahrgang)) {
        Paragraph kopf = bereich(ueberschrift);
        kopf.startsPage = std::find(anfaenge.begin(), anfaenge.end(), nummer) != anfaenge.end();
        seiten.emplace_back(std::move(kopf));
        seiten.emplace_back(Schreiblinien(Zeilen));
        if (!istUnten && nummer == NotenNach) {
            seiten.emplace_back(bereich(u"Leistungen in den Fächern"));
            seiten.emplace_back(notentabelle());
        }
        ++nummer;
    }
}

} // namespace

Document LeerformularBilden(const Stammdaten& stamm) {
    std::vector<Block> seiten = Schulkopf(stamm, u"Zeugnis");
    seiten.emplace_back(kopfzeilen(stamm.Liste.Klasse));
    bereicheAnfuegen(seiten, stamm.Jahrgang);
    if (HatNoten(stamm.Jahrgang))
        seiten.emplace_back(Notenschluessel());
    else
        seiten.emplace_back(paragraph(StyleId::Schlussangabe, u""));
    seiten.emplace_back(Zeugnisschluss(mitPlatz(stamm.Schule)));
    return Einzelliste(u"Zeugnis, Klasse " + stamm.Liste.Klasse, std::move(seiten));
}

} // namespace zeugnis::dokumente
