#include "documents/app/document_files.h"
#include "documents/app/word_processor.h"
#include "documents/content/class_texts.h"
#include "documents/content/report_marks.h"
#include "tests/documents/composed_class.h"
#include "tests/documents/printed_pages.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace zeugnis::dokumente {
namespace {

struct Class {
    const char16_t* Name;
    const char16_t* HalfYear;
};

class ComposedClasses : public testing::TestWithParam<Class> {
  protected:
    ComposedClasses() : klasse(GetParam().Name, GetParam().HalfYear) {
        Arbeitsverzeichnis verzeichnis(klasse.path());
        files = DokumentBereitstellen(
            verzeichnis, {.Dokument = u"ZeugnisseSchreiben.doc", .Makro = u"ZeugnisseSchreiben"});
        if (const char* keep = std::getenv("KEEP_CLASSES"))
            std::filesystem::copy(klasse.path(), std::filesystem::path(keep) / files.Doc.stem(),
                                  std::filesystem::copy_options::recursive |
                                      std::filesystem::copy_options::overwrite_existing);
    }

    test::ComposedClass klasse;
    Dokumentdateien files;
};

TEST_P(ComposedClasses, FitOnTwoPagesWithAWholeEndAndFallAlikeInLibreOffice) {
    const auto reports = test::reportsIn(files.Pdf);
    ASSERT_EQ(reports.size(), static_cast<size_t>(test::ComposedClass::Children));
    for (size_t place = 0; place < reports.size(); ++place) {
        const bool byHand = !test::remarksByHand(static_cast<int>(place)).empty();
        EXPECT_LE(reports[place].pages.size(), byHand ? 3U : 2U) << "child " << place;
        const QString last = reports[place].pages.back();
        EXPECT_TRUE(last.contains(QStringLiteral("Klassenlehrkraft")));
        // Two lines of text at least stand above the signatures.
        EXPECT_GE(last.left(last.indexOf(QStringLiteral("Konferenzbeschluss"))).count(u'\n'), 2)
            << last.toStdString();
    }
    const test::TemporaryFolder folder;
    const auto converted = inPdfUmwandeln(files.Doc, folder.path());
    if (!converted)
        GTEST_SKIP() << "LibreOffice is not installed";
    const QStringList ours = test::pageTexts(files.Pdf);
    const QStringList theirs = test::pageTexts(*converted);
    ASSERT_EQ(theirs.size(), ours.size());
    for (qsizetype page = 0; page < ours.size(); ++page)
        EXPECT_EQ(test::firstDifference(theirs[page], ours[page]), "") << "page " << page + 1;
}

TEST_P(ComposedClasses, RaiseNoAlarmButForWhatIsMissingOrWrittenByHand) {
    Arbeitsverzeichnis verzeichnis(klasse.path());
    for (const Befund& befund : OffeneBefunde(verzeichnis)) {
        const bool isExpected =
            befund.Art == Befundart::Liste || befund.Art == Befundart::Noten ||
            befund.Satz.find(u"derselbe Text") != Text::npos ||
            befund.Satz.find(u"eingeschränkt, aber") != Text::npos ||
            (befund.Platz != AlleKinder && !test::remarksByHand(befund.Platz).empty());
        EXPECT_TRUE(isExpected) << utf8FromText(befund.Kind + u": " + befund.Satz);
    }
}

TEST(ConferenceSheet, ShowsWhatTheConferenceDecidesOnAndTheTableHoldsAllTexts) {
    const test::ComposedClass klasse(u"4c", u"2");
    Arbeitsverzeichnis verzeichnis(klasse.path());
    const Dokumentdateien files = DokumentBereitstellen(
        verzeichnis, {.Dokument = u"Konferenzblatt.doc", .Makro = u"Konferenzblatt"});
    const QString page = test::pageTexts(files.Pdf).front().simplified();
    for (const char* words :
         {"1 Ahlers, Mats in vollem Umfang in vollem Umfang 0 Mats wechselt in den 5. "
          "Schuljahrgang einer weiterführenden Schule.",
          "entspricht den Erwartungen besondere Anerkennung", "8 (1)"})
        EXPECT_TRUE(page.contains(QString::fromUtf8(words))) << page.toStdString();
    const test::TemporaryFolder folder;
    if (const auto converted = inPdfUmwandeln(files.Doc, folder.path())) {
        EXPECT_EQ(test::pageTexts(*converted).size(), test::pageTexts(files.Pdf).size());
    }

    const std::string csv = KlassentexteAlsCsv(ZeugnisdatenLesen(verzeichnis));
    EXPECT_TRUE(
        csv.starts_with("\xEF\xBB\xBF\"Nr.\";\"Klasse\";\"Nachname\";\"Vorname\";\"Versäumte "
                        "Unterrichtstage\";"));
    EXPECT_TRUE(csv.find("\r\n\"5\";\"4c\";\"Çelik-Žižka\";\"Šara Lou\";\"4\";\"0\";") !=
                std::string::npos);
    EXPECT_TRUE(csv.find("1. Preis beim Lesen\n2. Preis beim Lesen\n") != std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Years, ComposedClasses,
                         testing::Values(Class{u"1a", u"2"}, Class{u"2b", u"1"}, Class{u"2b", u"2"},
                                         Class{u"3a", u"1"}, Class{u"3a", u"2"}, Class{u"4c", u"1"},
                                         Class{u"4c", u"2"}),
                         [](const auto& one) {
                             return utf8FromText(Text(one.param.Name) + one.param.HalfYear);
                         });

} // namespace
} // namespace zeugnis::dokumente
