#include "folders/diagnosis.h"

#include "files/file_catalogue.h"
#include "folders/class_folder.h"
#include "platform/code_page.h"
#include "platform/local_time.h"
#include "platform/path_text.h"
#include "platform/raw_file.h"
#include "platform/version.h"
#include "safety/damage.h"
#include "safety/layouts.h"
#include "safety/paths.h"
#include "safety/states.h"

#include <algorithm>
#include <cstdio>
#include <map>

namespace zeugnis {
namespace {

namespace fs = std::filesystem;

constexpr size_t Aufgehoben = 20;

fs::path fehlerdatei(const fs::path& ordner) { return safety::Paths(ordner).root / "Fehler.txt"; }

Text dieZahl(std::uintmax_t zahl) { return textFromUtf8(std::to_string(zahl)); }

std::vector<Text> fehlerLesen(const fs::path& ordner) {
    const Text inhalt = textFromUtf8(raw::read(fehlerdatei(ordner)).bytes);
    std::vector<Text> zeilen;
    for (size_t von = 0, bis = 0; (bis = inhalt.find(u'\n', von)) != Text::npos; von = bis + 1)
        zeilen.push_back(inhalt.substr(von, bis - von));
    if (zeilen.size() > Aufgehoben)
        zeilen.erase(zeilen.begin(), zeilen.end() - Aufgehoben);
    return zeilen;
}

/// "Daten\Namen.Txt", by its whole name: others may be called as a child is.
bool istDatendatei(TextView gezeigt) {
    Text wie(gezeigt);
    std::replace(wie.begin(), wie.end(), u'\\', u'/');
    const std::string name = utf8FromText(wie);
    return safety::layoutOf(name) && !safety::isReportList(name) &&
           gezeigt.find(TextView(dateien::Sicherheit)) == TextView::npos;
}

Text zeitVon(const fs::path& datei) {
    std::error_code failed;
    const fs::file_time_type geaendert = fs::last_write_time(datei, failed);
    if (failed)
        return u"?";
    const auto uhr = std::chrono::file_clock::to_sys(geaendert);
    const auto zeit = localTime(std::chrono::system_clock::to_time_t(
        std::chrono::time_point_cast<std::chrono::system_clock::duration>(uhr)));
    char text[20] = "?";
    if (zeit)
        std::strftime(text, sizeof text, "%d.%m.%Y %H:%M", &*zeit);
    return textFromUtf8(text);
}

Text wortFuer(safety::Damage schaden) {
    using enum safety::Damage;
    switch (schaden) {
    case Missing:
        return u"fehlt";
    case Unreadable:
        return u"nicht lesbar";
    case TooLarge:
        return u"zu groß";
    case Empty:
        return u"leer";
    case Cut:
        return u"abgeschnitten";
    case FewerRecords:
        return u"zu wenige Sätze";
    case Encoding:
        return u"andere Kodierung";
    case ShiftedFields:
        return u"verschobene Felder";
    case ChangedByHand:
        return u"von anderen geändert";
    }
    return u"?";
}

struct Summe {
    std::uintmax_t Dateien = 0;
    std::uintmax_t Bytes = 0;
};

Text zeileFuer(const fs::path& datei, TextView name) {
    const raw::Content inhalt = raw::read(datei);
    const Text saetze =
        dieZahl(safety::recordsOf(decodeWindows1252(inhalt.bytes)).size()) + u" Sätze";
    return u"  " + Text(name) + u": " + dieZahl(inhalt.bytes.size()) + u" Bytes, " + saetze +
           u", " + zeitVon(datei);
}

// Files that only we know are named; of the others there is a number for each folder.
void dateienNennen(const fs::path& ordner, std::vector<Text>& zeilen) {
    std::vector<Text> bekannte;
    std::map<Text, Summe> andere;
    std::error_code failed;
    for (auto stelle = fs::recursive_directory_iterator(
             ordner, fs::directory_options::skip_permission_denied, failed);
         !failed && stelle != fs::recursive_directory_iterator(); stelle.increment(failed)) {
        if (!stelle->is_regular_file(failed))
            continue;
        const fs::path name = stelle->path().lexically_relative(ordner);
        const Text gezeigt = safety::shownName(utf8FromPath(name));
        if (istDatendatei(gezeigt)) {
            bekannte.push_back(zeileFuer(stelle->path(), gezeigt));
            continue;
        }
        static constexpr TextView Ordner[] = {u"Bild", u"Daten", u"Texte", u"Notsicherung"};
        const Text erster = textFromPath(*name.begin());
        const bool genannt = std::any_of(std::begin(Ordner), std::end(Ordner),
                                         [&](TextView o) { return sameIgnoringCase(o, erster); });
        Summe& summe = andere[genannt ? erster : Text(u"sonst")];
        ++summe.Dateien;
        summe.Bytes += stelle->file_size(failed);
    }
    std::sort(bekannte.begin(), bekannte.end());
    zeilen.insert(zeilen.end(), bekannte.begin(), bekannte.end());
    for (const auto& [wo, summe] : andere)
        zeilen.push_back(u"  " + wo + u", weitere Dateien: " + dieZahl(summe.Dateien) + u" mit " +
                         dieZahl(summe.Bytes) + u" Bytes");
}

void schaedenNennen(const fs::path& ordner, std::vector<Text>& zeilen) {
    const std::vector<safety::Finding> befunde = safety::examine(ordner);
    for (const safety::Finding& befund : befunde) {
        const Text datei = safety::shownName(befund.file);
        zeilen.push_back(u"  " + (istDatendatei(datei) ? datei : Text(u"eine andere Datei")) +
                         (befund.record > 0 ? u", Satz " + dieZahl(befund.record) : Text()) +
                         u": " + wortFuer(befund.kind) +
                         (befund.good ? u"; ein guter Stand ist da" : u""));
    }
    if (befunde.empty())
        zeilen.emplace_back(u"  keine");
}

} // namespace

Text OhneInhalte(TextView satz) {
    Text rest(satz);
    for (size_t auf = rest.find(u'„'); auf != Text::npos; auf = rest.find(u'„', auf + 1)) {
        const size_t zu = rest.find(u'“', auf);
        if (zu != Text::npos && istDatendatei(TextView(rest).substr(auf + 1, zu - auf - 1)))
            continue;
        // What is cited may cite in turn, or end without its sign.
        const size_t letztes = rest.rfind(u'“');
        const bool endet = letztes != Text::npos && letztes > auf;
        const Text danach = endet ? rest.substr(letztes + 1) : Text();
        return rest.substr(0, auf) + u"„…“" + danach.substr(0, danach.find(u'„'));
    }
    return rest;
}

void FehlerMerken(const fs::path& ordner, const Laufzeitfehler& fehler, safety::Moment wann) {
    Text satz = OhneInhalte(fehler.sentence());
    std::replace_if(
        satz.begin(), satz.end(), [](char16_t c) { return c < u' '; }, u' ');
    std::vector<Text> zeilen = fehlerLesen(ordner);
    zeilen.push_back(safety::shownDay(wann) + u" " + safety::shownTime(wann) + u" " +
                     textFromUtf8(kindName(fehler.kind())) + u": " + satz);
    std::string bytes;
    for (const Text& zeile : zeilen)
        bytes += utf8FromText(zeile) + '\n';
    const safety::Paths wege(ordner);
    if (safety::makeFolder(wege, wege.root) != 0)
        return;
    raw::replaceByRename(fehlerdatei(ordner), bytes, raw::Durability::Eventually);
}

Text Diagnose(const fs::path& ordner, std::span<const std::pair<Text, Text>> system,
              safety::Moment wann) {
    std::vector<Text> zeilen{u"Diagnose des Zeugnisprogramms vom " + safety::shownDay(wann) +
                                 u", " + safety::shownTime(wann) + u" Uhr",
                             u"Namen und Texte von Kindern stehen hier nicht.", u"",
                             u"Version: " + Text(Programmversion())};
    for (const auto& [was, wert] : system)
        zeilen.emplace_back(was).append(u": ").append(wert);
    if (const auto angaben = KlassenangabenLesen(ordner))
        zeilen.push_back(u"Klasse: Jahrgang " + angaben->Klasse.substr(0, 1) + u", Halbjahr " +
                         angaben->Schule.Halbjahr.substr(0, 1) + u", Kinder: " +
                         textFromNumber(angaben->Kinder));
    else
        zeilen.emplace_back(u"Klasse: nicht lesbar");
    const safety::States staende(ordner);
    zeilen.push_back(u"Frühere Stände: " + dieZahl(staende.list().size()) + u" mit " +
                     dieZahl(staende.size()) + u" Bytes");
    zeilen.insert(zeilen.end(), {u"", u"Dateien:"});
    dateienNennen(ordner, zeilen);
    zeilen.insert(zeilen.end(), {u"", u"Schäden:"});
    schaedenNennen(ordner, zeilen);
    zeilen.insert(zeilen.end(), {u"", u"Letzte Fehler:"});
    const std::vector<Text> fehler = fehlerLesen(ordner);
    for (const Text& einer : fehler)
        zeilen.push_back(u"  " + einer);
    if (fehler.empty())
        zeilen.emplace_back(u"  keine");
    Text alles;
    for (const Text& zeile : zeilen)
        alles.append(zeile).append(u"\r\n");
    return alles;
}

} // namespace zeugnis
