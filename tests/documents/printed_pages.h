#pragma once

#include <QStringList>
#include <filesystem>
#include <string>
#include <vector>

/// What stands on the pages of a PDF file, read with pdftotext.
namespace zeugnis::test {

/// One text per page, its lines in the order of the file.
QStringList pageTexts(const std::filesystem::path& pdf);

/// The first line in which two pages differ, with what stands there in either; empty if none does.
std::string firstDifference(const QString& theirs, const QString& ours);

/// The report of one child: its pages without their footers.
struct PrintedReport {
    QStringList pages;
    [[nodiscard]] QStringList words() const;
};

/// A report begins where the footer says "Seite 1".
std::vector<PrintedReport> reportsIn(const std::filesystem::path& pdf);

} // namespace zeugnis::test
