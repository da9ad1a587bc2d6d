#include "documents/pdf/layout.h"
#include "toolkit/qt_text.h"

#include <QFont>
#include <QPainter>
#include <QTextLayout>
#include <memory>

namespace zeugnis::dokumente {
namespace {

// Word sets no ligatures in this font, and German words should have none across their joints; any
// letter spacing at all switches them off. What it adds to a full line, word processors do not.
constexpr double NoLigatures = 1.0 / 64;
constexpr double SpacingOfALine = 100 * NoLigatures;

QFont fontOf(const Style& style) {
    QFont font(QStringList{qString(FontAlternative), qString(FontName)});
    font.setPixelSize(style.halfPoints * 10);
    font.setBold(style.bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setLetterSpacing(QFont::AbsoluteSpacing, style.tracking + NoLigatures);
    return font;
}

Qt::Alignment qtAlignment(Alignment alignment) {
    switch (alignment) {
    case Alignment::Left:
        return Qt::AlignLeft;
    case Alignment::Centre:
        return Qt::AlignHCenter;
    case Alignment::Right:
        return Qt::AlignRight;
    }
    return Qt::AlignLeft;
}

QColor colourOf(std::uint32_t rgb) { return QColor::fromRgb(0xFF000000U | rgb); }

QList<QTextLayout::FormatRange> formatsOf(const Paragraph& paragraph) {
    QList<QTextLayout::FormatRange> ranges;
    int start = 0;
    for (const Run& run : paragraph.runs) {
        const int length = static_cast<int>(run.text.size());
        QTextCharFormat format;
        if (run.bold)
            format.setFontWeight(QFont::Bold);
        if (run.tracking != 0) {
            format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
            format.setFontLetterSpacing(styleOf(paragraph.style).tracking + run.tracking);
        }
        if (run.bold || run.tracking != 0)
            ranges.append({start, length, format});
        start += length;
    }
    return ranges;
}

// Lines lie at y 0, so that each can be drawn wherever its strip lands.
std::shared_ptr<QTextLayout> brokenIntoLines(const Paragraph& paragraph, Twips width,
                                             double more = 0) {
    const Style& style = styleOf(paragraph.style);
    QString text = qString(textOf(paragraph));
    text.replace(u'\n', QChar::LineSeparator);
    auto layout = std::make_shared<QTextLayout>(text, fontOf(style));
    QTextOption option(qtAlignment(style.alignment));
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    layout->setTextOption(option);
    layout->setFormats(formatsOf(paragraph));
    layout->setCacheEnabled(true);

    const bool hasLabel = !paragraph.label.empty();
    const Twips restOfLines = style.leftIndent;
    Twips indent = hasLabel ? restOfLines : restOfLines - style.hanging;
    layout->beginLayout();
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLineWidth(width - indent + SpacingOfALine + more);
        line.setPosition(QPointF(indent, 0));
        indent = restOfLines;
    }
    layout->endLayout();
    return layout;
}

// Draws a rule of the paragraph; `area` is the strip without the space around it.
void drawRule(QPainter& painter, Rule rule, const QRect& area) {
    switch (rule) {
    case Rule::None:
        return;
    case Rule::Above:
        painter.fillRect(area.left(), area.top(), area.width(), RuleWidth, colourOf(RuleColour));
        return;
    case Rule::Below:
        painter.fillRect(area.left(), area.top() + area.height() - RuleWidth, area.width(),
                         RuleWidth, colourOf(RuleColour));
        return;
    case Rule::LeftOf:
        painter.fillRect(area.left(), area.top(), BarWidth, area.height(), colourOf(BarColour));
        return;
    }
}

void drawTextLine(QPainter& painter, const QTextLine& line, const Style& style, QPoint corner) {
    const double above = (style.lineHeight - line.height()) / 2;
    painter.setPen(colourOf(style.colour));
    line.draw(&painter, QPointF(corner) + QPointF(0, above));
}

bool breakAllowed(const Paragraph& paragraph, int line, int lines) {
    if (line == 0)
        return true;
    if (paragraph.keepWithNext || styleOf(paragraph.style).keepWithNext)
        return false;
    return line >= 2 && line <= lines - 2;
}

LaidStrip layLine(const Paragraph& paragraph, const std::shared_ptr<QTextLayout>& layout, int line,
                  Twips width) {
    const Style& style = styleOf(paragraph.style);
    const int lines = layout->lineCount();
    const bool isFirst = line == 0;
    const bool isLast = line == lines - 1;
    const bool ruled = (style.rule == Rule::Above && isFirst) ||
                       (style.rule == Rule::Below && isLast) || style.rule == Rule::LeftOf;
    const Twips ruleHeight = ruled && style.rule != Rule::LeftOf ? RuleWidth + RuleDistance : 0;
    const Twips textTop = style.rule == Rule::Above ? ruleHeight : 0;

    LaidStrip laid;
    laid.source = paragraph.source;
    laid.isInner = !isFirst && !isLast;
    laid.strip = {.height = style.lineHeight + ruleHeight,
                  .spaceBefore = isFirst ? style.spaceBefore : 0,
                  .spaceAfter = isLast ? style.spaceAfter : 0,
                  .mayBreakBefore = breakAllowed(paragraph, line, lines),
                  .startsPage = isFirst && paragraph.startsPage};
    const Text label = isFirst ? paragraph.label : Text();
    laid.paint = [=, height = laid.strip.height](QPainter& painter, QPoint corner) {
        if (ruled)
            drawRule(painter, style.rule, QRect(corner, QSize(width, height)));
        const QPoint textCorner = corner + QPoint(0, textTop);
        drawTextLine(painter, layout->lineAt(line), style, textCorner);
        if (!label.empty())
            drawLine(painter, style, Alignment::Left, label,
                     textCorner + QPoint(style.leftIndent - style.hanging, 0), style.hanging);
    };
    return laid;
}

} // namespace

std::vector<LaidStrip> layParagraph(const Paragraph& paragraph, Twips width) {
    const std::shared_ptr<QTextLayout> layout = brokenIntoLines(paragraph, width);
    std::vector<LaidStrip> strips;
    strips.reserve(static_cast<size_t>(layout->lineCount()));
    for (int line = 0; line < layout->lineCount(); ++line)
        strips.push_back(layLine(paragraph, layout, line, width));
    if (!strips.empty() && styleOf(paragraph.style).inOutline)
        strips.front().bookmark = textOf(paragraph);
    return strips;
}

std::vector<size_t> lineStarts(const Paragraph& paragraph, Twips width, double more) {
    const std::shared_ptr<QTextLayout> layout = brokenIntoLines(paragraph, width, more);
    std::vector<size_t> starts;
    starts.reserve(static_cast<size_t>(layout->lineCount()));
    for (int line = 0; line < layout->lineCount(); ++line)
        starts.push_back(static_cast<size_t>(layout->lineAt(line).textStart()));
    return starts;
}

void drawLine(QPainter& painter, const Style& style, Alignment alignment, TextView text,
              QPoint corner, Twips width) {
    QTextLayout layout(qString(text), fontOf(style));
    QTextOption option(qtAlignment(alignment));
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid())
        line.setLineWidth(width);
    layout.endLayout();
    if (line.isValid())
        drawTextLine(painter, line, style, corner);
}

} // namespace zeugnis::dokumente
