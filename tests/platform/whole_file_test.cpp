#include "platform/whole_file.h"

#include "tests/support/failure_of.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {
namespace fs = std::filesystem;

class WholeFile : public testing::Test {
  protected:
    TemporaryFolder folder;
    Arbeitsverzeichnis directory{folder.path()};
};

TEST_F(WholeFile, SaysWhyItCannotReadOrWrite) {
    fs::create_directory(folder.path() / "Ordner.txt");
    EXPECT_EQ(failureOf([&] { readWholeFile(directory, u"fehlt.txt"); }), "file-not-found");
    EXPECT_EQ(failureOf([&] { readWholeFile(directory, u"Daten\\x.txt"); }), "path-not-found");
    EXPECT_EQ(failureOf([&] { readWholeFile(directory, u"Ordner.txt"); }), "access-denied");
    EXPECT_EQ(failureOf([&] { writeWholeFile(directory, u"Ordner.txt", "x"); }), "access-denied");
    EXPECT_EQ(failureSentenceOf([&] { readWholeFile(directory, u"fehlt.txt"); }),
              u"Die Datei „fehlt.txt“ kann nicht gelesen werden: Sie ist nicht vorhanden.");
}

TEST_F(WholeFile, WritesOverWhatStoodThereAndCutsTheRest) {
    folder.write(u"x.txt", u"ein langer alter Inhalt");
    const auto before = fs::status(folder.path() / "x.txt").permissions();
    fs::create_hard_link(folder.path() / "x.txt", folder.path() / "same.txt");
    writeWholeFile(directory, u"x.txt", "kurz");
    EXPECT_EQ(folder.read(u"x.txt"), u"kurz");
    EXPECT_EQ(folder.read(u"same.txt"), u"kurz"); // no file took its place
    EXPECT_EQ(fs::status(folder.path() / "x.txt").permissions(), before);
}

TEST_F(WholeFile, CopiesOverAnotherFileWhateverItsCase) {
    folder.write(u"TexteAV.txt", u"neu\r\n");
    folder.write(u"Standard/TexteAVStandard.txt", u"alter, längerer Inhalt\r\n");
    copyWholeFile(directory, u"TEXTEAV.Txt", u"Standard\\TexteAVStandard.Txt");
    EXPECT_EQ(folder.read(u"Standard/TexteAVStandard.txt"), u"neu\r\n");
    for (const auto& entry : fs::directory_iterator(folder.path() / "Standard"))
        EXPECT_EQ(entry.path().filename(), "TexteAVStandard.txt");
}

} // namespace
} // namespace zeugnis::test
