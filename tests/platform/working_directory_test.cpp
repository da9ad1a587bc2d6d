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
    const fs::path file = data / "Sicherheit" / "Einfügungen1.txt";
    for (const TextView name :
         {u"Daten\\Sicherheit\\Einfügungen1.txt", u"daten/SICHERHEIT\\EINFÜGUNGEN1.TXT",
          u"DATEN//.\\sicherheit/..\\Sicherheit/einfügungen1.Txt"})
        EXPECT_EQ(directory.pfad(name), file) << utf8FromText(name);
    EXPECT_EQ(directory.pfad(u"DATEN/Neu Ä.Txt"), data / "Neu Ä.Txt")
        << "a new file is written as it is named";
}

TEST_F(WorkingDirectory, GoesDownAndUpAndAboveTheProgramFolder) {
    const fs::path processFolder = fs::current_path();
    directory.wechseln(u"daten");
    directory.wechseln(u"Sicherheit");
    EXPECT_EQ(directory.aktuell(), data / "Sicherheit");
    EXPECT_EQ(directory.anzeigename(u"a/b.txt"), u"Daten\\Sicherheit\\a\\b.txt");
    directory.wechseln(u"..\\");
    EXPECT_EQ(directory.aktuell(), data);
    directory.wechseln(u"..\\..\\");
    EXPECT_EQ(directory.aktuell(), data.parent_path().parent_path());
    EXPECT_EQ(directory.programmordner(), data.parent_path());
    EXPECT_EQ(fs::current_path(), processFolder);
}

TEST_F(WorkingDirectory, StaysWhereItWasIfAFolderIsMissing) {
    folder.write(u"Daten/keinOrdner", u"");
    directory.wechseln(u"Daten");
    for (const TextView name : {u"Bild", u"Sicherheit\\mehr", u"keinOrdner"})
        EXPECT_EQ(failureOf([&] { directory.wechseln(name); }), "path-not-found");
    EXPECT_EQ(failureOf([&] { static_cast<void>(directory.pfad(u"Bild\\x.jpg")); }),
              "path-not-found");
    EXPECT_EQ(failureSentenceOf([&] { directory.wechseln(u"Bild"); }),
              u"Der Ordner „Daten\\Bild“ ist nicht vorhanden.");
    EXPECT_EQ(directory.aktuell(), data);
    EXPECT_EQ(failureOf([&] { Arbeitsverzeichnis(folder.path() / "fehlt"); }), "path-not-found");
}

TEST_F(WorkingDirectory, ComesBackAlsoAfterAFailure) {
    EXPECT_EQ(failureOf([&] {
                  const Ordnerwechsel in(directory, u"Daten");
                  directory.wechseln(u"fehlt");
              }),
              "path-not-found");
    EXPECT_EQ(directory.aktuell(), data.parent_path());
}

} // namespace
} // namespace zeugnis::test
