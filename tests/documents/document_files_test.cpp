#include "documents/app/document_files.h"
#include "documents/app/document_keys.h"
#include "documents/app/review_document.h"
#include "documents/app/temporary_folder.h"
#include "tests/documents/report_installation.h"
#include "tests/support/failure_of.h"

#include <gtest/gtest.h>

#include <fstream>

namespace zeugnis::dokumente {
namespace {

namespace fs = std::filesystem;
using test::failureOf;

class DocumentFiles : public testing::Test {
  protected:
    DocumentFiles() { installation.write({{test::schueler(u"Azra", u"Öz"), u"Azra liest.", u""}}); }

    Dokumentdateien open(const Text& document, const Text& macro = {}) {
        Arbeitsverzeichnis verzeichnis(installation.path());
        return DokumentBereitstellen(verzeichnis, {.Dokument = document, .Makro = macro});
    }

    test::ReportInstallation installation;
};

std::optional<fs::path> cannotConvert(const fs::path&) { return std::nullopt; }

TEST_F(DocumentFiles, OpeningMakesTheReportOnlyIfItIsMissing) {
    open(u"3AZEUGNISSE32.DOC");
    EXPECT_TRUE(installation.has(u"3aZeugnisse32.pdf"));
    installation.write(u"3aZeugnisse32.doc", u"von Hand");
    open(u"3aZeugnisse32.doc");
    EXPECT_EQ(installation.read(u"3aZeugnisse32.doc"), u"von Hand");
}

TEST_F(DocumentFiles, FindsAHelpTextInItsFolder) {
    fs::create_directories(installation.path() / "Texte");
    installation.write(u"Texte/Hilfe1.doc", u"a");
    installation.write(u"Texte/Hilfe1.pdf", u"b");
    EXPECT_EQ(open(u"texte\\hilfe1.doc").Pdf.filename(), "Hilfe1.pdf");
    EXPECT_EQ(failureOf([&] { open(u"Texte\\Hilfe2.doc"); }), "file-not-found");
    EXPECT_EQ(failureOf([&] { open(u"KlListe.doc", u"Liste"); }), "file-not-found");
    EXPECT_EQ(failureOf([&] { open(u"Anderswo\\a.doc"); }), "path-not-found");
}

TEST_F(DocumentFiles, ShowsEachInTheWindowThatBelongsToIt) {
    Arbeitsverzeichnis verzeichnis(installation.path());
    const auto fenster = [&](const Text& dokument, const Text& makro = {}) {
        return FensterFuer(verzeichnis, {.Dokument = dokument, .Makro = makro});
    };
    EXPECT_EQ(fenster(u"ZeugnisseSchreiben.doc", u"zeugnisseschreiben"), Fensterart::Zeugnisse);
    EXPECT_EQ(fenster(u"3aZeugnisse32.doc"), Fensterart::Zeugnisse);
    EXPECT_EQ(fenster(u"3aZEUGNISLISTE32.DOC"), Fensterart::Zeugnisliste);
    EXPECT_EQ(fenster(u"ZeugnislisteNeu.doc", u"ZeugnislisteNeu"), Fensterart::ZeugnislisteNeu);
    EXPECT_EQ(fenster(u"4aZeugnisliste42.doc"), Fensterart::Vorschau);
    installation.remove(u"Daten/Namen.Txt");
    EXPECT_EQ(fenster(u"3aZeugnisse32.doc"), Fensterart::Vorschau);
}

TEST_F(DocumentFiles, KeepsBothOldFilesIfOneCannotBeWritten) {
    const auto fails = [&](TextView name) {
        const Text sentence =
            test::failureSentenceOf([&] { open(u"KlListe.doc", u"Klassenliste"); });
        EXPECT_NE(sentence.find(Text(u"„") + Text(name) + u"“"), Text::npos)
            << utf8FromText(sentence);
    };
    installation.write(u"3aKlassenliste32.doc", u"alt");
    const fs::path doc = installation.path() / "3aKlassenliste32.doc";
    const fs::path pdf = installation.path() / "3aKlassenliste32.pdf";
    fs::create_directory(pdf);
    fails(u"3aKlassenliste32.pdf");
    fs::remove(pdf);
    fs::create_symlink("/dev/full", pdf);
    fails(u"3aKlassenliste32.pdf");
    EXPECT_EQ(installation.read(u"3aKlassenliste32.doc"), u"alt");

    installation.remove(u"3aKlassenliste32.doc");
    fails(u"3aKlassenliste32.pdf");
    EXPECT_FALSE(fs::exists(doc)) << "a .doc alone would pass for an edited one";
    fs::create_directory(doc);
    fails(u"3aKlassenliste32.doc");
    EXPECT_TRUE(fs::is_directory(doc));
}

TEST_F(DocumentFiles, WritesNothingOnceItIsToldToStop) {
    std::stop_source stop;
    stop.request_stop();
    Arbeitsverzeichnis verzeichnis(installation.path());
    EXPECT_EQ(failureOf([&] {
                  DokumentBereitstellen(verzeichnis,
                                        {.Dokument = u"3aKlassenliste32.doc", .Makro = {}},
                                        stop.get_token());
              }),
              "invalid-call");
    EXPECT_FALSE(installation.has(u"3aKlassenliste32.doc"));
}

TEST_F(DocumentFiles, AnEmptyClassListGivesOneHelpfulSentenceInEveryDocument) {
    installation.write(u"Daten/Namen.Txt", u"");
    for (const auto& key : {std::pair{u"ZeugnisseSchreiben.doc", u"ZeugnisseSchreiben"},
                            {u"ZeugnisseAnlagen.doc", u"ZeugnisseAnlagen"},
                            {u"KlListe.doc", u"Klassenliste"},
                            {u"StListe.doc", u"Strichliste"},
                            {u"BldListe.doc", u"Bilderliste"},
                            {u"Leerformular.doc", u"Leerformular"},
                            {u"Zeugnisliste.doc", u"Zeugnisliste"},
                            {u"ZeugnislisteNeu.doc", u"ZeugnislisteNeu"}}) {
        const Text sentence = test::failureSentenceOf([&] { open(key.first, key.second); });
        EXPECT_NE(sentence.find(u"noch keine Klasse. Tragen Sie sie im Zeugnisprogramm unter "
                                u"„Basisdaten“ ein."),
                  Text::npos)
            << utf8FromText(key.second) << ": " << utf8FromText(sentence);
    }
}

TEST_F(DocumentFiles, MakesNoListOfNobodyButTheEmptyForm) {
    installation.write({{{}, u"", u""}});
    for (const auto& key : {std::pair{u"ZeugnisseAnlagen.doc", u"ZeugnisseAnlagen"},
                            {u"KlListe.doc", u"Klassenliste"},
                            {u"StListe.doc", u"Strichliste"}})
        EXPECT_EQ(failureOf([&] { open(key.first, key.second); }), "invalid-call");
    EXPECT_EQ(open(u"Leerformular.doc", u"Leerformular").Name, u"3aLeerformular32.doc");
}

TEST_F(DocumentFiles, TellsByTheContentWhetherADocumentWasEdited) {
    const auto write = [&] { return open(u"ZeugnisseSchreiben.doc", u"ZeugnisseSchreiben"); };
    const Dokumentdateien files = write();
    // A copied folder has other times, in any order.
    for (const int minutes : {-1, 1}) {
        fs::last_write_time(files.Doc,
                            fs::last_write_time(files.Pdf) + std::chrono::minutes(minutes));
        EXPECT_FALSE(IstBearbeitet(files)) << minutes;
    }
    installation.edit("3aZeugnisse32.doc");
    const Text edited = installation.read(u"3aZeugnisse32.doc");
    for (const int minutes : {-1, 1}) {
        fs::last_write_time(files.Doc,
                            fs::last_write_time(files.Pdf) + std::chrono::minutes(minutes));
        EXPECT_TRUE(IstBearbeitet(files)) << minutes;
    }
    const Text copy = write().Aufgehoben;
    EXPECT_EQ(installation.read(copy), edited);
    EXPECT_EQ(write().Aufgehoben, u"");
}

TEST_F(DocumentFiles, TextsInTheTemporaryFolderGoAtTheNextStart) {
    qputenv("TMPDIR", installation.path().c_str());
    const auto left = [&](const char* name, bool edited) {
        fs::path folder = installation.path() / name;
        fs::create_directories(folder / "profil");
        AnzeigetextSchreiben(folder, u"Azra liest.");
        std::ofstream(folder / "offen").flush();
        if (edited)
            installation.edit((std::string(name) + "/Anzeigetext.doc").c_str());
        return folder;
    };
    const fs::path killed = left("zeugnisdokumente-kalt", false);
    const fs::path edited = left("zeugnisdokumente-neu", true);
    const fs::path old = left("zeugnisdokumente-alt", true);
    const fs::path other = left("anderes", false);
    fs::last_write_time(old / "Anzeigetext.doc",
                        fs::file_time_type::clock::now() - std::chrono::hours(24 * 8));
    fs::path own;
    {
        const TemporaryFolder open;
        own = open.path();
        RemoveLeftFolders();
        EXPECT_TRUE(fs::exists(own));
    }
    qunsetenv("TMPDIR");
    EXPECT_FALSE(fs::exists(own));
    EXPECT_FALSE(fs::exists(killed));
    EXPECT_FALSE(fs::exists(old));
    EXPECT_TRUE(fs::exists(edited)) << "a word processor has saved it";
    EXPECT_TRUE(fs::exists(other));
}

TEST_F(DocumentFiles, ShowsAnEditedDocumentAfreshOrSaysThatItCannot) {
    const Dokumentdateien files = open(u"3aZeugnisse32.doc");
    installation.edit("3aZeugnisse32.doc");
    const Anzeige former = AnzeigeFinden(files, cannotConvert);
    EXPECT_EQ(former.Pdf, files.Pdf);
    EXPECT_NE(former.Hinweis.find(u"Stand davor"), Text::npos);
    const Anzeige fresh = AnzeigeFinden(files, [&](const fs::path& doc) {
        EXPECT_EQ(doc, files.Doc);
        return std::optional(fs::path("neu.pdf"));
    });
    EXPECT_EQ(fresh.Pdf, "neu.pdf");

    std::stop_source stop;
    stop.request_stop();
    EXPECT_NE(AnzeigeFinden(files, cannotConvert, stop.get_token()).Hinweis.find(u"abgebrochen"),
              Text::npos);

    fs::remove(files.Pdf);
    EXPECT_EQ(failureOf([&] { AnzeigeFinden(files, cannotConvert); }), "file-not-found");
}

} // namespace
} // namespace zeugnis::dokumente
