#include "documents/content/report_list_store.h"

#include "documents/content/wording.h"
#include "platform/failure.h"
#include "platform/path_text.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <system_error>

namespace zeugnis::dokumente {
namespace fs = std::filesystem;
namespace {

constexpr TextView Kopiewort = u" vom ";
constexpr TextView Endung = u".txt";
constexpr size_t Datumslaenge = 10;

constexpr std::array Schadensarten = {Fehlerart::EndOfFile, Fehlerart::IndexOutOfRange,
                                      Fehlerart::TypeMismatch, Fehlerart::Overflow};

std::optional<std::string> inhaltVon(const Arbeitsverzeichnis& verzeichnis, TextView datei) {
    if (!hasFile(verzeichnis, datei))
        return std::nullopt;
    return readWholeFile(verzeichnis, datei);
}

// "3aZeugnisliste32 vom 07.07.2027.txt", and for a further one of the day "… 07.07.2027-2.txt".
Text kopieAnlegen(const Arbeitsverzeichnis& verzeichnis, const Text& stamm, const Text& heute) {
    const Text anfang = stamm + Text(Kopiewort) + heute;
    Text kopie = anfang + Text(Endung);
    for (int nummer = 2; hasFile(verzeichnis, kopie); ++nummer)
        kopie = anfang + u"-" + textFromNumber(nummer) + Text(Endung);
    copyWholeFile(verzeichnis, stamm + Text(Endung), kopie);
    return kopie;
}

// Sorts copies by age: year, month, day, number of the day. Empty for any other file.
Text altersschluessel(const Text& stamm, const Text& name) {
    const Text anfang = stamm + Text(Kopiewort);
    const size_t datum = anfang.size();
    if (name.size() < datum + Datumslaenge + Endung.size() ||
        !sameIgnoringCase(TextView(name).substr(0, datum), anfang) ||
        !sameIgnoringCase(TextView(name).substr(name.size() - Endung.size()), Endung))
        return {};
    const size_t rest = datum + Datumslaenge;
    Text nummer = name.substr(rest, name.size() - Endung.size() - rest);
    nummer = nummer.empty() ? u"1" : nummer.substr(1);
    const Text breit = Text(std::max<size_t>(nummer.size(), 4) - nummer.size(), u'0') + nummer;
    return name.substr(datum + 6, 4) + name.substr(datum + 3, 2) + name.substr(datum, 2) + breit;
}

bool istSchaden(const Laufzeitfehler& failure) {
    return std::find(Schadensarten.begin(), Schadensarten.end(), failure.kind()) !=
           Schadensarten.end();
}

bool hatEintraege(const Arbeitsverzeichnis& verzeichnis, TextView datei, int jahrgang,
                  bool beiSchaden) {
    if (!hasFile(verzeichnis, datei))
        return false;
    try {
        const std::vector<Listenzeile> zeilen = ListenzeilenLesen(verzeichnis, datei, jahrgang);
        return std::any_of(zeilen.begin(), zeilen.end(),
                           [](const Listenzeile& zeile) { return !zeile.Werte.istLeer(); });
    } catch (const Laufzeitfehler& failure) {
        if (!istSchaden(failure))
            throw;
        return beiSchaden;
    }
}

void leerSchreiben(const Arbeitsverzeichnis& verzeichnis, Listenstand& stand) {
    stand.Liste = {};
    ListenstandSchreiben(verzeichnis, stand, stand.Liste.Eintraege);
}

Text ohneKindSatz(const std::vector<Text>& namen, const Text& kopie) {
    return (namen.size() == 1
                ? u"Ein Eintrag gehört"
                : textFromNumber(static_cast<int>(namen.size())) + u" Einträge gehören") +
           u" zu keinem Kind der Klassenliste mehr: " + enumerated(namen) +
           u". Sie stehen in der Kopie „" + kopie + u"“.";
}

void unpassendesAufheben(const Arbeitsverzeichnis& verzeichnis, Listenstand& stand,
                         const Text& heute) {
    const Text kopie = kopieAnlegen(verzeichnis, Listenstamm(stand.Stamm), heute);
    stand.Hinweis = ohneKindSatz(stand.Liste.OhneKind, kopie);
    stand.Liste.OhneKind.clear();
    ListenstandSchreiben(verzeichnis, stand, stand.Liste.Eintraege);
}

void beschaedigtesAufheben(const Arbeitsverzeichnis& verzeichnis, Listenstand& stand,
                           const Text& schaden, const Text& heute) {
    const Text kopie = kopieAnlegen(verzeichnis, Listenstamm(stand.Stamm), heute);
    stand.Hinweis = u"Die gespeicherte Liste ist beschädigt und wurde als „" + kopie +
                    u"“ aufgehoben; hier beginnt sie leer. " + schaden;
    leerSchreiben(verzeichnis, stand);
}

bool gleicheKinder(const Stammdaten& eine, const Stammdaten& andere) {
    if (Listenstamm(eine) != Listenstamm(andere) ||
        eine.Liste.Schuelerzahl != andere.Liste.Schuelerzahl)
        return false;
    for (int platz = 0; platz < eine.Liste.Schuelerzahl; ++platz)
        if (eine.Liste.Kinder[platz].Nachname != andere.Liste.Kinder[platz].Nachname ||
            eine.Liste.Kinder[platz].Vorname != andere.Liste.Kinder[platz].Vorname)
            return false;
    return true;
}

} // namespace

Listenstand ZeugnislisteOeffnen(Arbeitsverzeichnis& verzeichnis, const Text& heute) {
    Listenstand stand{
        .Stamm = StammdatenLesen(verzeichnis), .Liste = {}, .Bytes = {}, .Hinweis = {}};
    stand.Bytes = inhaltVon(verzeichnis, Listenstamm(stand.Stamm) + Text(Endung));
    try {
        if (std::optional<Zeugnisliste> liste = ZeugnislisteLesen(verzeichnis, stand.Stamm))
            stand.Liste = std::move(*liste);
    } catch (const Laufzeitfehler& failure) {
        if (!istSchaden(failure))
            throw;
        beschaedigtesAufheben(verzeichnis, stand, failure.sentence(), heute);
    }
    if (!stand.Liste.OhneKind.empty())
        unpassendesAufheben(verzeichnis, stand, heute);
    return stand;
}

Listenstand ZeugnislisteNeuBeginnen(Arbeitsverzeichnis& verzeichnis, const Text& heute) {
    Listenstand stand{
        .Stamm = StammdatenLesen(verzeichnis), .Liste = {}, .Bytes = {}, .Hinweis = {}};
    // A damaged list may hold entries too.
    const Text datei = Listenstamm(stand.Stamm) + Text(Endung);
    if (hatEintraege(verzeichnis, datei, stand.Stamm.Jahrgang, true)) {
        const Text kopie = kopieAnlegen(verzeichnis, Listenstamm(stand.Stamm), heute);
        stand.Hinweis = u"Die Stammdaten wurden gespeichert, deshalb beginnt die Liste neu. Die "
                        u"bisherigen Einträge stehen in der Kopie „" +
                        kopie + u"“.";
    }
    leerSchreiben(verzeichnis, stand);
    return stand;
}

bool IstAktuell(Arbeitsverzeichnis& verzeichnis, const Listenstand& stand) {
    return gleicheKinder(StammdatenLesen(verzeichnis), stand.Stamm) &&
           inhaltVon(verzeichnis, Listenstamm(stand.Stamm) + Text(Endung)) == stand.Bytes;
}

void ListenstandSchreiben(const Arbeitsverzeichnis& verzeichnis, Listenstand& stand,
                          const Schuelertabelle<Eintrag>& eintraege) {
    ZeugnislisteSchreiben(verzeichnis, stand.Stamm, eintraege);
    stand.Liste.Eintraege = eintraege;
    stand.Bytes = inhaltVon(verzeichnis, Listenstamm(stand.Stamm) + Text(Endung));
}

Text LetzteKopie(const Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten) {
    const Text stamm = Listenstamm(daten);
    std::map<Text, Text, std::greater<>> kopien;
    std::error_code ignored;
    for (fs::directory_iterator entry(verzeichnis.current(), ignored), end;
         !ignored && entry != end; entry.increment(ignored)) {
        const Text name = textFromPath(entry->path().filename());
        if (const Text schluessel = altersschluessel(stamm, name); !schluessel.empty())
            kopien[schluessel] = name;
    }
    for (const auto& [schluessel, name] : kopien)
        if (hatEintraege(verzeichnis, name, daten.Jahrgang, false))
            return name;
    return {};
}

} // namespace zeugnis::dokumente
