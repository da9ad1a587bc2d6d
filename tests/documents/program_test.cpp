#include "platform/plain_machine.h"
#include "tests/documents/report_installation.h"

#include <gtest/gtest.h>

#include <QProcess>

namespace zeugnis::test {
namespace {

struct Outcome {
    int exitCode;
    std::string errors;
};

// The real program, without any display.
Outcome run(const TemporaryFolder& installation, const QStringList& arguments) {
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(QString::fromStdString(installation.path().string()));
    program.start(QStringLiteral(DOCUMENTS_PROGRAM), arguments);
    EXPECT_TRUE(program.waitForFinished());
    return {program.exitCode(), program.readAllStandardError().toStdString()};
}

class Program : public testing::Test {
  protected:
    Program() {
        installation.write({{schueler(u"Azra", u"Öz"), u"Azra liest.", u""}});
        installation.write(Doc, u"alt");
        installation.write(Pdf, u"alt");
    }

    Outcome writeReports() {
        return run(installation,
                   {QStringLiteral("ZeugnisseSchreiben.doc"),
                    QStringLiteral("/mZeugnisseSchreiben"), QStringLiteral("--no-window")});
    }

    void expectFailure(const std::string& words) {
        const Outcome outcome = writeReports();
        EXPECT_EQ(outcome.exitCode, 1);
        EXPECT_NE(outcome.errors.find(words), std::string::npos) << outcome.errors;
        EXPECT_EQ(installation.read(Pdf), u"alt");
    }

    static constexpr TextView Doc = u"3aZeugnisse32.doc";
    static constexpr TextView Pdf = u"3aZeugnisse32.pdf";
    ReportInstallation installation;
};

TEST_F(Program, WritesTheReportsWithoutADisplay) {
    EXPECT_EQ(writeReports().exitCode, 0);
    EXPECT_EQ(installation.read(Doc).substr(0, 6), u"{\\rtf1");
    EXPECT_EQ(installation.read(Pdf).substr(0, 5), u"%PDF-");
}

TEST_F(Program, BeginsTheListAnewAndKeepsTheFormerOne) {
    const Text former = u"1,\"3a\",\"Öz\",\"Azra\",5,0,1,1,1,1,1,1,1,1,1,1\r\n";
    installation.write(u"3aZeugnisliste32.txt", former);
    EXPECT_EQ(
        run(installation, {QStringLiteral("ZeugnislisteNeu.doc"),
                           QStringLiteral("/mZeugnislisteNeu"), QStringLiteral("--no-window")})
            .exitCode,
        0);
    EXPECT_EQ(installation.read(u"3aZeugnisliste32.txt"),
              u"1,\"3a\",\"Öz\",\"Azra\",-1,-1,-1,-1,-1,-1,-1,-1,-1,-1,-1,-1\r\n");
    EXPECT_EQ(installation.read(u"3aZeugnisliste32 vom " + SystemCalendar().today() + u".txt"),
              former);
    EXPECT_EQ(installation.read(u"3aZeugnisliste32.doc").substr(0, 6), u"{\\rtf1");
    EXPECT_EQ(installation.read(u"3aZeugnisliste32.pdf").substr(0, 5), u"%PDF-");
}

TEST_F(Program, SaysWhyAndLeavesTheOldFilesWholeIfItCannotWrite) {
    const Text store = installation.read(u"Daten/AVSVspeicher.txt");
    installation.write(u"Daten/AVSVspeicher.txt", store.substr(0, store.find(u"\"Azra liest")));
    expectFailure("Datei „Daten\\AVSVspeicher.txt“");
    installation.remove(u"Daten/Basisdaten.txt");
    expectFailure("Die Datei „Daten\\Basisdaten.txt“ kann nicht gelesen werden");
    EXPECT_EQ(installation.read(Doc), u"alt");
}

TEST_F(Program, RefusesWhatItDoesNotKnow) {
    const std::pair<QStringList, const char*> calls[] = {
        {{QStringLiteral("daten\\worddaten\\Anzeigetext.doc"), QStringLiteral("/mAnzeigetext")},
         "Zwischenablage"},
        {{QStringLiteral("Texte\\Hilfe1.doc")}, "Texte\\Hilfe1.doc"},
        {{QStringLiteral("3"), QStringLiteral("aListe.doc")}, "„3 aListe.doc“"},
        {{QStringLiteral("a.doc"), QStringLiteral("--print")}, "--print"},
        {{}, "Es fehlt der Name"},
    };
    for (const auto& [arguments, words] : calls) {
        const Outcome outcome =
            run(installation, QStringList(QStringLiteral("--no-window")) + arguments);
        EXPECT_EQ(outcome.exitCode, 1) << words;
        EXPECT_NE(outcome.errors.find(words), std::string::npos) << outcome.errors;
    }
}

} // namespace
} // namespace zeugnis::test
