#include "files/pupil_list.h"

#include "tests/support/failure_of.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {

Namensliste loaded(const TestInstallation& installation) {
    Arbeitsverzeichnis directory(installation.path());
    return NamenLaden(directory);
}

Text numbered(int first, int last) {
    Text content;
    for (int i = first; i <= last; ++i)
        content += textFromNumber(i) + u",\"3a\",\"N" + textFromNumber(i) +
                   u"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n";
    return content;
}

TEST(PupilList, TakesAllFieldsOfARecord) {
    const TestInstallation installation;
    installation.write(u"Daten/Namen.Txt", u"1,\"4b\",\"von der Au\",\"Zoé\",\"w\",\"30.04.2018\","
                                           u"\"A\",\"B\",\"C\",\"D\",\"Lyon\"\r\n");
    const Namensliste list = loaded(installation);
    const Schueler& child = list.Kinder[0];
    EXPECT_EQ(list.Klasse, u"4b");
    EXPECT_EQ(list.Schuelerzahl, 1);
    EXPECT_EQ((std::array{child.Nachname, child.Vorname, child.Geschlecht, child.Geburtsdatum,
                          child.AG[0], child.AG[1], child.AG[2], child.AG[3], child.Geburtsort}),
              (std::array<Text, 9>{u"von der Au", u"Zoé", u"w", u"30.04.2018", u"A", u"B", u"C",
                                   u"D", u"Lyon"}));
}

TEST(PupilList, HasRoomFor36Records) {
    const TestInstallation installation;
    installation.write(u"Daten/Namen.Txt", numbered(1, 36));
    EXPECT_EQ(loaded(installation).Kinder[35].Nachname, u"N36");
    installation.write(u"Daten/Namen.Txt", numbered(1, 37));
    EXPECT_EQ(failureOf([&] { loaded(installation); }), "index-out-of-range");
}

TEST(PupilList, IsAsLongAsItsLastNumberSays) {
    const TestInstallation installation;
    installation.write(u"Daten/Namen.Txt", numbered(1, 3) + numbered(0, 0));
    EXPECT_EQ(loaded(installation).Schuelerzahl, 0);
    EXPECT_EQ(loaded(installation).Kinder[3].Nachname, u"N0");
    installation.write(u"Daten/Namen.Txt", u"");
    EXPECT_EQ(loaded(installation).Schuelerzahl, 0);
}

TEST(PupilList, PictureNameTakesTheBirthDateByPosition) {
    const auto nameFor = [](TextView date) {
        return BildnameVon({u"Müller", u"Anna", u"w", Text(date), {}, {}});
    };
    EXPECT_EQ(nameFor(u"03.07.1998"), u"Müller_Anna_03071998");
    EXPECT_EQ(nameFor(u"3.7.1998"), u"Müller_Anna_3..11998");
    EXPECT_EQ(nameFor(u"1.2"), u"Müller_Anna_1.1.2");
    EXPECT_EQ(nameFor(u""), u"Müller_Anna_");
}

} // namespace
} // namespace zeugnis::test
