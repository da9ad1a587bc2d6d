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

LaidCell layCell(const Cell& cell, Twips left, Twips width) {
    LaidCell laid;
    laid.left = left;
    laid.width = width;
    for (const Paragraph& paragraph : cell.paragraphs)
        for (LaidStrip& strip : layParagraph(paragraph, width))
            laid.strips.push_back(std::move(strip));
    Twips endless = 0;
    for (const LaidStrip& one : laid.strips)
        endless += one.strip.spaceBefore + one.strip.height + one.strip.spaceAfter;
    laid.places = paginate(laid.strips, endless);
    return laid;
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

LaidStrip layRow(const Row& row, const std::vector<Twips>& edges, bool grid) {
    const Twips padding = grid ? CellPadding : 0;
    std::vector<LaidCell> cells;
    Twips height = 0;
    Twips left = 0;
    for (size_t column = 0; column < row.size(); ++column) {
        const Twips width = edges.at(column) - left - 2 * padding;
        cells.push_back(layCell(row[column], left + padding, width));
        height = std::max(height, cells.back().height());
        left = edges[column];
    }
    LaidStrip laid;
    laid.strip.height = height;
    laid.paint = [=, cells = std::move(cells)](QPainter& painter, QPoint corner) {
        for (const LaidCell& cell : cells)
            for (size_t i = 0; i < cell.strips.size(); ++i)
                cell.strips[i].paint(painter, corner + QPoint(cell.left, cell.places[i].y));
        if (grid)
            drawGrid(painter, QRect(corner, QSize(edges.back(), height)), edges);
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
    for (const Row& row : table.rows)
        strips.push_back(layRow(row, edges, table.grid));
    return strips;
}

LaidStrip layImage(const Image& image, Twips width) {
    const Style& style = styleOf(StyleId::Bildzeile);
    const QSize size(image.width, image.height);
    LaidStrip laid;
    laid.strip = {
        .height = size.height(), .spaceBefore = style.spaceBefore, .spaceAfter = style.spaceAfter};
    laid.paint = [picture = QImage::fromData(QByteArray::fromStdString(image.png)), size,
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
