#include "years12/stores.h"

#include "tests/support/failure_of.h"
#include "tests/years12/klasse2b.h"

namespace zeugnis::test {
namespace {

using namespace jahrgang12;

class Stores12 : public testing::Test {
  protected:
    Klasse2b installation;
    Arbeitsverzeichnis directory{installation.path()};
    Namensliste list = NamenLaden(directory);
    Speicher12 store;

    void texts(const Text& content) { installation.write(u"Daten/12Speicher.txt", content); }
    void locks(const Text& content) { installation.write(u"Daten/12Sperre.txt", content); }
    std::string_view failure() {
        return failureOf([&] { SpeicherLaden(directory, store); });
    }
};

TEST_F(Stores12, BelongToTheChildrenByPlaceAlone) {
    texts(u"9,\"x\",\"fremd\",\"fremd\",\"a0\",\"\",\"a2\r\nzwei\",\"\",\"\",\"\",\"\",\"a7\"\r\n"
          u"\"y\",1,2,3,\"\",\"b1\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
          u"3,\"2b\",\"c\",\"c\",\"c0\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
    locks(u"1,\"2b\",\"\",\"\",0,0,0,1,0,0,0,0\r\n2,\"2b\",\"\",\"\",0,0,0,0,0,0,0,0\r\n");
    SpeicherLaden(directory, store);
    EXPECT_EQ(store.Bereichstext[2][0], u"a2\r\nzwei");
    EXPECT_EQ(store.Bereichstext[1][1], u"b1");
    const auto lockedAreas = [&](int child) {
        std::string digits;
        for (const auto& area : store.Sperre)
            digits += static_cast<char>('0' + area[child]);
        return digits;
    };
    EXPECT_EQ(lockedAreas(0), "10110001") << "a lock without a text stays";
    EXPECT_EQ(lockedAreas(1), "01000000");
    EXPECT_EQ(lockedAreas(2), "00000000") << "behind the end of the locks nothing is locked";
    EXPECT_EQ(directory.current(), directory.programFolder());
}

TEST_F(Stores12, DamagedRecordsFail) {
    const Text record = u"1,\"2b\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n";
    Text many;
    for (int i = 0; i < 36; ++i)
        many += record;
    texts(many);
    EXPECT_EQ(failure(), "none");
    texts(many + u"kein Satz");
    EXPECT_EQ(failure(), "index-out-of-range");
    texts(u"1,\"2b\",\"Albers\",\"Lena\",\"nur \"ein\" Text\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
    EXPECT_EQ(failure(), "end-of-file");
    texts(record);
    locks(u"1,\"2b\",\"\",\"\",0,0,0,x,0,0,0,0\r\n");
    EXPECT_EQ(failure(), "type-mismatch");
    installation.remove(u"Daten/12Sperre.txt");
    EXPECT_EQ(failure(), "file-not-found");
}

TEST_F(Stores12, AreWrittenForTheClassListWithACopyOfTheDay) {
    SpeicherLaden(directory, store);
    store.Bereichstext[3][0] = u"Lena, 'ja'.\r\nZwei.";
    store.Bereichstext[0][4] = u"nicht in der Liste";
    store.Sperre[3][0] = 1;
    SpeicherSchreiben(directory, list, store, u"14.03.2027");
    store.Bereichstext[3][0] = u"neu";
    SpeicherSchreiben(directory, list, store, u"14.03.2027");
    const Text texts =
        u"1,\"2b\",\"Albers\",\"Lena\",\"\",\"\",\"\",\"neu\",\"\",\"\",\"\",\"\"\r\n"
        u"2,\"2b\",\"Bäcker\",\"Tim\",\"Tim spielt gern Ball.\",\"\",\"\",\"\",\"\","
        u"\"\",\"\",\"Tim hat viel gelernt.\"\r\n"
        u"3,\"2b\",\"Çelik\",\"Emir\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
        u"4,\"2b\",\"Dorn\",\"Mia\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n";
    const Text locks = u"1,\"2b\",\"Albers\",\"Lena\",0,0,0,1,0,0,0,0\r\n"
                       u"2,\"2b\",\"Bäcker\",\"Tim\",1,0,0,0,0,0,0,1\r\n"
                       u"3,\"2b\",\"Çelik\",\"Emir\",0,0,0,0,0,0,0,0\r\n"
                       u"4,\"2b\",\"Dorn\",\"Mia\",0,0,0,1,0,0,0,0\r\n";
    EXPECT_EQ(installation.read(u"Daten/12Speicher.txt"), texts);
    EXPECT_EQ(installation.read(u"Daten/12Sperre.txt"), locks);
    EXPECT_EQ(installation.read(u"Daten/Sicherheit/12Speicher14.03.2027.txt"), texts);
    EXPECT_EQ(installation.read(u"Daten/Sicherheit/12Sperre.txt14.03.2027.txt"), locks);
}

TEST_F(Stores12, AreWrittenBeforeAFailedCopy) {
    installation.remove(u"Daten/Sicherheit");
    store.Bereichstext[0][1] = u"neu";
    store.Sperre[5][3] = 1;
    EXPECT_EQ(failureOf([&] { SpeicherSchreiben(directory, list, store, u"15.03.2027"); }),
              "path-not-found");
    store = {};
    SpeicherLaden(directory, store);
    EXPECT_EQ(store.Bereichstext[0][1], u"neu");
    EXPECT_EQ(store.Sperre[5][3], 1);
}

} // namespace
} // namespace zeugnis::test
