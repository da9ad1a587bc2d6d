#include "documents/content/report_layout.h"

#include "platform/record_reader.h"
#include "platform/record_writer.h"
#include "platform/whole_file.h"

#include <array>

namespace zeugnis::dokumente {
namespace {

using Aufbau = Zeugnisaufbau;

template <typename Art>
struct Wahlwort {
    Art Wert;
    TextView Wort;
};

constexpr auto Reihenfolgen = std::to_array<Wahlwort<Aufbau::Verhalten>>({
    {Aufbau::Verhalten::Spaeter, u"später"},
    {Aufbau::Verhalten::Zuerst, u"zuerst"},
});
constexpr auto Religionsfaecher = std::to_array<Wahlwort<Aufbau::Religionsfach>>({
    {Aufbau::Religionsfach::Beide, u"beide"},
    {Aufbau::Religionsfach::Religion, u"Religion"},
    {Aufbau::Religionsfach::WerteUndNormen, u"Werte und Normen"},
});
constexpr auto Kenntnisnahmen = std::to_array<Wahlwort<Aufbau::Kenntnisnahme>>({
    {Aufbau::Kenntnisnahme::DatumUndUnterschrift, u"Datum und Unterschrift"},
    {Aufbau::Kenntnisnahme::Unterschrift, u"Unterschrift"},
    {Aufbau::Kenntnisnahme::Keine, u"keine"},
});
constexpr auto JaNein = std::to_array<Wahlwort<bool>>({{true, u"ja"}, {false, u"nein"}});

template <typename Art, size_t Anzahl>
void ausWort(const std::array<Wahlwort<Art>, Anzahl>& worte, TextView wort, Art& ziel) {
    for (const Wahlwort<Art>& eines : worte)
        if (eines.Wort == wort)
            ziel = eines.Wert;
}

template <typename Art, size_t Anzahl>
Text alsWort(const std::array<Wahlwort<Art>, Anzahl>& worte, Art wert) {
    for (const Wahlwort<Art>& eines : worte)
        if (eines.Wert == wert)
            return Text(eines.Wort);
    return {};
}

// One record of the file: its first field, and what its second is to the layout.
struct Angabe {
    TextView Name;
    void (*Setzen)(Aufbau& aufbau, const Text& wert);
    Text (*Nennen)(const Aufbau& aufbau);
};

template <Text Aufbau::*Feld>
constexpr Angabe text(TextView name) {
    return {.Name = name,
            .Setzen = [](Aufbau& aufbau, const Text& wert) { aufbau.*Feld = wert; },
            .Nennen = [](const Aufbau& aufbau) { return aufbau.*Feld; }};
}

template <auto Feld, const auto& Worte>
constexpr Angabe wahl(TextView name) {
    return {.Name = name,
            .Setzen = [](Aufbau& aufbau, const Text& wert) { ausWort(Worte, wert, aufbau.*Feld); },
            .Nennen = [](const Aufbau& aufbau) { return alsWort(Worte, aufbau.*Feld); }};
}

constexpr auto Angaben = std::to_array<Angabe>({
    wahl<&Aufbau::Reihenfolge, Reihenfolgen>(u"Arbeits- und Sozialverhalten"),
    wahl<&Aufbau::Religion, Religionsfaecher>(u"Religionsfach"),
    wahl<&Aufbau::Eltern, Kenntnisnahmen>(u"Kenntnisnahme"),
    wahl<&Aufbau::Namen, JaNein>(u"Namen unter den Unterschriften"),
    text<&Aufbau::Schulleitung>(u"Schulleitung"),
    text<&Aufbau::Kopfbild>(u"Bild im Kopf"),
    text<&Aufbau::Unterricht>(u"Unterrichtsbeginn"),
    text<&Aufbau::Rechtsbehelf>(u"Rechtsbehelf"),
});

// A double quote would end the field.
Text ohneDoppelte(Text text) {
    for (char16_t& zeichen : text)
        if (zeichen == u'"')
            zeichen = u'\'';
    return text;
}

} // namespace

Zeugnisaufbau ZeugnisaufbauLesen(const Arbeitsverzeichnis& verzeichnis) {
    Zeugnisaufbau aufbau;
    if (!hasFile(verzeichnis, Aufbaudatei))
        return aufbau;
    RecordReader reader(verzeichnis, Aufbaudatei);
    while (!reader.atEnd()) {
        const Text name = reader.text();
        const Text wert = reader.text();
        for (const Angabe& angabe : Angaben)
            if (angabe.Name == name)
                angabe.Setzen(aufbau, wert);
    }
    return aufbau;
}

void ZeugnisaufbauSchreiben(const Arbeitsverzeichnis& verzeichnis, const Zeugnisaufbau& aufbau) {
    RecordWriter writer(verzeichnis, Aufbaudatei);
    for (const Angabe& angabe : Angaben)
        writer.record(Text(angabe.Name), ohneDoppelte(angabe.Nennen(aufbau)));
    writer.close();
}

Text Fachname(const Spalte& fach, const Zeugnisaufbau& aufbau) {
    if (fach.Name != Religionsspalte)
        return Text(fach.Name);
    return aufbau.Religion == Zeugnisaufbau::Religionsfach::Beide
               ? Text(fach.Name)
               : alsWort(Religionsfaecher, aufbau.Religion);
}

} // namespace zeugnis::dokumente
