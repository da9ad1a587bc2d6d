#include "folders/class_files.h"

#include "files/ag_list.h"
#include "files/file_catalogue.h"
#include "files/section_stores.h"
#include "masterdata/class_list.h"
#include "masterdata/store_reset.h"
#include "platform/code_page.h"
#include "platform/path_text.h"

#include <algorithm>

namespace zeugnis {
namespace {

using namespace dateien;

constexpr auto Klassendateien =
    std::to_array<TextView>({Basisdaten, Namen, Namen1, Bildliststeuer, AGListe});
constexpr auto Klassenordner = std::to_array<TextView>({u"Sicherheit", u"worddaten"});
constexpr auto BilderFuerAlle = std::to_array<TextView>({Kopfbild1, Kopfbild2, Lehrerbild, Smili});

bool isOneOf(std::span<const TextView> names, TextView name) {
    return std::ranges::any_of(names, [&](TextView n) { return sameIgnoringCase(n, name); });
}

bool istSchuljahr(const Text& text) {
    constexpr size_t Jahr = 4;
    const auto istJahr = [&](size_t von) {
        return std::ranges::all_of(text.substr(von, Jahr),
                                   [](char16_t c) { return c >= u'0' && c <= u'9'; });
    };
    return text.size() == 2 * Jahr + 1 && text[Jahr] == u'/' && istJahr(0) && istJahr(Jahr + 1) &&
           numberFromText(text.substr(Jahr + 1), u"") ==
               numberFromText(text.substr(0, Jahr), u"") + 1;
}

} // namespace

bool GehoertDerKlasse(const std::filesystem::path& name) {
    std::vector<Text> teile;
    for (const std::filesystem::path& teil : name)
        teile.push_back(textFromPath(teil));
    if (teile.size() < 2)
        return false;
    if (sameIgnoringCase(teile[0], Bild))
        return !isOneOf(BilderFuerAlle, teile[1]);
    if (!sameIgnoringCase(teile[0], Daten))
        return false;
    return isOneOf(Klassendateien, teile[1]) || isOneOf(Klassenordner, teile[1]) ||
           std::ranges::any_of(speicherdateien::Alle, [&](const Speicherdatei& speicher) {
               return sameIgnoringCase(speicher.Datei, teile[1]);
           });
}

void KlassendateienSchreiben(Arbeitsverzeichnis& verzeichnis, const Schuldaten& schule,
                             const Namensliste& liste,
                             const std::vector<Text>& arbeitsgemeinschaften) {
    Klassenliste klasse;
    static_cast<Namensliste&>(klasse) = liste;
    klasse.Schuelerzahl = std::max(liste.Schuelerzahl, 1);
    klasse.NummernBilden();
    if (liste.Schuelerzahl > 0)
        klasse.BildnamenBilden();
    {
        const Ordnerwechsel in(verzeichnis, Daten);
        BasisdatenSchreiben(verzeichnis, schule);
        klasse.NamenSchreiben(verzeichnis);
        klasse.BildlisteSchreiben(verzeichnis);
        AGListeSchreiben(verzeichnis, arbeitsgemeinschaften);
    }
    SpeicherLeeren(verzeichnis, klasse);
}

Text HindernisFuer(const Text& klasse, const Schuldaten& schule) {
    if (klasse.empty() || klasse[0] < u'1' || klasse[0] > u'4')
        return u"Die Klasse beginnt mit ihrem Schuljahrgang, 1 bis 4, zum Beispiel „3a“.";
    if (!istSchuljahr(schule.Schuljahr))
        return u"Das Schuljahr hat die Form „2026/2027“.";
    if (schule.Halbjahr != u"1" && schule.Halbjahr != u"2")
        return u"Das Halbjahr ist 1 oder 2.";
    return {};
}

Schuldaten SchuldatenFuer(const Text& klasse, Schuldaten schule) {
    if (klasse.starts_with(u'1') && schule.Halbjahr == u"1")
        schule.Halbjahr = u"2";
    schule.NaechstesSchuljahr = NaechstesSchuljahrNach(schule.Schuljahr);
    for (Text* feld :
         {&schule.Schulname, &schule.Schulzusatz, &schule.Schulanschrift, &schule.Ausgabeort,
          &schule.Ausgabedatum, &schule.Konferenzdatum, &schule.Klassenleitung})
        *feld = FeldText(*feld);
    return schule;
}

Text FeldText(TextView text) {
    Text feld = nearestInWindows1252(text);
    std::ranges::replace(feld, u'"', u'\'');
    return trimmed(feld);
}

} // namespace zeugnis
