#include "documents/content/blank_report.h"

#include "documents/content/list_frame.h"
#include "documents/content/report_frame.h"
#include "documents/content/report_grades.h"
#include "documents/content/report_sections.h"
#include "files/report_columns.h"

#include <algorithm>
#include <array>
#include <span>

namespace zeugnis::dokumente {
namespace {

constexpr Twips Fachzeilenhoehe = 380;

const Text ZumEintragen(16, u'_');

// Fills the pages evenly. Sections are counted from 0, in the order of the report.
constexpr int Zeilen = 5;
constexpr int ZeilenUnterBild = 4; // on the page that has a picture in its head
constexpr std::array<int, 2> SeitenanfaengeUnten = {3, 7};
constexpr std::array<int, 1> SeitenanfaengeOben = {3};

Text oderPlatz(const Text& angabe) { return printable(angabe).empty() ? ZumEintragen : angabe; }

Schuldaten mitPlatz(Schuldaten schule) {
    for (Text* angabe : {&schule.Ausgabeort, &schule.Ausgabedatum, &schule.Konferenzdatum})
        *angabe = oderPlatz(*angabe);
    return schule;
}

// What is known stands on the line; else there is room to write on it.
Cell linieMit(const Text& inhalt, const Text& angabe) {
    return {.paragraphs = {paragraph(StyleId::Schlussangabe, inhalt),
                           paragraph(StyleId::Formularangabe, angabe)}};
}

Table kopfzeilen(const Text& klasse) {
    return {.columns = {12, 1, 7},
            .rows = {{linieMit(u"", u"Vor- und Nachname"), {}, linieMit(klasse, u"Klasse")},
                     {linieMit(u"", u"geboren am, in"),
                      {},
                      linieMit(u"", u"versäumte Tage, davon unentschuldigt")}}};
}

Table notentabelle(const Zeugnisaufbau& aufbau) {
    Table tabelle{.columns = {6, 3, 6, 3},
                  .rows = {},
                  .grid = true,
                  .rowHeight = Fachzeilenhoehe,
                  .keepRows = true,
                  .keepWithNext = true};
    const std::span<const Spalte> faecher = SpaltenFuer(ErsterJahrgangMitNoten).subspan(ErstesFach);
    const size_t haelfte = (faecher.size() + 1) / 2;
    for (size_t i = 0; i < haelfte; ++i) {
        const size_t rechts = i + haelfte;
        tabelle.rows.push_back({Zelle(StyleId::Listenzeile, Fachname(faecher[i], aufbau)),
                                {},
                                rechts < faecher.size()
                                    ? Zelle(StyleId::Listenzeile, Fachname(faecher[rechts], aufbau))
                                    : Cell(),
                                {}});
    }
    return tabelle;
}

Paragraph bereich(TextView ueberschrift) { return paragraph(StyleId::Bereich, Text(ueberschrift)); }

void bereicheAnfuegen(std::vector<Block>& seiten, const Stammdaten& stamm) {
    const bool istUnten = !HatNoten(stamm.Jahrgang);
    const std::span<const int> anfaenge =
        istUnten ? std::span<const int>(SeitenanfaengeUnten) : SeitenanfaengeOben;
    int nummer = 0;
    TextView fach;
    for (const Abschnittsplan& plan : AbschnitteFuer(stamm.Jahrgang, stamm.Aufbau)) {
        const size_t anfang = seiten.size();
        if (!plan.Fach.empty() && plan.Fach != fach)
            seiten.emplace_back(bereich(plan.Fach));
        fach = plan.Fach;
        Paragraph kopf = bereich(plan.Ueberschrift);
        if (!fach.empty())
            kopf.style = StyleId::Lernbereich;
        seiten.emplace_back(std::move(kopf));
        std::get<Paragraph>(seiten[anfang]).startsPage =
            std::find(anfaenge.begin(), anfaenge.end(), nummer) != anfaenge.end();
        const bool nebenBild = stamm.Kopfbild && nummer < anfaenge.front();
        ++nummer;
        if (plan.Woher == Abschnittsplan::Quelle::Noten) {
            seiten.emplace_back(notentabelle(stamm.Aufbau));
            seiten.emplace_back(Notenschluessel(true));
        } else {
            seiten.emplace_back(Schreiblinien(nebenBild ? ZeilenUnterBild : Zeilen));
        }
    }
}

} // namespace

Document LeerformularBilden(const Stammdaten& stamm) {
    Stammdaten leer = stamm;
    leer.Schule = mitPlatz(stamm.Schule);
    std::vector<Block> seiten = Schulkopf(stamm, Zeugnistitel(stamm));
    seiten.emplace_back(kopfzeilen(stamm.Liste.Klasse));
    bereicheAnfuegen(seiten, stamm);
    for (Block& block : Zeugnisschluss(leer, false))
        seiten.push_back(std::move(block));
    return Einzelliste(Text(Zeugnistitel(stamm)) + u", Klasse " + stamm.Liste.Klasse,
                       std::move(seiten));
}

} // namespace zeugnis::dokumente
