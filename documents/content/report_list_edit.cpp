#include "documents/content/report_list_edit.h"

#include "documents/content/report_frame.h"

#include <algorithm>

namespace zeugnis::dokumente {
namespace {

std::vector<Text> geteilt(TextView text, char16_t trenner) {
    std::vector<Text> teile;
    for (size_t von = 0; von <= text.size();) {
        const size_t bis = std::min(text.find(trenner, von), text.size());
        teile.emplace_back(text.substr(von, bis - von));
        von = bis + 1;
    }
    return teile;
}

std::vector<std::vector<Text>> felderAus(const Text& text) {
    Text zeilen;
    for (const char16_t zeichen : withBoxLineEnds(text))
        if (zeichen != u'\r')
            zeilen += zeichen;
    // A block copied from a table ends with a line end.
    if (!zeilen.empty() && zeilen.back() == u'\n')
        zeilen.pop_back();
    std::vector<std::vector<Text>> felder;
    for (const Text& zeile : geteilt(zeilen, u'\n'))
        felder.push_back(geteilt(zeile, u'\t'));
    return felder;
}

bool inDerListe(const Stammdaten& daten, const Zelltext& zelle) {
    const auto spalten = static_cast<int>(SpaltenFuer(daten.Jahrgang).size());
    return zelle.Platz >= 0 && zelle.Platz < daten.Liste.Schuelerzahl && zelle.Spalte >= 0 &&
           zelle.Spalte < spalten;
}

Ablehnung abgelehnt(const Stammdaten& daten, const Zelltext& zelle, TextView satz) {
    return {.Platz = zelle.Platz,
            .Spalte = zelle.Spalte,
            .Satz = Kindname(daten.Liste.Kinder[zelle.Platz]) + u" – " + Text(satz)};
}

} // namespace

std::variant<std::vector<Zellwert>, Ablehnung>
AenderungBilden(const Stammdaten& daten, const Schuelertabelle<Eintrag>& eintraege,
                const std::vector<Zelltext>& zellen) {
    Schuelertabelle<Eintrag> danach = eintraege;
    std::vector<Zellwert> aenderung;
    for (const Zelltext& zelle : zellen) {
        if (!inDerListe(daten, zelle))
            return Ablehnung{.Platz = zellen.front().Platz,
                             .Spalte = zellen.front().Spalte,
                             .Satz = u"Was eingefügt werden soll, ist größer als der Platz bis zum "
                                     u"Rand der Liste."};
        const Spalte& spalte = SpaltenFuer(daten.Jahrgang)[static_cast<size_t>(zelle.Spalte)];
        const std::variant<int, Text> gelesen = ZelleLesen(spalte, zelle.Inhalt);
        if (const Text* satz = std::get_if<Text>(&gelesen))
            return abgelehnt(daten, zelle, *satz);
        int& wert = danach[zelle.Platz].Werte.at(static_cast<size_t>(zelle.Spalte));
        if (wert == std::get<int>(gelesen))
            continue;
        wert = std::get<int>(gelesen);
        aenderung.push_back({.Platz = zelle.Platz, .Spalte = zelle.Spalte, .Wert = wert});
    }
    for (const Zelltext& zelle : zellen)
        if (const TextView satz = EintragPruefen(danach[zelle.Platz]); !satz.empty())
            return abgelehnt(daten, zelle, satz);
    return aenderung;
}

std::vector<Zelltext> ZellenAusText(const Text& text, const Zelltext& ecke, int hoehe, int breite) {
    const std::vector<std::vector<Text>> felder = felderAus(text);
    const bool istEinzeln = felder.size() == 1 && felder.front().size() == 1;
    std::vector<Zelltext> zellen;
    for (int zeile = 0; zeile < (istEinzeln ? hoehe : static_cast<int>(felder.size())); ++zeile) {
        const std::vector<Text>& quelle = felder.at(istEinzeln ? 0 : static_cast<size_t>(zeile));
        for (int spalte = 0; spalte < (istEinzeln ? breite : static_cast<int>(quelle.size()));
             ++spalte)
            zellen.push_back({.Platz = ecke.Platz + zeile,
                              .Spalte = ecke.Spalte + spalte,
                              .Inhalt = quelle.at(istEinzeln ? 0 : static_cast<size_t>(spalte))});
    }
    return zellen;
}

} // namespace zeugnis::dokumente
