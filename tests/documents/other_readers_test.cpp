#include "documents/app/document_files.h"
#include "documents/app/word_processor.h"
#include "documents/content/help_markup.h"
#include "platform/whole_file.h"
#include "tests/documents/printed_pages.h"
#include "tests/documents/report_installation.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTextDocumentFragment>

namespace zeugnis::dokumente {
namespace {

const Schueler Zoe =
    test::schueler(u"Zoé Šara", u"O'Neil-Weißgräber", u"01.01.2018", u"Groß Köris");

// A program that turns the .doc into text, and what of its output is none of the document.
struct Reader {
    const char* Program;
    std::vector<const char*> Arguments; ///< "%1" is the .doc, "%2" a folder
    const char* Result;                 ///< a file in that folder; empty for the standard output
};

const std::vector<Reader>& readers() {
    static const std::vector<Reader> All = {
        {"abiword", {"--to=txt", "--to-name=%2/klasse.txt", "%1"}, "klasse.txt"},
        {"unrtf", {"--html", "--nopict", "%1"}, ""},
        {"pandoc", {"--from=rtf", "--to=plain", "--wrap=none", "%1"}, ""},
    };
    return All;
}

QString outputOf(const Reader& reader, const std::filesystem::path& doc,
                 const std::filesystem::path& folder) {
    QStringList arguments;
    for (const char* argument : reader.Arguments)
        arguments += QString::fromLatin1(argument)
                         .replace(QStringLiteral("%1"), QString::fromStdString(doc.string()))
                         .replace(QStringLiteral("%2"), QString::fromStdString(folder.string()));
    QProcess process;
    process.start(QString::fromLatin1(reader.Program), arguments);
    EXPECT_TRUE(process.waitForFinished()) << reader.Program;
    QByteArray bytes = process.readAllStandardOutput();
    if (*reader.Result != '\0') {
        QFile file(QString::fromStdString((folder / reader.Result).string()));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << reader.Program;
        bytes = file.readAll();
    }
    return QString::fromUtf8(bytes);
}

// Only the words, without markup and drawn lines.
QStringList wordsOf(const QString& output) {
    static const QRegularExpression Word(
        QStringLiteral("[\\w.,:;!?„“’'/()\\\\{}-]*\\w[\\w.,:;!?„“’'/()"
                       "\\\\{}-]*"),
        QRegularExpression::UseUnicodePropertiesOption);
    const QString text = output.contains(QStringLiteral("<html"))
                             ? QTextDocumentFragment::fromHtml(output).toPlainText()
                             : output;
    QStringList words;
    for (auto match = Word.globalMatch(text); match.hasNext();)
        words += match.next().captured();
    return words;
}

// Foot lines may come or not, and some readers show words of their own for a page number.
void expectSameWords(QStringList ours, QStringList theirs, const char* program) {
    for (const QString& word : std::as_const(ours))
        EXPECT_TRUE(theirs.removeOne(word)) << program << " misses " << word.toStdString();
    static const QStringList Footer =
        wordsOf(QStringLiteral("Seite von 1 2 PAGE SECTIONPAGES Zoé Šara O'Neil-Weißgräber, Klasse "
                               "3a"));
    theirs.removeIf([](const QString& word) { return Footer.contains(word); });
    EXPECT_EQ(theirs.join(u' ').toStdString(), "") << program;
}

TEST(OtherReaders, FindEveryWordOfThePagesInTheDoc) {
    test::ReportInstallation installation;
    installation.write({{Zoe,
                         u"Zoé sagt: 'Schön!' – und \\lacht {laut}.\r\nÖfter übt sie groß.",
                         test::saetze(3),
                         {u"Sie nahm teil.", u"Ärger? Nie, Ýngvar.", u"Žofie rückt auf."}}});
    Arbeitsverzeichnis verzeichnis(installation.path());
    const Dokumentdateien files = DokumentBereitstellen(
        verzeichnis, {.Dokument = u"ZeugnisseSchreiben.doc", .Makro = u"ZeugnisseSchreiben"});
    const QStringList ours = wordsOf(test::reportsIn(files.Pdf).at(0).words().join(u' '));
    const test::TemporaryFolder folder;
    const std::filesystem::path doc = folder.path() / "klasse.doc";
    std::filesystem::copy_file(files.Doc, doc);
    if (const auto converted = inPdfUmwandeln(doc, folder.path())) {
        EXPECT_EQ(wordsOf(test::reportsIn(*converted).at(0).words().join(u' ')), ours);
    }
    for (const Reader& reader : readers())
        if (!QStandardPaths::findExecutable(QString::fromLatin1(reader.Program)).isEmpty())
            expectSameWords(ours, wordsOf(outputOf(reader, doc, folder.path())), reader.Program);
}

// The validator knows all that PDF/A-1b asks for: fonts, colours, metadata, no transparency.
TEST(OtherReaders, FindTheFilesFitForTheArchive) {
    if (!std::filesystem::exists("/usr/share/java/preflight.jar"))
        GTEST_SKIP() << "the validator is not there: tools/install-packages test";
    test::ReportInstallation installation;
    installation.write({{Zoe, u"Zoé sagt: 'Schön!'", test::saetze(40), {u"Ýngvar.", u"ﬁ ½ €"}}});
    // A picture with parts that can be seen through.
    QImage picture(20, 20, QImage::Format_ARGB32);
    picture.fill(QColor(200, 0, 0, 100));
    picture.save(QString::fromStdString((installation.path() / "a.png").string()));
    Arbeitsverzeichnis verzeichnis(installation.path());
    DokumentSchreiben(
        verzeichnis,
        HilfeAusMarkup(u"# Hilfe\n\n[Bild: a.png | ein Bild]\n",
                       [&](const Text& name) { return readWholeFile(verzeichnis, name); }),
        u"Hilfe");
    QStringList files{QStringLiteral("Hilfe.pdf")};
    for (const auto& [document, macro] :
         {std::pair{u"ZeugnisseSchreiben.doc", u"ZeugnisseSchreiben"},
          {u"Leerformular.doc", u"Leerformular"}})
        files += QString::fromStdString(
            DokumentBereitstellen(verzeichnis, {.Dokument = document, .Makro = macro})
                .Pdf.filename()
                .string());
    QProcess validator;
    validator.setWorkingDirectory(QString::fromStdString(installation.path().string()));
    validator.start(QStringLiteral(DOCUMENTS_VALIDATOR), files);
    ASSERT_TRUE(validator.waitForFinished());
    EXPECT_EQ(validator.exitCode(), 0) << validator.readAllStandardOutput().toStdString()
                                       << validator.readAllStandardError().toStdString();
}

} // namespace
} // namespace zeugnis::dokumente
