#include "documents/pdf/layout.h"

#include <QImage>
#include <QPainter>
#include <QPen>
#include <algorithm>

namespace zeugnis::dokumente {
namespace {

struct LaidCell {
    std::vector<LaidStrip> strips;
    std::vector<Place> places;
    Twips left = 0;
    Twips width = 0;

    [[nodiscard]] Twips height() const {
        return strips.empty() ? 0 : places.back().y + strips.back().strip.height;
    }
};

LaidStrip padded(const LaidStrip& picture) {
    LaidStrip laid;
    laid.strip.height = picture.strip.height + 2 * PicturePadding;
    laid.paint = [paint = picture.paint](QPainter& painter, QPoint corner) {
        paint(painter, corner + QPoint(0, PicturePadding));
    };
    return laid;
}

LaidCell layCell(const Cell& cell, Twips left, Twips width) {
    LaidCell laid;
    laid.left = left;
    laid.width = width;
    for (const Paragraph& paragraph : cell.paragraphs)
        for (LaidStrip& strip : layParagraph(paragraph, width))
            laid.strips.push_back(std::move(strip));
    if (cell.image)
        laid.strips.push_back(padded(layImage(*cell.image, width)));
    Twips endless = 0;
    for (const LaidStrip& one : laid.strips)
        endless += one.strip.spaceBefore + one.strip.height + one.strip.spaceAfter;
    laid.places = paginate(laid.strips, endless);
    return laid;
}

void drawRuling(QPainter& painter, const QRect& row, const std::vector<Twips>& edges, int gap) {
    Twips left = 0;
    for (size_t column = 0; column < edges.size(); ++column) {
        if (static_cast<int>(column) != gap)
            painter.fillRect(row.left() + left, row.top() + row.height() - RuleWidth,
                             edges[column] - left, RuleWidth,
                             QColor::fromRgb(0xFF000000U | RuleColour));
        left = edges[column];
    }
}

void drawGrid(QPainter& painter, const QRect& row, const std::vector<Twips>& edges) {
    painter.setPen(QPen(QColor::fromRgb(0xFF000000U | RuleColour), RuleWidth));
    painter.setBrush(Qt::NoBrush);
    Twips left = 0;
    for (const Twips right : edges) {
        painter.drawRect(row.left() + left, row.top(), right - left, row.height());
        left = right;
    }
}

LaidStrip layRow(const Table& table, const Row& row, const std::vector<Twips>& edges) {
    const Twips padding = table.grid ? CellPadding : 0;
    std::vector<LaidCell> cells;
    Twips height = table.rowHeight;
    Twips left = 0;
    for (size_t column = 0; column < row.size(); ++column) {
        const Twips width = edges.at(column) - left - 2 * padding;
        cells.push_back(layCell(row[column], left + padding, width));
        height =
            std::max(height, cells.back().height() + (table.grid || table.ruled ? RuleWidth : 0));
        left = edges[column];
    }
    LaidStrip laid;
    laid.strip.height = height;
    laid.paint = [=, cells = std::move(cells), grid = table.grid, ruled = table.ruled,
                  gap = table.gap,
                  inTheMiddle = table.rowHeight > 0](QPainter& painter, QPoint corner) {
        for (const LaidCell& cell : cells) {
            const Twips above = inTheMiddle ? (height - cell.height()) / 2 : 0;
            for (size_t i = 0; i < cell.strips.size(); ++i)
                cell.strips[i].paint(painter, corner + QPoint(cell.left, above + cell.places[i].y));
        }
        const QRect area(corner, QSize(edges.back(), height));
        if (grid)
            drawGrid(painter, area, edges);
        else if (ruled)
            drawRuling(painter, area, edges, gap);
    };
    return laid;
}

struct LayBlock {
    Twips width;

    std::vector<LaidStrip> operator()(const Paragraph& paragraph) const {
        return layParagraph(paragraph, width);
    }
    std::vector<LaidStrip> operator()(const Table& table) const { return layTable(table, width); }
    std::vector<LaidStrip> operator()(const Image& image) const { return {layImage(image, width)}; }
};

bool keepsWithNext(const Block& block) {
    if (const auto* table = std::get_if<Table>(&block))
        return table->keepWithNext;
    const auto* paragraph = std::get_if<Paragraph>(&block);
    return paragraph != nullptr &&
           (paragraph->keepWithNext || styleOf(paragraph->style).keepWithNext);
}

} // namespace

std::vector<Place> paginate(const std::vector<LaidStrip>& laid, Twips pageHeight) {
    std::vector<Strip> strips;
    strips.reserve(laid.size());
    for (const LaidStrip& one : laid)
        strips.push_back(one.strip);
    return paginate(strips, pageHeight);
}

std::vector<LaidStrip> layTable(const Table& table, Twips width) {
    const std::vector<Twips> edges = columnEdges(table, width);
    std::vector<LaidStrip> strips;
    for (const Row& row : table.rows) {
        strips.push_back(layRow(table, row, edges));
        strips.back().strip.mayBreakBefore = !table.keepRows || strips.size() == 1;
        if (table.headRow && strips.size() > 1) {
            strips.back().strip.headAbove = strips.front().strip.height;
            strips.back().paintHead = strips.front().paint;
        }
    }
    if (table.headRow && strips.size() > 1)
        strips[1].strip.mayBreakBefore = false;
    return strips;
}

namespace {

// PDF/A knows no transparency.
QImage opaque(const std::string& png) {
    QImage picture = QImage::fromData(QByteArray::fromStdString(png));
    if (!picture.hasAlphaChannel())
        return picture;
    QImage onWhite(picture.size(), QImage::Format_RGB32);
    onWhite.fill(Qt::white);
    QPainter(&onWhite).drawImage(0, 0, picture);
    return onWhite;
}

} // namespace

LaidStrip layImage(const Image& image, Twips width) {
    const Style& style = styleOf(StyleId::Bildzeile);
    const QSize size(image.width, image.height);
    LaidStrip laid;
    laid.strip = {
        .height = size.height(), .spaceBefore = style.spaceBefore, .spaceAfter = style.spaceAfter};
    laid.paint = [picture = opaque(image.png), size,
                  left = (width - size.width()) / 2](QPainter& painter, QPoint corner) {
        painter.drawImage(QRect(corner + QPoint(left, 0), size), picture);
    };
    return laid;
}

std::vector<LaidStrip> layBlocks(const std::vector<Block>& blocks, Twips width) {
    std::vector<LaidStrip> all;
    bool kept = false;
    for (const Block& block : blocks) {
        std::vector<LaidStrip> strips = std::visit(LayBlock{width}, block);
        if (kept && !strips.empty())
            strips.front().strip.mayBreakBefore = false;
        kept = keepsWithNext(block);
        std::move(strips.begin(), strips.end(), std::back_inserter(all));
    }
    return all;
}

} // namespace zeugnis::dokumente
