#include "documents/content/report_marks.h"

#include "checks/hunspell_spelling.h"
#include "platform/record_reader.h"
#include "platform/record_writer.h"
#include "platform/whole_file.h"

#include <algorithm>

namespace zeugnis::dokumente {
namespace {

constexpr TextView Gesehene = u"Zeugnisvermerke.txt";
constexpr TextView Gelernte = u"Zeugniswörter.txt";

std::set<Text> lesen(const Arbeitsverzeichnis& verzeichnis, TextView datei) {
    std::set<Text> zeilen;
    if (!hasFile(verzeichnis, datei))
        return zeilen;
    RecordReader reader(verzeichnis, datei);
    while (!reader.atEnd())
        zeilen.insert(reader.text());
    return zeilen;
}

void dazuschreiben(const Arbeitsverzeichnis& verzeichnis, TextView datei,
                   const std::vector<Text>& neue) {
    std::set<Text> zeilen = lesen(verzeichnis, datei);
    zeilen.insert(neue.begin(), neue.end());
    RecordWriter writer(verzeichnis, datei);
    for (const Text& zeile : zeilen)
        writer.record(zeile);
    writer.close();
}

} // namespace

std::set<Text> GeseheneLesen(const Arbeitsverzeichnis& verzeichnis) {
    return lesen(verzeichnis, Gesehene);
}

void AlsGesehenMerken(const Arbeitsverzeichnis& verzeichnis, const Befund& befund) {
    dazuschreiben(verzeichnis, Gesehene, {befund.Vermerk});
}

std::set<Text> GelernteLesen(const Arbeitsverzeichnis& verzeichnis) {
    return lesen(verzeichnis, Gelernte);
}

void WoerterLernen(const Arbeitsverzeichnis& verzeichnis, const std::vector<Text>& woerter) {
    dazuschreiben(verzeichnis, Gelernte, woerter);
}

std::vector<Befund> OffeneBefunde(Arbeitsverzeichnis& verzeichnis) {
    return OffeneBefunde(verzeichnis, ZeugnisdatenLesen(verzeichnis),
                         DeutscheRechtschreibung().get());
}

std::vector<Befund> OffeneBefunde(Arbeitsverzeichnis& verzeichnis, const Zeugnisdaten& daten,
                                  const Rechtschreibung* woerterbuch) {
    const Bausteinwoerter bausteine = BausteinwoerterLesen(verzeichnis);
    std::vector<Befund> befunde =
        ZeugnissePruefen(daten, {.Platzhalter = PlatzhalterLesen(verzeichnis),
                                 .Bausteine = &bausteine,
                                 .Woerterbuch = woerterbuch,
                                 .Gelernte = GelernteLesen(verzeichnis)});
    const std::set<Text> gesehen = GeseheneLesen(verzeichnis);
    std::erase_if(befunde, [&](const Befund& befund) { return gesehen.contains(befund.Vermerk); });
    return befunde;
}

} // namespace zeugnis::dokumente
