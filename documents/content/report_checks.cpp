#include "documents/content/report_checks.h"

#include "checks/other_names.h"
#include "documents/content/report_frame.h"
#include "documents/content/report_text_checks.h"
#include "documents/content/wording.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <set>

namespace zeugnis::dokumente {
namespace {

constexpr TextView Lueckenmarke = u"?????";
constexpr size_t NamenHoechstens = 3;

struct Abschnitt {
    TextView Ueberschrift;
    Text Gedruckt; ///< the text as the report shows it
    Vergleichswoerter Woerter = {};
};

// The sections of each child, the same in the same order.
using Klassentexte = std::vector<std::vector<Abschnitt>>;

struct Pruefling {
    const Stammdaten& Stamm;
    const std::optional<Zeugnisliste>& Liste;
    const Klassentexte& Texte;
    const Pruefmittel& Mittel;
    const std::set<Text>& Bekannte;
    int Platz;

    [[nodiscard]] const Schueler& kind(int platz) const { return Stamm.Liste.Kinder[platz]; }
    [[nodiscard]] Text name() const { return Kindname(kind(Platz)); }
    [[nodiscard]] const std::vector<Abschnitt>& abschnitte(int platz) const {
        return Texte[static_cast<size_t>(platz)];
    }
    [[nodiscard]] int anzahl() const { return Stamm.Liste.Schuelerzahl; }
};

using Befunde = std::vector<Befund>;

// A run of exactly two: three full stops are meant.
bool hatDoppelpunkt(TextView text) {
    for (size_t i = text.find(u".."); i != TextView::npos; i = text.find(u"..", i)) {
        const size_t ende = std::min(text.find_first_not_of(u'.', i), text.size());
        if (ende - i == 2)
            return true;
        i = ende;
    }
    return false;
}

void ohneText(const Pruefling& pruefling, Befunde& befunde) {
    std::vector<Text> leere;
    const std::vector<Abschnitt>& abschnitte = pruefling.abschnitte(pruefling.Platz);
    TextView erster;
    for (const Abschnitt& abschnitt : abschnitte) {
        if (!abschnitt.Gedruckt.empty())
            continue;
        if (leere.empty())
            erster = abschnitt.Ueberschrift;
        leere.push_back(u"„" + Text(abschnitt.Ueberschrift) + u"“");
    }
    if (leere.size() == abschnitte.size())
        befunde.push_back({pruefling.Platz, pruefling.name(), erster, u"Es gibt noch keine Texte.",
                           Befundart::OhneText});
    else if (!leere.empty())
        befunde.push_back({pruefling.Platz, pruefling.name(), erster,
                           u"Ohne Text: " + enumerated(leere) + u".", Befundart::OhneText});
}

using Abschnittspruefung = Text (*)(const Pruefling& pruefling, const Text& text);

// Runs a check over all sections that have a text.
template <Abschnittspruefung Pruefung>
void jeAbschnitt(const Pruefling& pruefling, Befunde& befunde) {
    for (const Abschnitt& abschnitt : pruefling.abschnitte(pruefling.Platz)) {
        if (abschnitt.Gedruckt.empty())
            continue;
        if (const Text satz = Pruefung(pruefling, abschnitt.Gedruckt); !satz.empty())
            befunde.push_back({pruefling.Platz, pruefling.name(), abschnitt.Ueberschrift,
                               Text(abschnitt.Ueberschrift) + u": " + satz});
    }
}

Text platzhalterImText(const Pruefling& pruefling, const Text& text) {
    std::vector<Text> gefunden;
    for (const Text& mark : pruefling.Mittel.Platzhalter)
        if (text.find(mark) != Text::npos)
            gefunden.push_back(mark);
    if (gefunden.empty())
        return {};
    return (gefunden.size() == 1 ? u"Ein Platzhalter steht noch im Text: "
                                 : u"Platzhalter stehen noch im Text: ") +
           enumerated(gefunden) + u".";
}

Text luecke(const Pruefling& /*pruefling*/, const Text& text) {
    return text.find(Lueckenmarke) == Text::npos
               ? Text()
               : u"Hier fehlt noch etwas, im Text steht „" + Text(Lueckenmarke) + u"“.";
}

Text fremderName(const Pruefling& pruefling, const Text& text) {
    const std::vector<Text> namen = FremdeVornamen(text, pruefling.Stamm.Liste, pruefling.Platz);
    return namen.empty()
               ? Text()
               : u"Im Text steht der Name eines anderen Kindes: " + enumerated(namen) + u".";
}

Text doppelteZeichen(const Pruefling& /*pruefling*/, const Text& text) {
    const bool leerzeichen = text.find(u"  ") != Text::npos;
    if (hatDoppelpunkt(text))
        return leerzeichen ? u"doppelter Punkt und doppeltes Leerzeichen." : u"doppelter Punkt.";
    return leerzeichen ? u"doppeltes Leerzeichen." : u"";
}

Text aufgezaehlt(const Pruefling& pruefling, const std::vector<int>& plaetze) {
    std::vector<Text> namen;
    namen.reserve(plaetze.size());
    for (const int platz : plaetze)
        namen.push_back(Kindname(pruefling.kind(platz)));
    if (namen.size() > NamenHoechstens) {
        const int weitere = static_cast<int>(namen.size() - NamenHoechstens + 1);
        namen.resize(NamenHoechstens - 1);
        namen.push_back(textFromNumber(weitere) + u" weiteren Kindern");
    }
    return enumerated(namen);
}

void zwillingeMelden(const Pruefling& pruefling, TextView ueberschrift,
                     const std::vector<Zwilling>& zwillinge, Befunde& befunde) {
    for (const bool genau : {true, false}) {
        std::vector<int> andere;
        for (const Zwilling& zwilling : zwillinge)
            if (zwilling.Genau == genau)
                andere.push_back(zwilling.Platz);
        if (!andere.empty())
            befunde.push_back(
                {.Platz = pruefling.Platz,
                 .Kind = pruefling.name(),
                 .Abschnitt = ueberschrift,
                 .Satz = Text(ueberschrift) +
                         (genau ? u": derselbe Text wie bei " : u": fast derselbe Text wie bei ") +
                         aufgezaehlt(pruefling, andere) + u".",
                 .Zwillinge = andere});
    }
}

void gleicherText(const Pruefling& pruefling, Befunde& befunde) {
    const std::vector<Abschnitt>& eigene = pruefling.abschnitte(pruefling.Platz);
    for (size_t i = 0; i < eigene.size(); ++i) {
        std::vector<Zwilling> zwillinge;
        for (int platz = 0; platz < pruefling.anzahl(); ++platz) {
            const Abschnitt& andere = pruefling.abschnitte(platz)[i];
            const bool genau = SindGleich(andere.Gedruckt, eigene[i].Gedruckt);
            if (platz != pruefling.Platz &&
                (genau || SindFastGleich(andere.Woerter, eigene[i].Woerter)))
                zwillinge.push_back({platz, genau});
        }
        zwillingeMelden(pruefling, eigene[i].Ueberschrift, zwillinge, befunde);
    }
}

// Subjects in which no child of the class has a grade are not taught.
std::vector<Text> fehlendeNoten(const Pruefling& pruefling) {
    std::vector<Text> faecher;
    const std::span<const Spalte> spalten = SpaltenFuer(pruefling.Stamm.Jahrgang);
    const Schuelertabelle<Eintrag>& eintraege = pruefling.Liste->Eintraege;
    for (size_t i = ErstesFach; i < spalten.size(); ++i) {
        const bool wirdErteilt =
            std::any_of(eintraege.begin(), eintraege.end(),
                        [i](const Eintrag& einer) { return einer.Werte.at(i) != LeereZelle; });
        if (wirdErteilt && eintraege[pruefling.Platz].Werte.at(i) == LeereZelle)
            faecher.emplace_back(spalten[i].Name);
    }
    return faecher;
}

void versaeumnisse(const Pruefling& pruefling, Befunde& befunde) {
    if (!pruefling.Liste)
        return;
    const Eintrag& eintrag = pruefling.Liste->Eintraege[pruefling.Platz];
    if (eintrag.Werte[SpalteTage] == LeereZelle)
        befunde.push_back({pruefling.Platz,
                           pruefling.name(),
                           {},
                           u"Noch keine Versäumnisse eingetragen.",
                           Befundart::Liste});
    else if (eintrag.Werte[SpalteUnentschuldigt] == LeereZelle)
        befunde.push_back({pruefling.Platz,
                           pruefling.name(),
                           {},
                           u"Versäumnisse: Es ist nicht eingetragen, wie viele Tage "
                           u"unentschuldigt sind.",
                           Befundart::Liste});
}

void noten(const Pruefling& pruefling, Befunde& befunde) {
    if (!pruefling.Liste || !HatNoten(pruefling.Stamm.Jahrgang))
        return;
    if (!pruefling.Liste->Eintraege[pruefling.Platz].hatNoten()) {
        befunde.push_back({pruefling.Platz,
                           pruefling.name(),
                           {},
                           u"Noch keine Noten eingetragen.",
                           Befundart::Noten});
        return;
    }
    if (const std::vector<Text> faecher = fehlendeNoten(pruefling); !faecher.empty())
        befunde.push_back({pruefling.Platz,
                           pruefling.name(),
                           {},
                           u"Es fehlt die Note in " + enumerated(faecher) + u".",
                           Befundart::Noten});
}

void saetzeUndWoerter(const Pruefling& pruefling, Befunde& befunde) {
    const Schueler& kind = pruefling.kind(pruefling.Platz);
    const Textumstand umstand{.Vorname = trimmed(kind.Vorname),
                              .Geschlecht = kind.Geschlecht,
                              .Bausteine = pruefling.Mittel.Bausteine,
                              .Woerterbuch = pruefling.Mittel.Woerterbuch,
                              .Bekannt = &pruefling.Bekannte};
    for (const Abschnitt& abschnitt : pruefling.abschnitte(pruefling.Platz))
        for (Textbefund& befund : TextbefundeVon(abschnitt.Gedruckt, umstand))
            befunde.push_back({.Platz = pruefling.Platz,
                               .Kind = pruefling.name(),
                               .Abschnitt = abschnitt.Ueberschrift,
                               .Satz = Text(abschnitt.Ueberschrift) + u": " + befund.Satz,
                               .Woerter = std::move(befund.Woerter)});
}

Text einschraenkung(const Pruefling& /*pruefling*/, const Text& text) {
    return IstUnbegruendetEingeschraenkt(text)
               ? u"Die Gesamtbewertung ist eingeschränkt, aber kein Satz sagt, warum."
               : u"";
}

void versetzung(const Pruefling& pruefling, Befunde& befunde) {
    const Abschnitt& bemerkungen = pruefling.abschnitte(pruefling.Platz).back();
    if (IstZahl(pruefling.Stamm.Halbjahr, 2) && !bemerkungen.Gedruckt.empty() &&
        !NenntVersetzung(bemerkungen.Gedruckt))
        befunde.push_back(
            {pruefling.Platz, pruefling.name(), bemerkungen.Ueberschrift,
             Text(bemerkungen.Ueberschrift) + u": Es steht kein Satz zur Versetzung da."});
}

void angaben(const Pruefling& pruefling, Befunde& befunde) {
    if (Text satz = FehlendeAngaben(pruefling.kind(pruefling.Platz)); !satz.empty())
        befunde.push_back(
            {pruefling.Platz, pruefling.name(), {}, std::move(satz), Befundart::Angaben});
}

using Pruefung = void (*)(const Pruefling& pruefling, Befunde& befunde);

constexpr std::array Kindpruefungen = {angaben, versaeumnisse, noten, ohneText};

// What can be told of each section by itself.
constexpr std::array<Pruefung, 6> Textpruefungen = {
    jeAbschnitt<platzhalterImText>, jeAbschnitt<luecke>, jeAbschnitt<fremderName>,
    jeAbschnitt<doppelteZeichen>,   saetzeUndWoerter,    jeAbschnitt<einschraenkung>,
};

// FNV-1a over what is said about whom, and over the text that it is said about.
Text vermerk(const Befund& befund, const Text& gedruckt) {
    std::uint64_t summe = 14695981039346656037U;
    for (const Text& teil : {befund.Kind, befund.Satz, gedruckt})
        for (const char16_t zeichen : teil + u"|")
            summe = (summe ^ zeichen) * 1099511628211U;
    constexpr TextView Ziffern = u"0123456789abcdef";
    Text hex;
    for (int stelle = 60; stelle >= 0; stelle -= 4)
        hex += Ziffern[summe >> static_cast<unsigned>(stelle) & 0xFU];
    return hex;
}

void vermerken(Befunde& befunde, const Klassentexte& texte) {
    for (Befund& befund : befunde) {
        Text gedruckt;
        if (befund.Platz != AlleKinder)
            for (const Abschnitt& abschnitt : texte[static_cast<size_t>(befund.Platz)])
                if (abschnitt.Ueberschrift == befund.Abschnitt)
                    gedruckt = abschnitt.Gedruckt;
        befund.Vermerk = vermerk(befund, gedruckt);
    }
}

void listePruefen(const Zeugnisdaten& daten, Befunde& befunde) {
    const Text name(Listenname(daten.Stamm.Jahrgang));
    const TextView was =
        HatNoten(daten.Stamm.Jahrgang) ? u"Versäumnissen und Noten" : u"Versäumnissen";
    if (!daten.Liste)
        befunde.push_back({.Satz = u"Die " + name +
                                   u" dieser Klasse ist noch nicht angelegt. In "
                                   u"allen Zeugnissen stehen bei " +
                                   Text(was) + u" Striche.",
                           .Art = Befundart::Liste});
    else if (!daten.Liste->OhneKind.empty())
        befunde.push_back({.Satz = u"In der " + name +
                                   u" stehen Einträge, zu denen es kein Kind "
                                   u"gibt: " +
                                   enumerated(daten.Liste->OhneKind) + u".",
                           .Art = Befundart::Liste});
}

Klassentexte texteDerKlasse(const Zeugnisdaten& daten) {
    Klassentexte klasse(static_cast<size_t>(daten.Stamm.Liste.Schuelerzahl));
    for (size_t platz = 0; platz < klasse.size(); ++platz) {
        const int nummer = static_cast<int>(platz);
        for (const Abschnittstext& abschnitt : AbschnitteVon(daten, nummer)) {
            const Text gedruckt = printable(abschnitt.Inhalt);
            klasse[platz].push_back(
                {abschnitt.Ueberschrift, gedruckt,
                 VergleichswoerterVon(gedruckt, daten.Stamm.Liste.Kinder[nummer].Vorname)});
        }
    }
    return klasse;
}

std::set<Text> bekannteWoerter(const Stammdaten& stamm, const Pruefmittel& mittel) {
    std::set<Text> bekannte = NamenDerKlasse(stamm);
    bekannte.insert(mittel.Gelernte.begin(), mittel.Gelernte.end());
    return bekannte;
}

} // namespace

std::vector<Befund> ZeugnissePruefen(const Zeugnisdaten& daten, const Pruefmittel& mittel) {
    Befunde befunde;
    if (Text satz = FehlendeSchulangaben(daten.Stamm.Schule); !satz.empty())
        befunde.push_back({.Satz = std::move(satz), .Art = Befundart::Angaben});
    listePruefen(daten, befunde);
    const Klassentexte texte = texteDerKlasse(daten);
    const std::set<Text> bekannte = bekannteWoerter(daten.Stamm, mittel);
    for (int platz = 0; platz < daten.Stamm.Liste.Schuelerzahl; ++platz) {
        const Pruefling pruefling{.Stamm = daten.Stamm,
                                  .Liste = daten.Liste,
                                  .Texte = texte,
                                  .Mittel = mittel,
                                  .Bekannte = bekannte,
                                  .Platz = platz};
        for (const Pruefung pruefung : Kindpruefungen)
            pruefung(pruefling, befunde);
        for (const Pruefung pruefung : Textpruefungen)
            pruefung(pruefling, befunde);
        versetzung(pruefling, befunde);
        gleicherText(pruefling, befunde);
    }
    vermerken(befunde, texte);
    return befunde;
}

std::vector<Befund> AbschnittPruefen(const Stammdaten& stamm, const Pruefmittel& mittel,
                                     const Einzeltext& text) {
    Klassentexte texte(static_cast<size_t>(stamm.Liste.Schuelerzahl));
    if (text.Platz >= stamm.Liste.Schuelerzahl)
        return {};
    texte[static_cast<size_t>(text.Platz)] = {{text.Ueberschrift, printable(text.Inhalt)}};
    const std::optional<Zeugnisliste> ohneListe;
    const std::set<Text> bekannte = bekannteWoerter(stamm, mittel);
    const Pruefling pruefling{.Stamm = stamm,
                              .Liste = ohneListe,
                              .Texte = texte,
                              .Mittel = mittel,
                              .Bekannte = bekannte,
                              .Platz = text.Platz};
    Befunde befunde;
    for (const Pruefung pruefung : Textpruefungen)
        pruefung(pruefling, befunde);
    if (text.NenntVersetzung)
        versetzung(pruefling, befunde);
    zwillingeMelden(pruefling, text.Ueberschrift, text.Zwillinge, befunde);
    vermerken(befunde, texte);
    return befunde;
}

} // namespace zeugnis::dokumente
