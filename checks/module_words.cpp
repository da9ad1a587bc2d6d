#include "checks/module_words.h"

#include "checks/words.h"
#include "files/file_catalogue.h"
#include "files/insertion_files.h"
#include "platform/code_page.h"
#include "platform/record_reader.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <array>

namespace zeugnis {
namespace {

constexpr auto Bausteindateien = std::to_array<TextView>({
    u"TexteAV.txt",
    u"TexteSV.txt",
    u"Zwischentexte.Txt",
    u"Sprechen1.Txt",
    u"Sprechen2.Txt",
    u"Lesen1.Txt",
    u"Lesen2.Txt",
    u"Schreiben1.Txt",
    u"Schreiben2.Txt",
    u"Mathe1.Txt",
    u"Mathe2.Txt",
    u"Sportusw.Txt",
    u"Interessen12.Txt",
    u"Interessen34.Txt",
    u"Bemerkungen1.Txt",
    u"Bemerkungen2.Txt",
    u"Bemerkungen34.Txt",
    u"Versetzung1.Txt",
    u"Versetzung2.Txt",
    u"Versetzung3.Txt",
    u"Versetzung4.Txt",
    u"Förder34.Txt",
    u"AG.Txt",
    u"Zensurabweichung.Txt",
    u"Einfügungen1.txt",
    u"Einfügungen2.txt",
});

struct Platzhalterform {
    TextView Marke;
    TextView Maennlich;
    TextView Weiblich;
};
constexpr auto Formen = std::to_array<Platzhalterform>({
    {u"<Er/Sie>", u"Er", u"Sie"},
    {u"<sie/er>", u"er", u"sie"},
    {u"<ihr/ihm>", u"ihm", u"ihr"},
    {u"<Ihm/Ihr>", u"Ihm", u"Ihr"},
    {u"<ihr/sein>", u"sein", u"ihr"},
    {u"<Sein/Ihr>", u"Sein", u"Ihr"},
    {u"<in>", u"", u"in"},
});
constexpr size_t Anfangsworte = 4;

Text eingesetzt(Text text, TextView Platzhalterform::*form) {
    for (const Platzhalterform& eine : Formen)
        for (size_t i = text.find(eine.Marke); i != Text::npos; i = text.find(eine.Marke))
            text.replace(i, eine.Marke.size(), eine.*form);
    for (size_t i = text.find(u'<'); i != Text::npos; i = text.find(u'<')) {
        const size_t ende = text.find(u'>', i);
        text.replace(i, (ende == Text::npos ? text.size() : ende + 1) - i, u"#");
    }
    return text;
}

std::vector<Text> texteDerDatei(const Arbeitsverzeichnis& verzeichnis, TextView datei) {
    std::vector<Text> texte;
    const Text inhalt = decodeWindows1252(readWholeFile(verzeichnis, datei));
    for (size_t i = inhalt.find(u'"'); i != Text::npos;) {
        const size_t ende = inhalt.find(u'"', i + 1);
        if (ende == Text::npos)
            break;
        texte.push_back(inhalt.substr(i + 1, ende - i - 1));
        i = inhalt.find(u'"', ende + 1);
    }
    return texte;
}

// The first words, at most four and up to the end of the last of them; empty for a single one.
Text ersteWorte(const Text& text) {
    const std::vector<Wort> woerter = WoerterVon(text);
    if (woerter.size() < 2 || woerter[0].Stelle != 0)
        return {};
    const Wort& letztes = woerter[std::min(woerter.size(), Anfangsworte) - 1];
    const Text anfang = text.substr(0, letztes.Stelle + letztes.Text.size());
    return anfang.find(u'#') == Text::npos ? anfang : Text();
}

// A cell that names no child may also go on behind an opening label, with a noun at its beginning.
void merken(Bausteinwoerter& alle, const Text& text, bool kannOeffnen) {
    for (const Wort& wort : WoerterVon(text))
        alle.Woerter.insert(Text(wort.Text));
    if (!kannOeffnen || text.empty() || !IstGross(text.front()))
        return;
    if (Text anfang = ersteWorte(text); !anfang.empty())
        alle.Satzanfaenge.push_back(std::move(anfang));
}

} // namespace

Bausteinwoerter BausteinwoerterLesen(Arbeitsverzeichnis& verzeichnis) {
    Bausteinwoerter alle;
    std::vector<Text> einzeln; // opening labels of one word, which a cell completes
    std::vector<Text> zellen;
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    for (const TextView datei : Bausteindateien) {
        if (!hasFile(verzeichnis, datei))
            continue;
        const bool sindAnfaenge = datei == u"Zwischentexte.Txt";
        for (const Text& text : texteDerDatei(verzeichnis, datei)) {
            const bool kannOeffnen = sindAnfaenge || text.find(u'<') != Text::npos;
            for (const auto form : {&Platzhalterform::Maennlich, &Platzhalterform::Weiblich})
                merken(alle, eingesetzt(text, form), kannOeffnen);
            if (sindAnfaenge && WoerterVon(text).size() == 1)
                einzeln.push_back(text);
            else if (kannOeffnen && !text.empty() && IstKlein(text.front()))
                zellen.push_back(eingesetzt(text, &Platzhalterform::Weiblich));
        }
    }
    for (const Text& anfang : einzeln)
        for (const Text& zelle : zellen)
            if (Text beide = ersteWorte(Text(anfang).append(u" ").append(zelle)); !beide.empty())
                alle.Satzanfaenge.push_back(std::move(beide));
    return alle;
}

std::vector<Text> PlatzhalterLesen(Arbeitsverzeichnis& verzeichnis) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    if (!hasFile(verzeichnis, dateien::Platzhalter))
        return {};
    std::vector<Text> marken;
    RecordReader reader(verzeichnis, dateien::Platzhalter);
    while (!reader.atEnd()) {
        reader.skip(1);
        if (const Platzhaltersatz satz = PlatzhaltersatzLesen(reader);
            satz.Platzhalter.starts_with(u'<'))
            marken.push_back(satz.Platzhalter);
    }
    return marken;
}

} // namespace zeugnis
