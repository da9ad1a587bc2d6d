#include "files/ag_list.h"

#include "files/file_catalogue.h"
#include "platform/record_reader.h"
#include "platform/record_writer.h"

#include <algorithm>

namespace zeugnis {
namespace {

constexpr size_t EintraegeHoechstens = 25;

} // namespace

std::vector<Text> AGListeLesen(const Arbeitsverzeichnis& verzeichnis) {
    std::vector<Text> eintraege;
    RecordReader reader(verzeichnis, dateien::AGListe);
    while (!reader.atEnd())
        if (Text eintrag = reader.text(); !eintrag.empty())
            eintraege.push_back(std::move(eintrag));
    return eintraege;
}

void AGListeSchreiben(const Arbeitsverzeichnis& verzeichnis, const std::vector<Text>& eintraege) {
    RecordWriter writer(verzeichnis, dateien::AGListe);
    for (size_t i = 0; i < std::min(eintraege.size(), EintraegeHoechstens); ++i)
        if (!eintraege[i].empty())
            writer.record(eintraege[i]);
    writer.close();
}

} // namespace zeugnis
