#include "documents/pdf/pdf_writer.h"

#include "documents/pdf/page_painter.h"
#include "documents/pdf/pdf_outline.h"
#include "toolkit/qt_text.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

namespace zeugnis::dokumente {
namespace {

constexpr int TwipsPerInch = 1440;

void setUpPage(QPdfWriter& writer, const LaidDocument& document) {
    writer.setPdfVersion(QPagedPaintDevice::PdfVersion_A1b);
    writer.setTitle(qString(document.title));
    writer.setCreator(QStringLiteral("Zeugnisprogramm"));
    writer.setResolution(TwipsPerInch);
    writer.setPageLayout(QPageLayout(
        QPageSize(QPageSize::A4),
        document.form.width > document.form.height ? QPageLayout::Landscape : QPageLayout::Portrait,
        QMarginsF()));
}

void drawSection(QPdfWriter& writer, QPainter& painter, const page::Form& form,
                 const LaidSection& section, int firstPage, std::vector<Bookmark>& bookmarks) {
    for (int page = 0; page < section.pages; ++page) {
        if (firstPage + page > 0)
            writer.newPage();
        drawPage(painter, form, section, page);
    }
    for (size_t i = 0; i < section.strips.size(); ++i)
        if (const LaidStrip& strip = section.strips[i]; !strip.bookmark.empty())
            bookmarks.push_back(
                {.title = strip.bookmark,
                 .page = firstPage + section.places[i].page,
                 .fromBottom = (form.height - page::Top - section.places[i].y) / 20});
}

} // namespace

std::vector<int> LaidDocument::pagesPerSection() const {
    std::vector<int> pages;
    for (const LaidSection& section : sections)
        pages.push_back(section.pages);
    return pages;
}

LaidDocument layOut(const Document& document) {
    LaidDocument laid{.title = document.title, .sections = {}, .form = document.form()};
    for (const Section& section : document.sections) {
        LaidSection one{.footer = section.footer,
                        .strips = layBlocks(section.blocks, laid.form.textWidth()),
                        .places = {}};
        one.places = paginate(one.strips, laid.form.textHeight());
        one.pages = one.places.empty() ? 1 : one.places.back().page + 1;
        laid.sections.push_back(std::move(one));
    }
    return laid;
}

std::string pdfFromLayout(const LaidDocument& document, std::string_view docChecksum) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    std::vector<Bookmark> bookmarks;
    {
        QPdfWriter writer(&buffer);
        setUpPage(writer, document);
        QPainter painter(&writer);
        int pages = 0;
        for (const LaidSection& section : document.sections) {
            drawSection(writer, painter, document.form, section, pages, bookmarks);
            pages += section.pages;
        }
    }
    return withAdditions(buffer.data().toStdString(), bookmarks, docChecksum);
}

} // namespace zeugnis::dokumente
