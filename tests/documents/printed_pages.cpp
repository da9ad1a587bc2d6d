#include "tests/documents/printed_pages.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>

namespace zeugnis::test {

QStringList pageTexts(const std::filesystem::path& pdf) {
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"),
                 {QStringLiteral("-raw"), QStringLiteral("-enc"), QStringLiteral("UTF-8"),
                  QString::fromStdString(pdf.string()), QStringLiteral("-")});
    EXPECT_TRUE(reader.waitForFinished()) << "pdftotext is missing";
    return QString::fromUtf8(reader.readAllStandardOutput())
        .split(QChar::FormFeed, Qt::SkipEmptyParts);
}

std::string firstDifference(const QString& theirs, const QString& ours) {
    const QStringList there = theirs.split(u'\n');
    const QStringList here = ours.split(u'\n');
    for (qsizetype line = 0; line < qMax(there.size(), here.size()); ++line)
        if (there.value(line) != here.value(line))
            return "theirs: " + there.value(line).toStdString() +
                   "\nours:   " + here.value(line).toStdString();
    return {};
}

QStringList PrintedReport::words() const { return pages.join(u'\n').simplified().split(u' '); }

std::vector<PrintedReport> reportsIn(const std::filesystem::path& pdf) {
    static const QRegularExpression Footer(QStringLiteral("^.*Seite (\\d+) von \\d+$"),
                                           QRegularExpression::MultilineOption);
    std::vector<PrintedReport> reports;
    for (QString& text : pageTexts(pdf)) {
        const auto footer = Footer.match(text);
        if (!footer.hasMatch()) {
            ADD_FAILURE() << "no footer on the page: " << text.toStdString();
            continue;
        }
        if (footer.captured(1) == QStringLiteral("1"))
            reports.emplace_back();
        reports.back().pages += text.remove(Footer);
    }
    return reports;
}

} // namespace zeugnis::test
