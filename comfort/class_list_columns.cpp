#include "comfort/class_list_columns.h"

#include "comfort/birth_date.h"

#include <algorithm>
#include <array>

namespace zeugnis {
namespace {

struct Spaltenname {
    TextView Name;
    Listenspalte Spalte;
};

/// A heading begins with one of these; the longer ones come first.
constexpr auto Spaltennamen = std::to_array<Spaltenname>({
    {u"nachname, vorname", Listenspalte::Ganzname},
    {u"name, vorname", Listenspalte::Ganzname},
    {u"vor- und nachname", Listenspalte::Ganzname},
    {u"vorname nachname", Listenspalte::Ganzname},
    {u"vorname und nachname", Listenspalte::Ganzname},
    {u"schülername", Listenspalte::Ganzname},
    {u"vorname", Listenspalte::Vorname},
    {u"rufname", Listenspalte::Vorname},
    {u"nachname", Listenspalte::Nachname},
    {u"familienname", Listenspalte::Nachname},
    {u"zuname", Listenspalte::Nachname},
    {u"name", Listenspalte::Nachname},
    {u"geschlecht", Listenspalte::Geschlecht},
    {u"m/w", Listenspalte::Geschlecht},
    {u"w/m", Listenspalte::Geschlecht},
    {u"geburtsdatum", Listenspalte::Datum},
    {u"geb.-datum", Listenspalte::Datum},
    {u"geburtstag", Listenspalte::Datum},
    {u"geboren am", Listenspalte::Datum},
    {u"geb. am", Listenspalte::Datum},
    {u"geburtsort", Listenspalte::Ort},
    {u"geb.-ort", Listenspalte::Ort},
    {u"geboren in", Listenspalte::Ort},
    {u"ag", Listenspalte::AG},
    {u"arbeitsgemeinschaft", Listenspalte::AG},
});

constexpr auto Geschlechtswoerter = std::to_array<std::pair<TextView, TextView>>({
    {u"m", u"m"},
    {u"männlich", u"m"},
    {u"maennlich", u"m"},
    {u"junge", u"m"},
    {u"w", u"w"},
    {u"weiblich", u"w"},
    {u"mädchen", u"w"},
    {u"maedchen", u"w"},
});

bool isLetter(char16_t sign) {
    return (sign >= u'a' && sign <= u'z') || (sign >= u'A' && sign <= u'Z') || sign >= u'\u00C0';
}

Listenspalte nachKopf(const Text& zelle) {
    for (const Spaltenname& eintrag : Spaltennamen) {
        const size_t laenge = eintrag.Name.size();
        const bool endet = zelle.size() <= laenge || !isLetter(zelle[laenge]);
        if (endet && sameIgnoringCase(TextView(zelle).substr(0, laenge), eintrag.Name))
            return eintrag.Spalte;
    }
    return Listenspalte::Unbekannt;
}

bool istNummer(const Text& zelle) {
    return std::ranges::all_of(zelle,
                               [](char16_t c) { return (c >= u'0' && c <= u'9') || c == u'.'; });
}

/// Whether most filled cells of a column are so.
template <typename Frage>
bool meist(const std::vector<Tabellenzeile>& zeilen, size_t spalte, Frage frage) {
    int gefuellt = 0;
    int zutreffend = 0;
    for (const Tabellenzeile& zeile : zeilen) {
        if (spalte >= zeile.size() || zeile[spalte].empty())
            continue;
        ++gefuellt;
        zutreffend += frage(zeile[spalte]) ? 1 : 0;
    }
    return gefuellt > 0 && 2 * zutreffend > gefuellt;
}

std::vector<Listenspalte> nachInhalt(const std::vector<Tabellenzeile>& zeilen, size_t breite) {
    constexpr std::array Namen = {Listenspalte::Nachname, Listenspalte::Vorname, Listenspalte::Ort};
    std::vector<Listenspalte> spalten(breite, Listenspalte::Unbekannt);
    std::vector<size_t> namen;
    for (size_t i = 0; i < breite; ++i) {
        if (meist(zeilen, i, [](const Text& z) { return GeburtsdatumLesen(z).has_value(); }))
            spalten[i] = Listenspalte::Datum;
        else if (meist(zeilen, i, [](const Text& z) { return !GeschlechtLesen(z).empty(); }))
            spalten[i] = Listenspalte::Geschlecht;
        else if (!meist(zeilen, i, istNummer))
            namen.push_back(i);
    }
    for (size_t i = 0; i < namen.size(); ++i)
        spalten[namen[i]] = namen.size() == 1  ? Listenspalte::Ganzname
                            : i < Namen.size() ? Namen.at(i)
                                               : Listenspalte::AG;
    return spalten;
}

} // namespace

Text GeschlechtLesen(TextView text) {
    for (const auto& [wort, geschlecht] : Geschlechtswoerter)
        if (sameIgnoringCase(text, wort))
            return Text(geschlecht);
    return {};
}

Spaltenwahl SpaltenErkennen(const std::vector<Tabellenzeile>& zeilen) {
    const auto erste =
        std::ranges::find_if(zeilen, [](const Tabellenzeile& z) { return !z.empty(); });
    if (erste == zeilen.end())
        return {};
    Spaltenwahl wahl;
    for (const Text& zelle : *erste)
        wahl.Spalten.push_back(nachKopf(zelle));
    wahl.Kopfzeile = std::ranges::any_of(
        wahl.Spalten, [](Listenspalte s) { return s != Listenspalte::Unbekannt; });
    if (!wahl.Kopfzeile) {
        const size_t breite = std::ranges::max(zeilen, {}, &Tabellenzeile::size).size();
        wahl.Spalten = nachInhalt(zeilen, breite);
    } else if (std::ranges::find(wahl.Spalten, Listenspalte::Vorname) == wahl.Spalten.end()) {
        // "Name" alone is the whole name.
        std::ranges::replace(wahl.Spalten, Listenspalte::Nachname, Listenspalte::Ganzname);
    }
    return wahl;
}

} // namespace zeugnis
