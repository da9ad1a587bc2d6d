#include "documents/content/report_list.h"

#include "files/pupil_records.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/record_reader.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <set>

namespace zeugnis::dokumente {
namespace {

using Name = std::pair<Text, Text>;

Listenzeile zeileLesen(RecordReader& reader, std::span<const Spalte> spalten) {
    Listenzeile zeile;
    zeile.Nummer = reader.integer();
    reader.skip(1);
    zeile.Nachname = reader.text();
    zeile.Vorname = reader.text();
    for (size_t i = 0; i < spalten.size(); ++i) {
        const int wert = zeile.Werte.Werte.at(i) = reader.integer();
        const bool erlaubt = wert >= spalten[i].Mindestens && wert <= spalten[i].Hoechstens;
        if (wert != LeereZelle && !erlaubt)
            throw Laufzeitfehler(Fehlerart::TypeMismatch,
                                 reader.place() + u": " + textFromNumber(wert) +
                                     u" kann hier nicht stehen (" + Text(spalten[i].Name) + u").");
    }
    if (const TextView satz = EintragPruefen(zeile.Werte); !satz.empty())
        throw Laufzeitfehler(Fehlerart::TypeMismatch, reader.place() + u": " + Text(satz));
    return zeile;
}

constexpr size_t FelderDavor = 4; // number, class and names

size_t felderDerZeile(std::string_view zeile) {
    size_t felder = 1;
    bool imText = false;
    for (const char zeichen : zeile) {
        imText = imText != (zeichen == '"');
        felder += zeichen == ',' && !imText ? 1 : 0;
    }
    return felder;
}

// A list from before a subject was added has one column less in all of its records. Anything else
// is damage, and shows when it is read.
std::span<const Spalte> spaltenDerDatei(std::string_view inhalt, std::span<const Spalte> alle) {
    size_t felder = 0;
    for (size_t ende = inhalt.find("\r\n"); ende != std::string_view::npos;
         ende = inhalt.find("\r\n")) {
        const size_t hier = felderDerZeile(inhalt.substr(0, ende));
        if (felder != 0 && hier != felder)
            return alle;
        felder = hier;
        inhalt.remove_prefix(ende + 2);
    }
    const bool aelter = felder >= FelderDavor + ErstesFach && felder < FelderDavor + alle.size();
    return aelter && inhalt.empty() ? alle.first(felder - FelderDavor) : alle;
}

void zeilenAnfuegen(std::string_view bytes, const Text& datei, int jahrgang,
                    std::vector<Listenzeile>& zeilen) {
    const std::span<const Spalte> spalten = spaltenDerDatei(bytes, SpaltenFuer(jahrgang));
    RecordReader reader(decodeWindows1252(bytes), datei);
    while (!reader.atEnd()) {
        PlatzPruefen(reader, static_cast<int>(zeilen.size()));
        zeilen.push_back(zeileLesen(reader, spalten));
    }
}

std::multiset<int> nummernInDerDatei(const std::vector<Listenzeile>& zeilen, const Name& name) {
    std::multiset<int> nummern;
    for (const Listenzeile& zeile : zeilen)
        if (Name(zeile.Nachname, zeile.Vorname) == name)
            nummern.insert(zeile.Nummer);
    return nummern;
}

std::multiset<int> nummernInDerKlasse(const Namensliste& liste, const Name& name) {
    std::multiset<int> nummern;
    for (int platz = 0; platz < liste.Schuelerzahl; ++platz)
        if (Name(liste.Kinder[platz].Nachname, liste.Kinder[platz].Vorname) == name)
            nummern.insert(platz + 1);
    return nummern;
}

// The number in the class list of the child that the line belongs to; 0 if there is none.
int nummerDesKindes(const Listenzeile& zeile, const std::vector<Listenzeile>& zeilen,
                    const Namensliste& liste) {
    const Name name(zeile.Nachname, zeile.Vorname);
    const std::multiset<int> kinder = nummernInDerKlasse(liste, name);
    const std::multiset<int> eintraege = nummernInDerDatei(zeilen, name);
    if (kinder.size() == 1 && eintraege.size() == 1)
        return *kinder.begin();
    return kinder == eintraege ? zeile.Nummer : 0;
}

} // namespace

bool Zeugnisliste::istLeer() const {
    return OhneKind.empty() && std::all_of(Eintraege.begin(), Eintraege.end(),
                                           [](const Eintrag& einer) { return einer.istLeer(); });
}

Text Listenstamm(const Stammdaten& daten) { return Klassenstamm(daten, u"Zeugnisliste"); }

std::vector<Listenzeile> ListenzeilenLesen(const Arbeitsverzeichnis& verzeichnis, TextView datei,
                                           int jahrgang) {
    return ListenzeilenAus(readWholeFile(verzeichnis, datei), verzeichnis.displayName(datei),
                           jahrgang);
}

std::vector<Listenzeile> ListenzeilenAus(std::string_view bytes, const Text& datei, int jahrgang) {
    std::vector<Listenzeile> zeilen;
    zeilenAnfuegen(bytes, datei, jahrgang, zeilen);
    return zeilen;
}

std::vector<Listenzeile> LesbareZeilenAus(std::string_view bytes, int jahrgang) {
    std::vector<Listenzeile> zeilen;
    try {
        zeilenAnfuegen(bytes, {}, jahrgang, zeilen);
    } catch (const Laufzeitfehler&) {
        return zeilen;
    }
    return zeilen;
}

Zeugnisliste Zuordnen(const std::vector<Listenzeile>& zeilen, const Namensliste& liste) {
    Zeugnisliste zugeordnet;
    for (const Listenzeile& zeile : zeilen) {
        const int nummer = nummerDesKindes(zeile, zeilen, liste);
        if (nummer > 0)
            zugeordnet.Eintraege[nummer - 1] = zeile.Werte;
        else if (!zeile.Werte.istLeer())
            zugeordnet.OhneKind.push_back(trimmed(zeile.Vorname + u" " + zeile.Nachname));
    }
    return zugeordnet;
}

void ZeugnislisteSchreiben(const Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten,
                           const Schuelertabelle<Eintrag>& eintraege) {
    ZeugnislisteSchreiben(verzeichnis, daten, eintraege, Listenstamm(daten) + u".txt");
}

void ZeugnislisteSchreiben(const Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten,
                           const Schuelertabelle<Eintrag>& eintraege, const Text& datei) {
    const size_t spalten = SpaltenFuer(daten.Jahrgang).size();
    JeSchuelerSchreiben(verzeichnis, datei, daten.Liste, [&](RecordWriter& writer, int platz) {
        for (size_t i = 0; i < spalten; ++i)
            writer.add(eintraege[platz].Werte.at(i));
    });
}

std::optional<Zeugnisliste> ZeugnislisteLesen(const Arbeitsverzeichnis& verzeichnis,
                                              const Stammdaten& daten) {
    const Text datei = Listenstamm(daten) + u".txt";
    if (!hasFile(verzeichnis, datei))
        return std::nullopt;
    return Zuordnen(ListenzeilenLesen(verzeichnis, datei, daten.Jahrgang), daten.Liste);
}

} // namespace zeugnis::dokumente
