#pragma once

#include <QByteArray>
#include <QImage>
#include <QSizeF>
#include <QString>
#include <filesystem>
#include <memory>
#include <vector>

class QPainter;

namespace Poppler {
class Document;
}

namespace zeugnis::dokumente {

/// A place in a document.
struct Stelle {
    int page = 0;   ///< from 0
    double top = 0; ///< from the upper edge of the page, as part of its height
};

/// An entry of the table of contents, and where it leads.
struct Inhaltszeile {
    QString title;
    Stelle place;
};

/// The pages of a PDF file. The file is read at once; what happens to it afterwards does not show.
class PdfPages {
  public:
    /// Fails as readWholeFile does, and with invalid-call if it is not a PDF file.
    explicit PdfPages(const std::filesystem::path& file);
    ~PdfPages();
    PdfPages(const PdfPages&) = delete;
    PdfPages& operator=(const PdfPages&) = delete;

    [[nodiscard]] int count() const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] const QByteArray& bytes() const { return m_bytes; }
    /// The bookmarks, or without any the pages themselves.
    [[nodiscard]] std::vector<Inhaltszeile> contents() const;

    /// In points.
    [[nodiscard]] QSizeF size(int page) const;
    [[nodiscard]] QImage image(int page, double dotsPerInch) const;
    /// What is on the page, for those who cannot see it.
    [[nodiscard]] QString text(int page) const;

    /// Draws a page at the resolution of the painter's device, as outlines.
    void print(QPainter& painter, int page, int dotsPerInch);

  private:
    QByteArray m_bytes;
    std::unique_ptr<Poppler::Document> m_document;
    std::unique_ptr<Poppler::Document> m_forPrinting;
};

} // namespace zeugnis::dokumente
