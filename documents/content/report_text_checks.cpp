#include "documents/content/report_text_checks.h"

#include "checks/words.h"
#include "documents/model/document.h"

#include <algorithm>
#include <array>
#include <map>

namespace zeugnis::dokumente {
namespace {

constexpr size_t StellenHoechstens = 3;

struct Mangelsatz {
    Textmangel Art;
    TextView Einzahl; ///< around the place
    TextView Mehrzahl;
    TextView Danach;
};
constexpr auto Mangelsaetze = std::to_array<Mangelsatz>({
    {Textmangel::KleinerAnfang, u"Ein Satz beginnt klein: ", u"Sätze beginnen klein: ", u"."},
    {Textmangel::FehlendesLeerzeichen, u"Hinter einem Satzzeichen fehlt ein Leerzeichen: ",
     u"Hinter Satzzeichen fehlen Leerzeichen: ", u"."},
    {Textmangel::Wortrest, u"Einem Wort fehlt der Anfang: ", u"Wörtern fehlt der Anfang: ", u"."},
    {Textmangel::OffenesEnde, u"Der Punkt oder der Rest des Satzes fehlt hinter ",
     u"Der Punkt oder der Rest des Satzes fehlt hinter ", u"."},
    {Textmangel::Zusammengelaufen, u"Zwei Sätze laufen zusammen, es fehlt etwas vor ",
     u"Sätze laufen zusammen, es fehlt etwas vor ", u"."},
    {Textmangel::Unbekannt, u"Bitte die Schreibung prüfen: ", u"Bitte die Schreibung prüfen: ",
     u"."},
    {Textmangel::AnderesGeschlecht, u"Dieses Fürwort passt nicht zum Kind: ",
     u"Diese Fürwörter passen nicht zum Kind: ", u"."},
    {Textmangel::Namensform, u"Die Form des Namens ist falsch: ",
     u"Die Form des Namens ist falsch: ", u" („Lenas Heft“, aber „Mats’ Heft“)."},
});

Text satzAus(const Mangelsatz& form, const std::vector<Text>& stellen) {
    std::vector<Text> gezeigt;
    for (size_t i = 0; i < std::min(stellen.size(), StellenHoechstens); ++i)
        gezeigt.push_back(u"„" + stellen[i] + u"“");
    if (stellen.size() > StellenHoechstens)
        gezeigt.back() = u"weitere Stellen";
    const TextView anfang = stellen.size() == 1 ? form.Einzahl : form.Mehrzahl;
    return Text(anfang) + enumerated(gezeigt) + Text(form.Danach);
}

void woerterMerken(std::set<Text>& alle, const Text& text) {
    for (const Wort& wort : WoerterVon(text)) {
        alle.insert(Text(wort.Text));
        alle.insert(Text(wort.Text) + u"s");
    }
}

Text fehlt(TextView davor, const std::vector<Text>& was) {
    return was.empty() ? Text() : Text(davor) + enumerated(was) + u".";
}

} // namespace

std::vector<Textbefund> TextbefundeVon(const Text& gedruckt, const Textumstand& umstand) {
    std::map<Textmangel, std::vector<Text>> stellen;
    for (Befundstelle& stelle : TextPruefen(gedruckt, umstand)) {
        std::vector<Text>& gleiche = stellen[stelle.Art];
        if (std::find(gleiche.begin(), gleiche.end(), stelle.Stelle) == gleiche.end())
            gleiche.push_back(std::move(stelle.Stelle));
    }
    // The rest of a word at the beginning of a sentence has been told of.
    if (stellen.contains(Textmangel::KleinerAnfang))
        stellen.erase(Textmangel::Wortrest);
    std::vector<Textbefund> befunde;
    for (const Mangelsatz& form : Mangelsaetze)
        if (const auto gefunden = stellen.find(form.Art); gefunden != stellen.end())
            befunde.push_back({satzAus(form, gefunden->second), form.Art == Textmangel::Unbekannt
                                                                    ? gefunden->second
                                                                    : std::vector<Text>()});
    return befunde;
}

std::set<Text> NamenDerKlasse(const Stammdaten& stamm) {
    std::set<Text> namen;
    for (int platz = 0; platz < stamm.Liste.Schuelerzahl; ++platz) {
        const Schueler& kind = stamm.Liste.Kinder[platz];
        // The other form of a name that ends in s is a slip.
        for (const Wort& wort : WoerterVon(kind.Vorname))
            namen.insert(Text(wort.Text));
        if (!kind.Vorname.empty() && TextView(u"sßxz").find(kind.Vorname.back()) == TextView::npos)
            namen.insert(kind.Vorname + u"s");
        woerterMerken(namen, kind.Nachname);
        woerterMerken(namen, kind.Geburtsort);
        for (const Text& ag : kind.AG)
            woerterMerken(namen, ag);
    }
    const Schuldaten& schule = stamm.Schule;
    for (const Text& angabe : {schule.Schulname, schule.Schulzusatz, schule.Schulanschrift,
                               schule.Ausgabeort, schule.Klassenleitung})
        woerterMerken(namen, angabe);
    return namen;
}

Text FehlendeAngaben(const Schueler& kind) {
    std::vector<Text> was;
    if (printable(kind.Geburtsdatum).empty())
        was.emplace_back(u"Geburtsdatum");
    if (printable(kind.Geburtsort).empty())
        was.emplace_back(u"Geburtsort");
    if (kind.Geschlecht != u"m" && kind.Geschlecht != u"w")
        was.emplace_back(u"Geschlecht");
    return fehlt(u"In den Stammdaten fehlt: ", was);
}

Text FehlendeSchulangaben(const Schuldaten& schule) {
    const std::vector<std::pair<const Text&, TextView>> angaben = {
        {schule.Schulname, u"Name der Schule"},
        {schule.Schuljahr, u"Schuljahr"},
        {schule.Ausgabeort, u"Ort"},
        {schule.Ausgabedatum, u"Datum der Ausgabe"},
        {schule.Konferenzdatum, u"Datum der Konferenz"},
        {schule.Klassenleitung, u"Klassenleitung"},
    };
    std::vector<Text> was;
    for (const auto& [angabe, name] : angaben)
        if (printable(angabe).empty())
            was.emplace_back(name);
    return fehlt(u"In den Angaben zur Schule fehlt: ", was);
}

} // namespace zeugnis::dokumente
