#include "documents/content/conference_sheet.h"

#include "behaviour/avsv_modules.h"
#include "checks/words.h"
#include "documents/content/list_frame.h"
#include "documents/content/report_marks.h"
#include "documents/content/wording.h"

#include <algorithm>
#include <array>

namespace zeugnis::dokumente {
namespace {

struct Blattspalte {
    TextView Kopf;
    int Breite;
};
constexpr std::array<Blattspalte, 8> Spalten = {{
    {u"Nr.", 34},
    {u"Name", 175},
    {u"Arbeitsverhalten", 128},
    {u"Sozialverhalten", 128},
    {u"Tage (ue.)", 72},
    {u"Versetzung", 235},
    {u"Hinweise", 190},
    {u"Notiz", 90},
}};

// What all of them begin with says nothing in its column. The longest first.
constexpr std::array<TextView, 6> Anfaenge = {u"Das Arbeitsverhalten entspricht den Erwartungen ",
                                              u"Das Sozialverhalten entspricht den Erwartungen ",
                                              u"Das Arbeitsverhalten verdient ",
                                              u"Das Sozialverhalten verdient ",
                                              u"Das Arbeitsverhalten ",
                                              u"Das Sozialverhalten "};
constexpr TextView Gefaehrdet = u"gefährdet";
constexpr size_t HinweiseHoechstens = 2;

std::vector<Text> gesamtzeilen(const Bausteine& bausteine, int kategorien) {
    std::vector<Text> zeilen;
    for (int zeile = 1; zeile < Zeilenplaetze; ++zeile)
        if (const Text text = trimmed(bausteine.Zeilen[kategorien - 1][zeile]); !text.empty())
            zeilen.push_back(text);
    // "mit Einschränkungen" begins like the line without.
    std::sort(zeilen.begin(), zeilen.end(),
              [](const Text& eine, const Text& andere) { return eine.size() > andere.size(); });
    return zeilen;
}

// The rating that the text holds: "in vollem Umfang", "entspricht den Erwartungen".
Text gesamtbewertung(const Text& text, const std::vector<Text>& zeilen) {
    for (const Text& zeile : zeilen) {
        if (text.find(zeile) == Text::npos)
            continue;
        for (const TextView anfang : Anfaenge)
            if (zeile.starts_with(anfang))
                return zeile.substr(anfang.size());
        return zeile;
    }
    return u"–";
}

Text versaeumnis(const Eintrag& eintrag) {
    const int tage = eintrag.Werte[SpalteTage];
    const int unentschuldigt = eintrag.Werte[SpalteUnentschuldigt];
    if (tage == LeereZelle)
        return u"–";
    return Zellentext(tage) +
           (unentschuldigt > 0 ? u" (" + Zellentext(unentschuldigt) + u")" : Text());
}

// Without the conference: it is the one that the sheet is for.
Text versetzung(Text bemerkungen, const Text& konferenz) {
    const Text beschluss = u"laut Konferenzbeschluss vom " + konferenz + u" ";
    if (const size_t stelle = bemerkungen.find(beschluss); stelle != Text::npos)
        bemerkungen.erase(stelle, beschluss.size());
    Text saetze;
    for (const Satz& satz : SaetzeVon(bemerkungen)) {
        const Text ganzer =
            trimmed(TextView(bemerkungen).substr(satz.Anfang, satz.Ende - satz.Anfang));
        if (NenntVersetzung(ganzer) || ganzer.find(Gefaehrdet) != Text::npos)
            saetze = verbunden(saetze, u" ", ganzer);
    }
    return oderStrich(saetze);
}

// What two children's texts have in common is nothing for a conference.
Text hinweise(const std::vector<Befund>& befunde, int platz) {
    Text saetze;
    size_t anzahl = 0;
    for (const Befund& befund : befunde)
        if (befund.Platz == platz && befund.Zwillinge.empty() && ++anzahl <= HinweiseHoechstens)
            saetze = verbunden(saetze, u" ", befund.Satz);
    if (anzahl > HinweiseHoechstens)
        saetze += u" Und " + textFromNumber(static_cast<int>(anzahl - HinweiseHoechstens)) +
                  (anzahl == HinweiseHoechstens + 1 ? u" weiterer." : u" weitere.");
    return saetze;
}

Row kindzeile(const Konferenzdaten& daten, int platz) {
    const Zeugnisdaten& zeugnisse = daten.Zeugnisse;
    const Schueler& kind = zeugnisse.Stamm.Liste.Kinder[platz];
    const Eintrag eintrag = zeugnisse.Liste ? zeugnisse.Liste->Eintraege[platz] : Eintrag();
    Row zeile = {Zelle(StyleId::Konferenzzeile, textFromNumber(platz + 1))};
    for (const Text& text :
         {oderStrich(verbunden(printable(kind.Nachname), u", ", printable(kind.Vorname))),
          gesamtbewertung(zeugnisse.AVSV[0][platz], daten.GesamtAV),
          gesamtbewertung(zeugnisse.AVSV[1][platz], daten.GesamtSV), versaeumnis(eintrag),
          versetzung(printable(zeugnisse.Bereiche.back()[platz]),
                     zeugnisse.Stamm.Schule.Konferenzdatum),
          hinweise(daten.Befunde, platz), Text()})
        zeile.push_back(Zelle(StyleId::Konferenzzeile, text));
    return zeile;
}

} // namespace

Konferenzdaten KonferenzdatenLesen(Arbeitsverzeichnis& verzeichnis) {
    return {.Zeugnisse = ZeugnisdatenLesen(verzeichnis),
            .GesamtAV = gesamtzeilen(TexteLadenAV(verzeichnis), KategorienAV),
            .GesamtSV = gesamtzeilen(TexteLadenSV(verzeichnis), KategorienSV),
            .Befunde = OffeneBefunde(verzeichnis)};
}

Document KonferenzblattBilden(const Konferenzdaten& daten) {
    const Stammdaten& stamm = daten.Zeugnisse.Stamm;
    const Text titel = Klassentitel(u"Konferenzblatt", stamm.Liste.Klasse);
    Table tabelle{.columns = {}, .rows = {Row()}, .grid = true, .headRow = true};
    for (const Blattspalte& spalte : Spalten) {
        tabelle.columns.push_back(spalte.Breite);
        tabelle.rows.front().push_back(Zelle(StyleId::Listenkopf, Text(spalte.Kopf)));
    }
    for (int platz = 0; platz < stamm.Liste.Schuelerzahl; ++platz)
        tabelle.rows.push_back(kindzeile(daten, platz));
    std::vector<Block> bloecke = Listenkopf(stamm, titel);
    bloecke.emplace_back(std::move(tabelle));
    Document dokument = Einzelliste(titel, std::move(bloecke));
    dokument.landscape = true;
    return dokument;
}

} // namespace zeugnis::dokumente
