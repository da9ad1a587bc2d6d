#include "folders/diagnosis.h"

#include "files/pupil_list.h"
#include "files/section_stores.h"
#include "platform/code_page.h"
#include "platform/path_text.h"
#include "platform/whole_file.h"
#include "safety/records.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

#include <set>

namespace zeugnis::test {
namespace {

constexpr safety::Moment Wann{};

// All names, birth dates, places and texts of the class.
std::set<Text> contentsOf(const TestInstallation& installation) {
    std::set<Text> all;
    Arbeitsverzeichnis folder(installation.path());
    const Namensliste list = NamenLaden(folder);
    for (int i = 0; i < list.Schuelerzahl; ++i) {
        const auto fields = FelderVon(list.Kinder[i]);
        for (const Text* field : fields)
            all.insert(*field);
    }
    for (const Speicherdatei& store : speicherdateien::Alle)
        for (const safety::Record& record :
             safety::recordsOf(installation.read(Text(u"Daten/") + Text(store.Datei))))
            for (const safety::Field& field : record.fields)
                all.insert(field.value);
    std::erase_if(all, [](const Text& one) { return one.size() < 3; });
    return all;
}

TEST(Diagnosis, HoldsNoNameAndNoTextOfAChild) {
    const TestInstallation installation;
    installation.write(u"Bild/Ahlers_Tom_14032018.jpg", u"no picture");
    installation.write(u"Daten/Brief an Familie Ahlers.txt", u"Liebe Familie Ahlers");
    installation.write(u"Ahlers Zeugnisliste32.txt", u"Ahlers");
    installation.write(u"Daten/Sicherheit/AVSVspeicher Ahlers.txt", u"Ahlers");
    const std::set<Text> contents = contentsOf(installation);
    ASSERT_GT(contents.size(), 5U);
    Text record = installation.read(u"Daten/34Speicher.txt");
    installation.write(u"Daten/34Speicher.txt", record.substr(0, record.size() / 2));
    for (const TextView sentence :
         {u"Datei „Daten\\Namen.Txt“, Datensatz 3, Feld 1: „Ahlers sagt „Tom“ und geht“ ist keine "
          u"ganze Zahl.",
          u"Das Bild „Bild\\Ahlers_Tom_14032018.jpg“ ist nicht vorhanden.",
          u"Datei „Ahlers Zeugnisliste32.txt“, Datensatz 1: „Ahlers"})
        FehlerMerken(installation.path(), {Fehlerart::TypeMismatch, Text(sentence)}, Wann);

    const std::pair<Text, Text> system[] = {{u"System", u"Debian"}};
    const Text told = Diagnose(installation.path(), system, Wann);
    for (const Text& one : contents)
        EXPECT_EQ(told.find(one), Text::npos) << utf8FromText(one) << " in\n" << utf8FromText(told);
    EXPECT_EQ(told.find(u"Ahlers"), Text::npos) << utf8FromText(told);
    for (const TextView there :
         {u"System: Debian",
          u"type-mismatch: Datei „Daten\\Namen.Txt“, Datensatz 3, Feld 1: „…“ ist",
          u"Daten\\34Speicher.txt, ", u"Daten\\TexteAV.txt: ", u"Bild, weitere Dateien: "})
        EXPECT_NE(told.find(there), Text::npos) << utf8FromText(there) << " in\n"
                                                << utf8FromText(told);
}

} // namespace
} // namespace zeugnis::test
