#include "desktop/word_launcher.h"

#include "tests/support/failure_of.h"
#include "tests/support/test_installation.h"
#include "toolkit/qt_text.h"

#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

#include <string_view>

namespace zeugnis::test {
namespace {

namespace fs = std::filesystem;

/// A program folder with one document, a folder that the search path leads to, and one of our own.
class WordLauncherTest : public testing::Test {
  protected:
    WordLauncherTest() : m_searchPath(qgetenv("PATH")) {
        folder.write(u"Programm/3aZeugnisse32.doc", u"");
        folder.write(u"Suche/leer.txt", u"");
        folder.write(u"Eigene/leer.txt", u"");
        qputenv("PATH",
                QByteArray::fromStdString((folder.path() / "Suche").string()) + ":" + m_searchPath);
    }
    ~WordLauncherTest() override { qputenv("PATH", m_searchPath); }

    // A stand-in that leaves where it ran and with what.
    void standIn(TextView name) const {
        folder.write(name, u"#!/bin/sh\n{ pwd; for a in \"$@\"; do echo \"<$a>\"; done; } > "
                           u"\"$0.tmp\"\nmv \"$0.tmp\" \"$0.ran\"\n");
        fs::permissions(folder.path() / utf8FromText(name), fs::perms::owner_all);
    }

    [[nodiscard]] std::string ran(TextView name) const {
        const Text log = Text(name) + u".ran";
        for (int tenths = 0; tenths < 50 && !folder.has(log); ++tenths)
            QTest::qWait(100);
        return folder.has(log) ? fromBytes(folder.read(log)) : "did not run";
    }

    // The folder's name is written in UTF-8 by the shell; only what follows it counts.
    [[nodiscard]] static std::string fromBytes(const Text& text) {
        const std::string lines = utf8FromText(text);
        return lines.substr(lines.rfind("/Programm\n") + 1);
    }

    void start(const Text& commandLine) {
        WordLauncher(QString::fromStdString((folder.path() / "Eigene").string()))
            .start(commandLine, folder.path() / "Programm");
    }

    TemporaryFolder folder;

  private:
    QByteArray m_searchPath;
};

TEST_F(WordLauncherTest, StartsWordWithExactlyTheCommandLine) {
    standIn(u"Suche/Winword.exe");
    standIn(u"Eigene/zeugnisdokumente");
    start(u"Winword.exe 3AZEUGNISSE32.doc /mMakro");
    EXPECT_EQ(ran(u"Suche/Winword.exe"), "Programm\n<3AZEUGNISSE32.doc>\n</mMakro>\n");
    EXPECT_FALSE(folder.has(u"Eigene/zeugnisdokumente.ran"));
}

TEST_F(WordLauncherTest, StartsTheOwnProgramWhereTheDocumentIsMissing) {
    standIn(u"Suche/Winword.exe");
    standIn(u"Eigene/zeugnisdokumente");
    start(u"Winword.exe Texte\\Hilfe1.doc");
    EXPECT_EQ(ran(u"Eigene/zeugnisdokumente"), "Programm\n<Texte\\Hilfe1.doc>\n");
}

TEST_F(WordLauncherTest, FailsWhereNeitherIsThere) {
    EXPECT_EQ(failureOf([this] { start(u"Winword.exe 3aZeugnisse32.doc"); }), "program-not-found");
}

} // namespace
} // namespace zeugnis::test
