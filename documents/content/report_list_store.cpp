#include "documents/content/report_list_store.h"

#include "documents/content/dated_copy.h"
#include "documents/content/report_list_damage.h"
#include "documents/content/wording.h"
#include "platform/failure.h"
#include "platform/path_text.h"
#include "platform/whole_file.h"
#include "platform/write_watcher.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <system_error>

namespace zeugnis::dokumente {
namespace fs = std::filesystem;
namespace {

constexpr TextView Endung = u".txt";
constexpr size_t Datumslaenge = 10;

constexpr std::array Schadensarten = {Fehlerart::EndOfFile, Fehlerart::IndexOutOfRange,
                                      Fehlerart::TypeMismatch, Fehlerart::Overflow};

Text kopieAnlegen(const Arbeitsverzeichnis& verzeichnis, const Text& stamm, const Text& heute,
                  const std::string& bytes) {
    return KopieAnlegen(verzeichnis, stamm, Endung, heute, bytes);
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

void zeilenSchreiben(const Arbeitsverzeichnis& verzeichnis, Listenstand& stand,
                     const std::vector<Listenzeile>& zeilen) {
    stand.Liste = Zuordnen(zeilen, stand.Stamm.Liste);
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
    const Text kopie =
        kopieAnlegen(verzeichnis, Listenstamm(stand.Stamm), heute, stand.Bytes.value_or(""));
    stand.Hinweis = verbunden(stand.Hinweis, u" ", ohneKindSatz(stand.Liste.OhneKind, kopie));
    stand.Liste.OhneKind.clear();
    ListenstandSchreiben(verzeichnis, stand, stand.Liste.Eintraege);
}

void beschaedigtesAufheben(const Arbeitsverzeichnis& verzeichnis, Listenstand& stand,
                           const Text& schaden, const Text& heute, Nachschaden danach) {
    const std::string bytes = stand.Bytes.value_or("");
    const Text kopie =
        bytes.empty() ? Text() : kopieAnlegen(verzeichnis, Listenstamm(stand.Stamm), heute, bytes);
    const Rest rest =
        RestDerListe(verzeichnis, stand.Stamm, bytes, danach == Nachschaden::NurDatei);
    stand.Hinweis = u"Die gespeicherte Liste war beschädigt" +
                    (kopie.empty() ? Text() : u" und wurde als „" + kopie + u"“ aufgehoben") +
                    u". " + schaden + u" " + rest.Satz;
    zeilenSchreiben(verzeichnis, stand, rest.Zeilen);
}

// Who has deleted it may have meant to; so it is offered, not brought back.
void verlorenesAufheben(const Arbeitsverzeichnis& verzeichnis, Listenstand& stand,
                        const Text& heute) {
    const std::optional<std::string> zuletzt = ZuletztGespeichert(verzeichnis, stand.Stamm);
    if (!zuletzt)
        return;
    const Text kopie = kopieAnlegen(verzeichnis, Listenstamm(stand.Stamm), heute, *zuletzt);
    stand.Hinweis = u"Die Datei der Liste ist nicht mehr da; hier beginnt sie leer. Was zuletzt "
                    u"gespeichert wurde, steht in der Kopie „" +
                    kopie + u"“.";
}

// A list that is shorter since the class has grown is as it was saved.
bool istWieGespeichert(const Arbeitsverzeichnis& verzeichnis, const Listenstand& stand) {
    return stand.Bytes && ZuletztGespeichert(verzeichnis, stand.Stamm) == stand.Bytes;
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

Listenstand ZeugnislisteOeffnen(Arbeitsverzeichnis& verzeichnis, const Text& heute,
                                Nachschaden danach) {
    const WriteUnit einheit(verzeichnis.watcher());
    Listenstand stand{
        .Stamm = StammdatenLesen(verzeichnis), .Liste = {}, .Bytes = {}, .Hinweis = {}};
    stand.Bytes = InhaltVon(verzeichnis, Listenstamm(stand.Stamm) + Text(Endung));
    if (!stand.Bytes) {
        if (danach == Nachschaden::BesterStand)
            verlorenesAufheben(verzeichnis, stand, heute);
        return stand;
    }
    const Text schaden = SchadenDerListe(verzeichnis, stand.Stamm, stand.Bytes);
    if (!schaden.empty() && !istWieGespeichert(verzeichnis, stand))
        beschaedigtesAufheben(verzeichnis, stand, schaden, heute, danach);
    else
        stand.Liste =
            Zuordnen(LesbareZeilenAus(*stand.Bytes, stand.Stamm.Jahrgang), stand.Stamm.Liste);
    if (!stand.Liste.OhneKind.empty())
        unpassendesAufheben(verzeichnis, stand, heute);
    return stand;
}

Listenstand ZeugnislisteNeuBeginnen(Arbeitsverzeichnis& verzeichnis, const Text& heute) {
    const WriteUnit einheit(verzeichnis.watcher());
    Listenstand stand{
        .Stamm = StammdatenLesen(verzeichnis), .Liste = {}, .Bytes = {}, .Hinweis = {}};
    const Text stamm = Listenstamm(stand.Stamm);
    const Text datei = stamm + Text(Endung);
    // A damaged list may hold entries too, and more of them what was last saved.
    Text kopie;
    if (hatEintraege(verzeichnis, datei, stand.Stamm.Jahrgang, true))
        kopie = DateiAufheben(verzeichnis, stand.Stamm, heute);
    const std::optional<std::string> zuletzt = ZuletztGespeichert(verzeichnis, stand.Stamm);
    if (zuletzt && zuletzt != InhaltVon(verzeichnis, datei) &&
        !SchadenDerListe(verzeichnis, stand.Stamm, InhaltVon(verzeichnis, datei)).empty())
        kopie = kopieAnlegen(verzeichnis, stamm, heute, *zuletzt);
    if (!kopie.empty())
        stand.Hinweis = u"Die Stammdaten wurden gespeichert, deshalb beginnt die Liste neu. Die "
                        u"bisherigen Einträge stehen in der Kopie „" +
                        kopie + u"“.";
    zeilenSchreiben(verzeichnis, stand, {});
    return stand;
}

Listenpruefung ListeVergleichen(Arbeitsverzeichnis& verzeichnis, const Listenstand& stand) {
    if (!gleicheKinder(StammdatenLesen(verzeichnis), stand.Stamm))
        return {.Lage = Listenlage::AndereKlasse, .Satz = {}};
    const std::optional<std::string> bytes =
        InhaltVon(verzeichnis, Listenstamm(stand.Stamm) + Text(Endung));
    if (bytes == stand.Bytes)
        return {.Lage = Listenlage::Unveraendert, .Satz = {}};
    const Text schaden = SchadenDerListe(verzeichnis, stand.Stamm, bytes);
    return {.Lage = schaden.empty() ? Listenlage::NeuerStand : Listenlage::Schaden,
            .Satz = schaden};
}

void ListenstandSchreiben(const Arbeitsverzeichnis& verzeichnis, Listenstand& stand,
                          const Schuelertabelle<Eintrag>& eintraege) {
    const Text datei = Listenstamm(stand.Stamm) + Text(Endung);
    try {
        ZeugnislisteSchreiben(verzeichnis, stand.Stamm, eintraege);
    } catch (const Laufzeitfehler&) {
        // What a failed write has left must not pass for the work of someone else.
        stand.Bytes = InhaltVon(verzeichnis, datei);
        throw;
    }
    stand.Liste.Eintraege = eintraege;
    stand.Bytes = InhaltVon(verzeichnis, datei);
}

Text EintraegeAufheben(const Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten,
                       const Schuelertabelle<Eintrag>& eintraege, const Text& heute) {
    if (Zeugnisliste{.Eintraege = eintraege, .OhneKind = {}}.istLeer())
        return {};
    if (Text letzte = LetzteKopie(verzeichnis, daten); !letzte.empty()) {
        const Zeugnisliste liste =
            Zuordnen(ListenzeilenLesen(verzeichnis, letzte, daten.Jahrgang), daten.Liste);
        if (std::equal(eintraege.begin(), eintraege.end(), liste.Eintraege.begin()))
            return letzte;
    }
    Text kopie = Kopiename(verzeichnis, Listenstamm(daten), Endung, heute);
    ZeugnislisteSchreiben(verzeichnis, daten, eintraege, kopie);
    return kopie;
}

Text DateiAufheben(const Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten,
                   const Text& heute) {
    const std::optional<std::string> bytes =
        InhaltVon(verzeichnis, Listenstamm(daten) + Text(Endung));
    if (!bytes || bytes->empty())
        return {};
    return kopieAnlegen(verzeichnis, Listenstamm(daten), heute, *bytes);
}

Text KopienameFuer(const Stammdaten& daten, const Text& heute) {
    return Listenstamm(daten) + Text(Kopiewort) + heute + Text(Endung);
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
