#include "documents/content/report_frame.h"

#include "documents/content/wording.h"

namespace zeugnis::dokumente {
namespace {

constexpr size_t LangAb = 1000;
constexpr size_t EndeMindestens = 160; // about two lines

Text geburt(const Schueler& kind) {
    const Text datum = printable(kind.Geburtsdatum);
    const Text ort = printable(kind.Geburtsort);
    if (datum.empty() && ort.empty())
        return {};
    return verbunden(datum.empty() ? u"geboren" : u"geboren am " + datum, u" in ", ort);
}

// Where the part begins that is kept; 0 if the text stays whole.
size_t teilstelle(TextView text) {
    if (text.size() <= LangAb)
        return 0;
    const size_t umbruch = text.rfind(u'\n');
    if (umbruch != TextView::npos && text.size() - umbruch < LangAb)
        return umbruch + 1;
    const size_t satz = text.rfind(u". ", text.size() - EndeMindestens);
    return satz != TextView::npos && text.size() - satz < LangAb ? satz + 2 : 0;
}

Cell zelle(std::initializer_list<std::pair<StyleId, Text>> absaetze) {
    Cell eine;
    for (const auto& [stil, text] : absaetze)
        eine.paragraphs.push_back(paragraph(stil, text));
    return eine;
}

} // namespace

Text Kindname(const Schueler& kind) {
    return oderStrich(verbunden(printable(kind.Vorname), u" ", printable(kind.Nachname)));
}

std::vector<Block> Schulkopf(const Stammdaten& stamm, TextView titel) {
    const Schuldaten& schule = stamm.Schule;
    std::vector<Block> kopf;
    kopf.emplace_back(paragraph(StyleId::Schulname, oderStrich(schule.Schulname)));
    for (const Text& angabe : {schule.Schulzusatz, schule.Schulanschrift})
        if (Text sauber = printable(angabe); !sauber.empty())
            kopf.emplace_back(paragraph(StyleId::Schulangabe, std::move(sauber)));
    kopf.emplace_back(paragraph(StyleId::Titel, Text(titel)));
    kopf.emplace_back(paragraph(StyleId::Zeitraum, u"Schuljahr " + oderStrich(schule.Schuljahr) +
                                                       u", " + stamm.Halbjahr + u". Halbjahr"));
    return kopf;
}

std::vector<Block> Zeugniskopf(const Stammdaten& stamm, const Schueler& kind, TextView titel) {
    std::vector<Block> kopf = Schulkopf(stamm, titel);
    kopf.emplace_back(paragraph(StyleId::Kindname, Kindname(kind)));
    kopf.emplace_back(paragraph(StyleId::Kindangabe,
                                verbunden(geburt(kind), u"\n", u"Klasse " + stamm.Liste.Klasse)));
    return kopf;
}

Text OrtUndDatum(const Schuldaten& schule) {
    return oderStrich(schule.Ausgabeort) + u", den " + oderStrich(schule.Ausgabedatum);
}

Table Zeugnisschluss(const Schuldaten& schule) {
    const auto angabe = StyleId::Schlussangabe;
    const auto linie = StyleId::Unterschrift;
    Table schluss{.columns = {9, 4, 9}, .rows = {}};
    schluss.rows.push_back({
        zelle({{angabe, u""},
               {angabe, u"Konferenz vom " + oderStrich(schule.Konferenzdatum)},
               {angabe, OrtUndDatum(schule)},
               {linie, u"Klassenlehrkraft"},
               {StyleId::Gesehen, u"Gesehen:"},
               {linie, u"Erziehungsberechtigte/r"}}),
        zelle({{angabe, u""}, {angabe, u""}, {angabe, u""}, {StyleId::Siegel, u"(Siegel)"}}),
        zelle({{angabe, u""}, {angabe, u""}, {angabe, u""}, {linie, u"Schulleitung"}}),
    });
    return schluss;
}

void LetztenAbsatzHalten(std::vector<Block>& seite) {
    Paragraph& letzter = std::get<Paragraph>(seite.back());
    const Text text = textOf(letzter);
    const size_t teil = teilstelle(text);
    if (teil == 0) {
        letzter.keepWithNext = true;
        return;
    }
    Paragraph ende = paragraph(letzter.style, text.substr(teil));
    ende.keepWithNext = true;
    letzter = paragraph(StyleId::BereichstextAnfang, printable(text.substr(0, teil)));
    seite.emplace_back(std::move(ende));
}

} // namespace zeugnis::dokumente
