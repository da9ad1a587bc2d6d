#include "years34/stores.h"

#include "tests/support/failure_of.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

namespace zeugnis::jahrgang34::test {
namespace {

using zeugnis::test::failureOf;
using zeugnis::test::failureSentenceOf;
using zeugnis::test::TestInstallation;

class Stores34 : public testing::Test {
  protected:
    TestInstallation installation{{{u"Ahlers", u"Tom", u"m"}, {u"Bäcker", u"Lena", u"w"}}};
    Arbeitsverzeichnis directory{installation.path()};
    Namensliste list = NamenLaden(directory);

    Speicher34 load() { return TexteEinlesen(directory); }
    void texts(std::initializer_list<TextView> records) {
        installation.write(u"Daten/34Speicher.txt", TestInstallation::lines(records));
    }
};

TEST_F(Stores34, AreReadByPositionAlone) {
    texts({u"17,\"9z\",\"Niemand\",\"anders\",\"F,1\",\"\",\"B1\r\nZeile 2\"",
           u"x,\"\",\"\",\"\",\"F2\",\"I2\",\"\""});
    installation.write(u"Daten/34Sperre.txt", u"1,\"3a\",\"A\",\"B\",0,1,0\r\n");
    const Speicher34 store = load();
    EXPECT_EQ(store.Texte[SeiteFoerder][0], u"F,1");
    EXPECT_EQ(store.Texte[SeiteBemerkungen][0], u"B1\r\nZeile 2");
    EXPECT_EQ(store.Texte[SeiteInteressen][1], u"I2");
    EXPECT_EQ(store.Sperren[SeiteInteressen][0], 1);
    EXPECT_EQ(store.Sperren[SeiteFoerder][0], 0) << "a text alone locks nothing when it is read";
}

TEST_F(Stores34, HoldThirtySixRecords) {
    Text records;
    for (int i = 0; i < 36; ++i)
        records += u"1,\"\",\"\",\"\",\"\",\"\",\"" + textFromNumber(i) + u"\"\r\n";
    installation.write(u"Daten/34Speicher.txt", records);
    EXPECT_EQ(load().Texte[SeiteBemerkungen][35], u"35");
    installation.write(u"Daten/34Speicher.txt", records + u"1,\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
    EXPECT_EQ(failureOf([&] { load(); }), "index-out-of-range");
    EXPECT_EQ(
        failureSentenceOf([&] { load(); }),
        u"Datei „Daten\\34Speicher.txt“, Datensatz 36, Feld 7: Danach folgt Datensatz 37; erlaubt "
        u"sind höchstens 36 Datensätze.");
}

TEST_F(Stores34, DamagedAndMissingFilesFail) {
    texts({u"1,\"3a\",\"Ahlers\",\"Tom\",\"nur\",\"zwei\""});
    EXPECT_EQ(failureOf([&] { load(); }), "end-of-file");
    texts({});
    installation.write(u"Daten/34Sperre.txt", u"1,\"3a\",\"A\",\"B\",0,\"ja\",0\r\n");
    EXPECT_EQ(failureOf([&] { load(); }), "type-mismatch");
    for (const TextView file : {u"Daten/34Sperre.txt", u"Daten/34Speicher.txt"}) {
        installation.remove(file);
        EXPECT_EQ(failureOf([&] { load(); }), "file-not-found");
    }
}

TEST_F(Stores34, LockWhatHasATextAndAreCopiedUnderTheDate) {
    Speicher34 store;
    store.Texte[SeiteFoerder][0] = u"Tom, 'ja'.\r\nZwei.";
    store.Sperren[SeiteBemerkungen][1] = 1;
    store.Texte[SeiteInteressen][2] = u"nicht in der Liste";
    TexteSpeichern(directory, list, store, u"14.03.2027");
    store.Texte[SeiteFoerder][0].clear();
    store.Texte[SeiteInteressen][1] = u"Lena.";
    TexteSpeichern(directory, list, store, u"15.03.2027");
    store.Texte[SeiteInteressen][1] = u"Lena malt.";
    TexteSpeichern(directory, list, store, u"15.03.2027");

    const Text texts = u"1,\"3a\",\"Ahlers\",\"Tom\",\"\",\"\",\"\"\r\n"
                       u"2,\"3a\",\"Bäcker\",\"Lena\",\"\",\"Lena malt.\",\"\"\r\n";
    // A lock is never taken off by saving.
    const Text locks = u"1,\"3a\",\"Ahlers\",\"Tom\",1,0,0\r\n"
                       u"2,\"3a\",\"Bäcker\",\"Lena\",0,1,1\r\n";
    EXPECT_EQ(installation.read(u"Daten/34Speicher.txt"), texts);
    EXPECT_EQ(installation.read(u"Daten/34Sperre.txt"), locks);
    EXPECT_EQ(installation.read(u"Daten/Sicherheit/34Speicher15.03.2027.txt"), texts);
    EXPECT_EQ(installation.read(u"Daten/Sicherheit/34Sperre15.03.2027.txt"), locks);
    EXPECT_EQ(installation.read(u"Daten/Sicherheit/34Speicher14.03.2027.txt"),
              u"1,\"3a\",\"Ahlers\",\"Tom\",\"Tom, 'ja'.\r\nZwei.\",\"\",\"\"\r\n"
              u"2,\"3a\",\"Bäcker\",\"Lena\",\"\",\"\",\"\"\r\n");
    EXPECT_EQ(load().Texte[SeiteInteressen][1], u"Lena malt.");
    EXPECT_EQ(directory.current(), directory.programFolder());

    installation.remove(u"Daten/Sicherheit");
    store.Texte[SeiteFoerder][1] = u"neu";
    EXPECT_EQ(failureOf([&] { TexteSpeichern(directory, list, store, u"16.03.2027"); }),
              "path-not-found");
    EXPECT_EQ(load().Texte[SeiteFoerder][1], u"neu") << "the stores were written before";
}

} // namespace
} // namespace zeugnis::jahrgang34::test
