#include "behaviour/avsv_stores.h"

#include "tests/support/failure_of.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {

// Two children, Ahlers and Bäcker.
class AVSVStores : public testing::Test {
  protected:
    TestInstallation installation{{{u"Ahlers", u"Tom", u"m"}, {u"Bäcker", u"Lena", u"w"}}};
    Arbeitsverzeichnis directory{installation.path()};
    Namensliste list = NamenLaden(directory);
    AVSVSpeicher store;

    bool load() { return SpeicherLaden(directory, list, store); }
    void texts(std::initializer_list<TextView> records) {
        installation.write(u"Daten/AVSVspeicher.txt", TestInstallation::lines(records));
    }
    void wahl(std::initializer_list<TextView> records) {
        installation.write(u"Daten/AVSVWahl.txt", TestInstallation::lines(records));
    }
};

TEST_F(AVSVStores, AreReadByTheNumbersOfTheirRecords) {
    texts({u"1,\"9z\",\"Ahlers\",\"anders\",\"AV eins\r\nzwei\",\"SV eins\"",
           u"2,\"3a\",\"Bäcker\",\"Lena\",\"\",\"SV zwei\""});
    wahl({u"1,\"3a\",\"Ahlers\",\"Tom\",1,0,1,2,3,4,5,6,7,8,9,1,2,3,4"});
    EXPECT_TRUE(load()) << "only the family name counts, and a store may be shorter";
    EXPECT_EQ(store.AV.Texte[0], u"AV eins\r\nzwei");
    EXPECT_EQ(store.SV.Texte[1], u"SV zwei");
    EXPECT_EQ(store.AV.Gesperrt[0], 1);
    EXPECT_EQ(store.SV.Gesperrt[0], 0);
    for (int category = 0; category < KategorienAV; ++category)
        EXPECT_EQ(store.AV.Wahl[0][category], category + 1);
    EXPECT_EQ(store.SV.Wahl[0][0], 8);
    EXPECT_EQ(store.SV.Wahl[0][5], 4);
}

TEST_F(AVSVStores, EmptyTextStorePassesAndTheChoicesAreStillRead) {
    texts({});
    wahl({u"1,\"3a\",\"Ahlers\",\"Tom\",0,1,0,0,0,0,0,0,0,0,0,0,0,0,0"});
    EXPECT_TRUE(load());
    EXPECT_EQ(store.SV.Gesperrt[0], 1);
}

TEST_F(AVSVStores, DifferingRecordIsTheLastThatIsRead) {
    texts({u"1,\"3a\",\"Anders\",\"Tom\",\"doch gelesen\",\"\"", u"kein Satz mehr"});
    wahl({u"1,\"3a\",\"Ahlers\",\"Tom\",1,1,1,0,0,0,0,0,0,0,0,0,0,0,0"});
    EXPECT_FALSE(load());
    EXPECT_EQ(store.AV.Texte[0], u"doch gelesen");
    EXPECT_EQ(store.AV.Wahl[0][0], 0) << "no choices are loaded";

    texts({u"1,\"3a\",\"Ahlers\",\"Tom\",\"\",\"\"", u"2,\"3a\",\"Bäcker\",\"Lena\",\"\",\"\"",
           u"3,\"3a\",\"Çelik\",\"Kim\",\"überzählig\",\"\""});
    EXPECT_FALSE(load());
    EXPECT_EQ(store.AV.Texte[2], u"überzählig");

    texts({});
    wahl({u"1,\"3a\",\"ahlers\",\"Tom\",0,0,5,0,0,0,0,0,0,0,0,0,0,0,0", u"kein Satz mehr"});
    EXPECT_FALSE(load()) << "names are compared exactly";
    EXPECT_EQ(store.AV.Wahl[0][0], 5);
}

TEST_F(AVSVStores, NumbersOutsideTheSlotsFail) {
    for (const TextView number : {u"0", u"-1", u"37"}) {
        texts({Text(number) + u",\"3a\",\"Ahlers\",\"Tom\",\"\",\"\""});
        EXPECT_EQ(failureOf([&] { load(); }), "index-out-of-range") << utf8FromText(number);
    }
    texts({u"36,\"3a\",\"\",\"\",\"\",\"\""}); // compared with the empty slot 35
    EXPECT_TRUE(load());
    texts({u"36,\"3a\",\"\",\"\",\"\",\"\"", u"kein Satz mehr"});
    EXPECT_EQ(failureOf([&] { load(); }), "index-out-of-range");
}

TEST_F(AVSVStores, AreWrittenForTheClassListWithACopyOfTheDay) {
    store.AV.Texte[0] = u"Tom, 'ja'.\r\nZwei.";
    store.SV.Texte[1] = u"Lena.";
    store.AV.Gesperrt[0] = 1;
    store.SV.Gesperrt[1] = 1;
    store.AV.Wahl[0][6] = 9;
    store.SV.Wahl[1][0] = 3;
    store.AV.Texte[2] = u"nicht in der Liste";
    SpeicherSchreiben(directory, list, store, u"14.03.2027");
    store.AV.Texte[0] = u"später";
    SpeicherSchreiben(directory, list, store, u"15.03.2027");
    store.AV.Texte[0] = u"zuletzt";
    SpeicherSchreiben(directory, list, store, u"15.03.2027");

    const auto textsWith = [](TextView text) {
        return u"1,\"3a\",\"Ahlers\",\"Tom\",\"" + Text(text) +
               u"\",\"\"\r\n2,\"3a\",\"Bäcker\",\"Lena\",\"\",\"Lena.\"\r\n";
    };
    const Text choices = u"1,\"3a\",\"Ahlers\",\"Tom\",1,0,0,0,0,0,0,0,9,0,0,0,0,0,0\r\n"
                         u"2,\"3a\",\"Bäcker\",\"Lena\",0,1,0,0,0,0,0,0,0,3,0,0,0,0,0\r\n";
    EXPECT_EQ(installation.read(u"Daten/AVSVspeicher.txt"), textsWith(u"zuletzt"));
    EXPECT_EQ(installation.read(u"Daten/AVSVWahl.txt"), choices);
    EXPECT_EQ(installation.read(u"Daten/Sicherheit/AVSVspeicher14.03.2027.txt"),
              textsWith(u"Tom, 'ja'.\r\nZwei."));
    EXPECT_EQ(installation.read(u"Daten/Sicherheit/AVSVspeicher15.03.2027.txt"),
              textsWith(u"zuletzt"));
    EXPECT_EQ(installation.read(u"Daten/Sicherheit/AVSVWahl15.03.2027.txt"), choices);
    EXPECT_EQ(directory.current(), directory.programFolder());
}

TEST_F(AVSVStores, AreWrittenBeforeAFailedCopy) {
    installation.remove(u"Daten/Sicherheit");
    store.AV.Texte[1] = u"neu";
    EXPECT_EQ(failureOf([&] { SpeicherSchreiben(directory, list, store, u"15.03.2027"); }),
              "path-not-found");
    store = {};
    EXPECT_TRUE(load());
    EXPECT_EQ(store.AV.Texte[1], u"neu");
}

} // namespace
} // namespace zeugnis::test
