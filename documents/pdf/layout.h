#pragma once

#include "documents/model/document.h"
#include "documents/pdf/pagination.h"

#include <QPoint>
#include <functional>

class QPainter;

/// Line breaking and drawing of the blocks. One unit of the painter is one twip.
namespace zeugnis::dokumente {

struct LaidStrip {
    Strip strip;
    /// Draws with the upper left corner at the given point.
    std::function<void(QPainter&, QPoint)> paint;
    /// What the bookmark to this place is called; empty for none.
    Text bookmark = {};
    /// Draws what is repeated above it on a new page; only where the strip asks for that.
    std::function<void(QPainter&, QPoint)> paintHead = {};
    int source = Paragraph::NoSource; ///< that of its paragraph
    /// A line in the middle of a paragraph of several.
    bool isInner = false;
};

std::vector<LaidStrip> layParagraph(const Paragraph& paragraph, Twips width);

/// Where each line of the paragraph begins, counted in characters of its text, if there is `more`
/// room in each of them.
std::vector<size_t> lineStarts(const Paragraph& paragraph, Twips width, double more = 0);

/// One strip per row.
std::vector<LaidStrip> layTable(const Table& table, Twips width);

/// In the middle of `width`.
LaidStrip layImage(const Image& image, Twips width);

/// All blocks of a section. A strip behind one that is kept with it does not allow a break.
std::vector<LaidStrip> layBlocks(const std::vector<Block>& blocks, Twips width);

/// As for strips that are not drawn.
std::vector<Place> paginate(const std::vector<LaidStrip>& laid, Twips pageHeight);

/// One line of the style, without breaking.
void drawLine(QPainter& painter, const Style& style, Alignment alignment, TextView text,
              QPoint corner, Twips width);

} // namespace zeugnis::dokumente
