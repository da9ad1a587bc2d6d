#include "documents/pdf/page_painter.h"

#include <QPoint>

namespace zeugnis::dokumente {
namespace {

void drawFooter(QPainter& painter, const page::Form& form, const LaidSection& section, int page) {
    const Style& style = styleOf(StyleId::Fusszeile);
    const QPoint corner(page::Left, form.height - page::FooterToEdge - style.lineHeight);
    const Text numbers =
        u"Seite " + textFromNumber(page + 1) + u" von " + textFromNumber(section.pages);
    drawLine(painter, style, Alignment::Left, section.footer, corner, form.textWidth());
    drawLine(painter, style, Alignment::Right, numbers, corner, form.textWidth());
}

} // namespace

void drawPage(QPainter& painter, const page::Form& form, const LaidSection& section, int page) {
    bool isFirst = true;
    for (size_t i = 0; i < section.strips.size(); ++i) {
        const LaidStrip& strip = section.strips[i];
        const Place& place = section.places[i];
        if (place.page != page)
            continue;
        if (isFirst && strip.paintHead)
            strip.paintHead(painter, QPoint(page::Left, page::Top));
        strip.paint(painter, QPoint(page::Left, page::Top + place.y));
        isFirst = false;
    }
    drawFooter(painter, form, section, page);
}

} // namespace zeugnis::dokumente
