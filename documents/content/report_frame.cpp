#include "documents/content/report_frame.h"

#include "documents/content/paper_text.h"
#include "documents/content/wording.h"

#include <array>

namespace zeugnis::dokumente {
namespace {

constexpr std::array Unterschriftsbreiten = {9, 4, 9};

Text geburt(const Schueler& kind) {
    const Text datum = printable(kind.Geburtsdatum);
    const Text ort = printable(kind.Geburtsort);
    if (datum.empty() && ort.empty())
        return {};
    return verbunden(datum.empty() ? u"geboren" : u"geboren am " + datum, u" in ", ort);
}

Paragraph gehalten(StyleId stil, Text text) {
    Paragraph absatz = paragraph(stil, std::move(text));
    absatz.keepWithNext = true;
    return absatz;
}

Cell linie(const Text& angabe) {
    return {.paragraphs = {paragraph(StyleId::Unterschriftsraum, u""),
                           paragraph(StyleId::Unterschrift, angabe)}};
}

Text mitNamen(const Stammdaten& stamm, const Text& name, TextView amt) {
    return verbunden(stamm.Aufbau.Namen ? printable(name) : Text(), u"\n", Text(amt));
}

Cell siegel() {
    return {.paragraphs = {paragraph(StyleId::Unterschriftsraum, u""),
                           paragraph(StyleId::Siegel, u"(Siegel)")}};
}

// The cells have the same lines above their rules, so that these lie at one height.
Row kenntnisnahme(Zeugnisaufbau::Kenntnisnahme art) {
    const auto mit = [](Cell zelle, const Text& satz) {
        zelle.paragraphs.insert(zelle.paragraphs.begin(), {paragraph(StyleId::Gesehen, u""),
                                                           paragraph(StyleId::Gesehen, satz)});
        return zelle;
    };
    const bool mitDatum = art == Zeugnisaufbau::Kenntnisnahme::DatumUndUnterschrift;
    const Text satz = u"Zur Kenntnis genommen:";
    const Cell unterschrift = linie(u"Erziehungsberechtigte/r");
    if (mitDatum)
        return {mit(linie(u"Datum"), satz), {}, mit(unterschrift, u"")};
    return {mit(unterschrift, satz), {}, {}};
}

} // namespace

Text Kindname(const Schueler& kind) {
    return oderStrich(verbunden(printable(kind.Vorname), u" ", printable(kind.Nachname)));
}

TextView Zeugnistitel(const Stammdaten& stamm) {
    return IstZahl(stamm.Halbjahr, 1) ? u"Halbjahreszeugnis" : u"Zeugnis";
}

std::vector<Block> Schulkopf(const Stammdaten& stamm, TextView titel) {
    const Schuldaten& schule = stamm.Schule;
    std::vector<Block> kopf;
    if (stamm.Kopfbild)
        kopf.emplace_back(*stamm.Kopfbild);
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

Row Unterschriften(const Stammdaten& stamm, Cell mitte) {
    return {linie(mitNamen(stamm, stamm.Schule.Klassenleitung, u"Klassenlehrkraft")),
            std::move(mitte), linie(mitNamen(stamm, stamm.Aufbau.Schulleitung, u"Schulleitung"))};
}

std::vector<Block> Zeugnisschluss(const Stammdaten& stamm, bool nichtVersetzt) {
    const Zeugnisaufbau& aufbau = stamm.Aufbau;
    std::vector<Block> schluss = {gehalten(StyleId::Schlussangabe, u"")};
    if (nichtVersetzt && !printable(aufbau.Rechtsbehelf).empty())
        schluss.emplace_back(gehalten(StyleId::Schlussangabe, AufPapier(aufbau.Rechtsbehelf)));
    if (!printable(aufbau.Unterricht).empty())
        schluss.emplace_back(gehalten(StyleId::Schlussangabe, AufPapier(aufbau.Unterricht)));
    schluss.emplace_back(
        gehalten(StyleId::Schlussangabe,
                 u"Konferenzbeschluss vom " + oderStrich(stamm.Schule.Konferenzdatum)));
    schluss.emplace_back(gehalten(StyleId::Schlussangabe, OrtUndDatum(stamm.Schule)));
    Table linien{.columns = {Unterschriftsbreiten.begin(), Unterschriftsbreiten.end()},
                 .rows = {Unterschriften(stamm, siegel())},
                 .keepRows = true};
    if (aufbau.Eltern != Zeugnisaufbau::Kenntnisnahme::Keine)
        linien.rows.push_back(kenntnisnahme(aufbau.Eltern));
    schluss.emplace_back(std::move(linien));
    return schluss;
}

} // namespace zeugnis::dokumente
