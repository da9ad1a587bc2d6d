#include "documents/app/document_files.h"
#include "documents/app/word_processor.h"
#include "documents/window/pdf_pages.h"
#include "tests/documents/report_installation.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

namespace zeugnis::dokumente {
namespace {

// What there is of one child: the number of its pages, and its words in reading order.
struct Report {
    int pages = 0;
    QStringList words;
};

QStringList pageTexts(const std::filesystem::path& pdf) {
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"),
                 {QStringLiteral("-raw"), QStringLiteral("-enc"), QStringLiteral("UTF-8"),
                  QString::fromStdString(pdf.string()), QStringLiteral("-")});
    EXPECT_TRUE(reader.waitForFinished()) << "pdftotext is missing";
    return QString::fromUtf8(reader.readAllStandardOutput())
        .split(QChar::FormFeed, Qt::SkipEmptyParts);
}

std::vector<Report> reportsIn(const std::filesystem::path& pdf) {
    static const QRegularExpression Footer(QStringLiteral("^.*Seite (\\d+) von \\d+$"),
                                           QRegularExpression::MultilineOption);
    std::vector<Report> reports;
    for (QString& text : pageTexts(pdf)) {
        const auto footer = Footer.match(text);
        if (!footer.hasMatch()) {
            ADD_FAILURE() << "no footer on the page: " << text.toStdString();
            continue;
        }
        if (footer.captured(1) == QStringLiteral("1"))
            reports.emplace_back();
        ++reports.back().pages;
        reports.back().words += text.remove(Footer).simplified().split(u' ');
    }
    return reports;
}

std::vector<test::Zeugniskind> children() {
    const Schueler plain = test::schueler(u"Mats", u"Ahlers", u"14.03.2018", u"Süderfehn");
    const Schueler letters =
        test::schueler(u"Zoé Šara", u"O'Neil-Weißgräber", u"01.01.2018", u"Žatec {CZ}");
    return {
        {plain, test::saetze(5), test::saetze(4)},
        {letters, u"Zoé sagt: ‚Schön!‘ – und \\lacht {laut}.\r\nÖfter.", test::saetze(3)},
        {{}, u"", u""},
        {plain, test::saetze(60), test::saetze(8)},
        {plain, test::saetze(6), test::saetze(90)},
        {plain, test::saetze(6) + u"\r\n\r\n" + test::saetze(6), test::saetze(20)},
        {plain, u"", test::saetze(24)},
    };
}

TEST(BothWriters, GiveTheSameWordsOnTheSameNumberOfPages) {
    if (QStandardPaths::findExecutable(QStringLiteral("soffice")).isEmpty())
        GTEST_SKIP() << "LibreOffice is not installed";
    test::ReportInstallation installation;
    installation.write(children());
    Arbeitsverzeichnis verzeichnis(installation.path());
    const Dokumentdateien files = DokumentBereitstellen(
        verzeichnis, {.Dokument = u"ZeugnisseSchreiben.doc", .Makro = u"ZeugnisseSchreiben"});

    const test::TemporaryFolder folder;
    const auto converted = inPdfUmwandeln(files.Doc, folder.path());
    ASSERT_TRUE(converted.has_value());
    const std::vector<Report> ours = reportsIn(files.Pdf);
    const std::vector<Report> theirs = reportsIn(*converted);
    ASSERT_EQ(ours.size(), children().size());
    ASSERT_EQ(theirs.size(), ours.size());
    std::vector<int> pages;
    for (size_t i = 0; i < ours.size(); ++i) {
        EXPECT_EQ(ours[i].words, theirs[i].words) << "child " << i + 1;
        EXPECT_EQ(ours[i].pages, theirs[i].pages) << "child " << i + 1;
        pages.push_back(ours[i].pages);
    }
    EXPECT_EQ(pages, (std::vector{2, 2, 2, 3, 3, 2, 2}));

    const auto bookmarks = PdfPages(*converted).contents();
    ASSERT_EQ(bookmarks.size(), ours.size());
    EXPECT_EQ(bookmarks[1].title, QStringLiteral("Zoé Šara O'Neil-Weißgräber"));
}

} // namespace
} // namespace zeugnis::dokumente
