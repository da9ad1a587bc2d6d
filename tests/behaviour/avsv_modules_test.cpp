#include "behaviour/avsv_modules.h"

#include "tests/support/failure_of.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {

class AVSVModules : public testing::Test {
  protected:
    TestInstallation installation;
    Arbeitsverzeichnis directory{installation.path()};
};

TEST_F(AVSVModules, FillLinesNamesAndColoursByTheirNumbers) {
    const Bausteine av = TexteLadenAV(directory);
    EXPECT_EQ(av.Zeilen[6][9], u"a69");
    EXPECT_EQ(av.Zeilen[0][0], u"a00");
    EXPECT_EQ(av.Zeilen[3][10], u"") << "ten records leave slot 10 empty";
    EXPECT_EQ(av.Kategorienamen[6], u"AV 6");
    EXPECT_EQ(av.Zeilenfarben[0][6], 1);
    EXPECT_EQ(av.Zeilenfarben[4][6], 0);
    const Bausteine sv = TexteLadenSV(directory);
    EXPECT_EQ(sv.Zeilen[5][1], u"s51");
    EXPECT_EQ(sv.Kategorienamen[5], u"SV 5");
    EXPECT_EQ(directory.current(), directory.programFolder());
}

TEST_F(AVSVModules, LoseOuterBlanksExceptInTheLastSVCategoryAndInNames) {
    installation.write(u"Daten/TexteAV.txt",
                       u"1,\" 0 \",\" 1 \",\" 2 \",\" 3 \",\" 4 \",\" 5 \",\" 6 \"\r\n");
    installation.write(u"Daten/TexteSV.txt",
                       u"1,\" 0 \",\" 1 \",\" 2 \",\" 3 \",\" 4 \",\" 5 \"\r\n");
    installation.write(u"Daten/AVKategorien.txt", u"1,\" Name \",0,1,2,3,4,5,6,7,10\r\n");
    const Bausteine av = TexteLadenAV(directory);
    const Bausteine sv = TexteLadenSV(directory);
    for (int category = 0; category < KategorienAV; ++category)
        EXPECT_EQ(av.Zeilen[category][0], textFromNumber(category));
    for (int category = 0; category < KategorienSV - 1; ++category)
        EXPECT_EQ(sv.Zeilen[category][0], textFromNumber(category));
    EXPECT_EQ(sv.Zeilen[5][0], u" 5 ");
    EXPECT_EQ(av.Kategorienamen[0], u" Name ");
    EXPECT_EQ(av.Zeilenfarben[8][0], 10) << "accepted here, looked up by the screen";
}

TEST_F(AVSVModules, RecordNumberLeadsToGapsAndBeyondTenToAFailure) {
    const auto write = [&](std::initializer_list<int> numbers) {
        Text content;
        for (const int number : numbers)
            content +=
                textFromNumber(number) + u",a,b,c,d,e,f,z" + textFromNumber(number) + u"\r\n";
        installation.write(u"Daten/TexteAV.txt", content);
    };
    write({1, 2, 5, 6, 10, 99});
    const Bausteine av = TexteLadenAV(directory);
    const Text expected[] = {u"z1", u"z2", u"z5", u"", u"", u"z6", u"z10", u"", u"", u"", u"z99"};
    for (int line = 0; line < Zeilenplaetze; ++line)
        EXPECT_EQ(av.Zeilen[6][line], expected[line]);
    write({1, 11, 3});
    EXPECT_EQ(failureOf([&] { TexteLadenAV(directory); }), "index-out-of-range");
    write({1, -1, 3});
    EXPECT_EQ(failureOf([&] { TexteLadenAV(directory); }), "index-out-of-range");
}

} // namespace
} // namespace zeugnis::test
