#include "platform/working_directory.h"

#include "tests/support/failure_of.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {
namespace fs = std::filesystem;

class WorkingDirectory : public testing::Test {
  protected:
    WorkingDirectory() { folder.write(u"Daten/Sicherheit/Einfügungen1.txt", u"x"); }

    TemporaryFolder folder;
    Arbeitsverzeichnis directory{folder.path()};
    const fs::path data = fs::canonical(folder.path()) / "Daten";
};

TEST_F(WorkingDirectory, FindsFilesWithoutRegardToCaseAndSlashes) {
    const fs::path file = data / "Sicherheit" / u"Einfügungen1.txt";
    for (const TextView name :
         {u"Daten\\Sicherheit\\Einfügungen1.txt", u"daten/SICHERHEIT\\EINFÜGUNGEN1.TXT",
          u"DATEN//.\\sicherheit/..\\Sicherheit/einfügungen1.Txt"})
        EXPECT_EQ(directory.path(name), file) << utf8FromText(name);
    EXPECT_EQ(directory.path(u"DATEN/Neu Ä.Txt"), data / u"Neu Ä.Txt")
        << "a new file is written as it is named";
}

TEST_F(WorkingDirectory, GoesDownAndUpAndAboveTheProgramFolder) {
    const fs::path processFolder = fs::current_path();
    directory.change(u"daten");
    directory.change(u"Sicherheit");
    EXPECT_EQ(directory.current(), data / "Sicherheit");
    EXPECT_EQ(directory.displayName(u"a/b.txt"), u"Daten\\Sicherheit\\a\\b.txt");
    directory.change(u"..\\");
    EXPECT_EQ(directory.current(), data);
    directory.change(u"..\\..\\");
    EXPECT_EQ(directory.current(), data.parent_path().parent_path());
    EXPECT_EQ(directory.programFolder(), data.parent_path());
    EXPECT_EQ(fs::current_path(), processFolder);
}

TEST_F(WorkingDirectory, StaysWhereItWasIfAFolderIsMissing) {
    folder.write(u"Daten/keinOrdner", u"");
    directory.change(u"Daten");
    for (const TextView name : {u"Bild", u"Sicherheit\\mehr", u"keinOrdner"})
        EXPECT_EQ(failureOf([&] { directory.change(name); }), "path-not-found");
    EXPECT_EQ(failureOf([&] { static_cast<void>(directory.path(u"Bild\\x.jpg")); }),
              "path-not-found");
    EXPECT_EQ(failureSentenceOf([&] { directory.change(u"Bild"); }),
              u"Der Ordner „Daten\\Bild“ ist nicht vorhanden.");
    EXPECT_EQ(directory.current(), data);
    EXPECT_EQ(failureOf([&] { Arbeitsverzeichnis(folder.path() / "fehlt"); }), "path-not-found");
}

TEST_F(WorkingDirectory, ComesBackAlsoAfterAFailure) {
    EXPECT_EQ(failureOf([&] {
                  const Ordnerwechsel in(directory, u"Daten");
                  directory.change(u"fehlt");
              }),
              "path-not-found");
    EXPECT_EQ(directory.current(), data.parent_path());
}

} // namespace
} // namespace zeugnis::test
