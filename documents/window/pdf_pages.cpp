#include "documents/window/pdf_pages.h"

#include "platform/failure.h"
#include "platform/path_text.h"
#include "platform/whole_file.h"

#include <poppler-qt6.h>

namespace zeugnis::dokumente {
namespace {

std::string fileBytes(const std::filesystem::path& file) {
    return readWholeFile(Arbeitsverzeichnis(file.parent_path()), textFromPath(file.filename()));
}

std::unique_ptr<Poppler::Document> loaded(const QByteArray& bytes) {
    std::unique_ptr<Poppler::Document> document = Poppler::Document::loadFromData(bytes);
    if (!document || document->isLocked() || document->numPages() < 1)
        throw Laufzeitfehler(Fehlerart::InvalidCall,
                             u"Die PDF-Datei ist beschädigt und kann nicht gezeigt werden.");
    document->setRenderHint(Poppler::Document::Antialiasing);
    document->setRenderHint(Poppler::Document::TextAntialiasing);
    return document;
}

} // namespace

PdfPages::PdfPages(const std::filesystem::path& file)
    : m_bytes(QByteArray::fromStdString(fileBytes(file))), m_document(loaded(m_bytes)) {}

PdfPages::~PdfPages() = default;

int PdfPages::count() const { return m_document->numPages(); }

QString PdfPages::title() const { return m_document->info(QStringLiteral("Title")); }

std::vector<Inhaltszeile> PdfPages::contents() const {
    std::vector<Inhaltszeile> lines;
    for (const Poppler::OutlineItem& item : m_document->outline())
        if (const auto target = item.destination())
            lines.push_back({item.name(), {target->pageNumber() - 1, target->top()}});
    if (!lines.empty())
        return lines;
    for (int page = 0; page < count(); ++page)
        lines.push_back({QStringLiteral("Seite %1").arg(page + 1), {page, 0}});
    return lines;
}

QSizeF PdfPages::size(int page) const { return m_document->page(page)->pageSizeF(); }

QImage PdfPages::image(int page, double dotsPerInch) const {
    return m_document->page(page)->renderToImage(dotsPerInch, dotsPerInch);
}

QString PdfPages::text(int page) const { return m_document->page(page)->text(QRectF()); }

void PdfPages::print(QPainter& painter, int page, int dotsPerInch) {
    if (!m_forPrinting) {
        m_forPrinting = loaded(m_bytes);
        m_forPrinting->setRenderBackend(Poppler::Document::QPainterBackend);
    }
    m_forPrinting->page(page)->renderToPainter(&painter, dotsPerInch, dotsPerInch);
}

} // namespace zeugnis::dokumente
