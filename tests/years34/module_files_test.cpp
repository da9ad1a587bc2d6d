#include "years34/module_files.h"

#include "tests/support/failure_of.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

namespace zeugnis::jahrgang34::test {
namespace {

using zeugnis::test::failureOf;
using zeugnis::test::TestInstallation;

class Modules34 : public testing::Test {
  protected:
    TestInstallation installation;

    Textbausteine load(const Text& year = u"3") {
        Arbeitsverzeichnis directory(installation.path());
        Textbausteine modules = TextbausteineLaden(directory, year);
        EXPECT_EQ(directory.current(), directory.programFolder());
        return modules;
    }
    void rows(TextView file, int count, size_t texts) {
        installation.records(u"Daten/" + Text(file),
                             {static_cast<size_t>(count), std::vector<TextView>(texts, u"x")});
    }
};

TEST_F(Modules34, GoToTheirTablesByColumn) {
    const Textbausteine modules = load();
    EXPECT_EQ(modules.FoerderTexte[0], u"<Vorname> nahm am");
    EXPECT_EQ(modules.FoerderTexte[7], u"teil");
    EXPECT_EQ(modules.FoerderTexte[8], u"");
    EXPECT_EQ(modules.InteressenTexte[2], u"liest gern");
    EXPECT_EQ(modules.ZensurTexte[5], u"weichen weiter ab");
    EXPECT_EQ(modules.BemerkungenA[1], u"<Er/Sie> übte");
    EXPECT_EQ(modules.BemerkungenB[4], u"sicher");
    EXPECT_EQ(modules.BemerkungenC[0], u"gut");
    EXPECT_EQ(modules.BemerkungenD[0], u"weiter so");
    EXPECT_EQ(modules.VersetzungHalbjahr1[1], u"3 1 2");
    EXPECT_EQ(modules.VersetzungHalbjahr2[1], u"3 2 2");
    EXPECT_EQ(modules.AGTexte[1], u"Es gab keine AG");
    EXPECT_EQ(modules.SportTexte[6], u"<Er/Sie> kann Rad fahren");
    EXPECT_EQ(load(u"4").VersetzungHalbjahr2[0], u"4 2 1");
}

TEST_F(Modules34, HaveRoomForSoManyRowsAndNoMore) {
    const struct {
        TextView file;
        int rows;
        size_t texts;
    } files[] = {{u"Förder34.Txt", 9, 1},         {u"Interessen34.Txt", 16, 1},
                 {u"Zensurabweichung.Txt", 8, 1}, {u"Bemerkungen34.Txt", 9, 4},
                 {u"Versetzung3.Txt", 5, 2},      {u"AG.Txt", 3, 1},
                 {u"Sportusw.Txt", 16, 1}};
    for (const auto& one : files) {
        const Text former = installation.read(u"Daten/" + Text(one.file));
        rows(one.file, one.rows, one.texts);
        EXPECT_EQ(failureOf([&] { load(); }), "none") << utf8FromText(one.file);
        rows(one.file, one.rows + 1, one.texts);
        EXPECT_EQ(failureOf([&] { load(); }), "index-out-of-range") << utf8FromText(one.file);
        rows(one.file, 1, one.texts - 1);
        EXPECT_NE(failureOf([&] { load(); }), "none") << utf8FromText(one.file) << ", short";
        installation.remove(u"Daten/" + Text(one.file));
        EXPECT_EQ(failureOf([&] { load(); }), "file-not-found") << utf8FromText(one.file);
        installation.write(u"Daten/" + Text(one.file), u"");
        EXPECT_EQ(failureOf([&] { load(); }), "none") << utf8FromText(one.file) << ", empty";
        installation.write(u"Daten/" + Text(one.file), former);
    }
    EXPECT_EQ(failureOf([&] { load(u"5"); }), "file-not-found");
}

TEST_F(Modules34, NumberOfARecordIsTheRowOfTheNext) {
    installation.write(u"Daten/AG.Txt", u"2,\"in 0\"\r\n0,\"in 2\"\r\n9,\"wieder in 0\"\r\n");
    const Textbausteine modules = load();
    EXPECT_EQ(modules.AGTexte[0], u"wieder in 0");
    EXPECT_EQ(modules.AGTexte[1], u"");
    EXPECT_EQ(modules.AGTexte[2], u"in 2");
}

} // namespace
} // namespace zeugnis::jahrgang34::test
