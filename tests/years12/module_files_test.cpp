#include "years12/module_files.h"

#include "tests/support/failure_of.h"
#include "tests/years12/klasse2b.h"

namespace zeugnis::test {
namespace {

using namespace jahrgang12;

class ModuleFiles : public testing::Test {
  protected:
    Klasse2b installation;
    Arbeitsverzeichnis directory{installation.path()};

    Bausteine load(TextView jahrgang) { return BausteineLaden(directory, jahrgang); }
    std::string_view failureWith(TextView file, TextView content) {
        const Text former = installation.read(file);
        installation.write(file, content);
        const std::string_view kind = failureOf([&] { load(u"2"); });
        installation.write(file, former);
        return kind;
    }
};

TEST_F(ModuleFiles, AreThoseOfTheYear) {
    const Bausteine year1 = load(u"1");
    EXPECT_EQ(year1[Datei::Mathe](18, 3), u"1Ma18-3");
    EXPECT_EQ(year1[Datei::Interessen](1, 15), u"In15");
    const Bausteine year2 = load(u"2");
    EXPECT_EQ(year2[Datei::Lesen](4, 1), u"Le4-1 <sie/er>");
    EXPECT_EQ(year2[Datei::Bemerkungen](2, 1), u"Mathematik ") << "not trimmed here";
    EXPECT_EQ(year2[Datei::Sport](1, 5), u"<Vorname> Sport5");
    EXPECT_EQ(year2[Datei::Zwischentexte](1, 21), u"Zw21");
    EXPECT_EQ(year2.Schule.Konferenzdatum, u"22.06.2027");
    EXPECT_EQ(year2.Schule.Klassenleitung, u"") << "nine fields are read";
    for (const TextView other : {u"3", u"x", u""}) {
        const Bausteine none = load(other);
        EXPECT_EQ(none[Datei::Sprechen](1, 0), u"") << utf8FromText(other);
        EXPECT_EQ(none[Datei::Interessen](1, 1), u"In1");
    }
    EXPECT_EQ(directory.current(), directory.programFolder());
}

TEST_F(ModuleFiles, NumberOfARecordDecidesTheRowOfTheNext) {
    installation.write(u"Daten/Sprechen2.Txt", u"7,\"a\",\"b\",\"c\"\r\n2,\"d\",\"e\",\"f\"\r\n");
    const Bausteine modules = load(u"2");
    EXPECT_EQ(modules[Datei::Sprechen](1, 0), u"a");
    EXPECT_EQ(modules[Datei::Sprechen](3, 7), u"f");
    EXPECT_EQ(modules[Datei::Sprechen](1, 1), u"");
}

TEST_F(ModuleFiles, EndAtTheirLastRow) {
    EXPECT_EQ(failureWith(u"Daten/Interessen12.Txt", u"18,\"a\"\r\n19,\"b\"\r\n"), "none");
    EXPECT_EQ(failureWith(u"Daten/Interessen12.Txt", u"19,\"a\"\r\nkein Satz"),
              "index-out-of-range");
    EXPECT_EQ(failureWith(u"Daten/Versetzung2.Txt", u"11,\"a\"\r\n1,\"b\"\r\n"),
              "index-out-of-range");
    EXPECT_EQ(failureWith(u"Daten/Zwischentexte.Txt", u"25,\"a\"\r\n26,\"b\"\r\n"), "none");
    EXPECT_EQ(failureWith(u"Daten/Mathe2.Txt", u""), "none");
    EXPECT_EQ(failureWith(u"Daten/Mathe2.Txt", u"1,\"zu wenig\"\r\n"), "end-of-file");
    EXPECT_EQ(failureWith(u"Daten/Lesen2.Txt", u"eins,\"a\"\r\n"), "type-mismatch");
    EXPECT_EQ(failureOf([&] { load(u"2")[Datei::Sprechen](4, 0); }), "index-out-of-range");
    EXPECT_EQ(failureOf([&] { load(u"2")[Datei::Sprechen](1, 11); }), "index-out-of-range");
}

TEST_F(ModuleFiles, AreAllNeeded) {
    for (const TextView file : {u"Interessen12", u"Sprechen2", u"Lesen2", u"Schreiben2", u"Mathe2",
                                u"Bemerkungen2", u"Versetzung2", u"Sportusw", u"Zwischentexte"}) {
        const Klasse2b other;
        Arbeitsverzeichnis there(other.path());
        other.remove(u"Daten/" + Text(file) + u".Txt");
        EXPECT_EQ(failureOf([&] { BausteineLaden(there, u"2"); }), "file-not-found")
            << utf8FromText(file);
    }
    installation.remove(u"Daten/Mathe1.Txt");
    EXPECT_EQ(failureOf([&] { load(u"2"); }), "none") << "of the other year";
}

} // namespace
} // namespace zeugnis::test
