#include "documents/pdf/pdf_writer.h"

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

void drawFooter(QPainter& painter, const page::Form& form, const LaidSection& section,
                int pageNumber) {
    const Style& style = styleOf(StyleId::Fusszeile);
    const QPoint corner(page::Left, form.height - page::FooterToEdge - style.lineHeight);
    const Text numbers =
        u"Seite " + textFromNumber(pageNumber) + u" von " + textFromNumber(section.pages);
    drawLine(painter, style, Alignment::Left, section.footer, corner, form.textWidth());
    drawLine(painter, style, Alignment::Right, numbers, corner, form.textWidth());
}

class SectionPainter {
  public:
    SectionPainter(QPdfWriter& writer, QPainter& painter, const page::Form& form,
                   std::vector<Bookmark>& bookmarks)
        : m_writer(writer), m_painter(painter), m_form(form), m_bookmarks(bookmarks) {}

    void draw(const LaidSection& section) {
        int current = 0;
        beginPage();
        for (size_t i = 0; i < section.strips.size(); ++i) {
            const LaidStrip& strip = section.strips[i];
            const Place& place = section.places[i];
            for (; current < place.page; ++current) {
                drawFooter(m_painter, m_form, section, current + 1);
                beginPage();
            }
            const QPoint corner(page::Left, page::Top + place.y);
            const bool isFirst = i == 0 || section.places[i - 1].page != place.page;
            if (isFirst && strip.paintHead)
                strip.paintHead(m_painter, QPoint(page::Left, page::Top));
            strip.paint(m_painter, corner);
            if (!strip.bookmark.empty())
                m_bookmarks.push_back({.title = strip.bookmark,
                                       .page = m_page,
                                       .fromBottom = (m_form.height - corner.y()) / 20});
        }
        drawFooter(m_painter, m_form, section, current + 1);
    }

  private:
    void beginPage() {
        if (m_page >= 0)
            m_writer.newPage();
        ++m_page;
    }

    QPdfWriter& m_writer;
    QPainter& m_painter;
    const page::Form& m_form;
    std::vector<Bookmark>& m_bookmarks;
    int m_page = -1;
};

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
        SectionPainter sections(writer, painter, document.form, bookmarks);
        for (const LaidSection& section : document.sections)
            sections.draw(section);
    }
    return withAdditions(buffer.data().toStdString(), bookmarks, docChecksum);
}

} // namespace zeugnis::dokumente
