#pragma once

#include "documents/model/styles.h"
#include "platform/text.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

/// A document as both writers take it. Plain values; whoever builds one may do so in any order.
namespace zeugnis::dokumente {

struct Run {
    /// "\n" is a line break inside the paragraph; other control characters do not occur.
    Text text;
    bool bold = false;
    Twips tracking = 0; ///< additional space between letters, besides that of the style
};

struct Paragraph {
    static constexpr int NoSource = -1;

    StyleId style = StyleId::Fliesstext;
    std::vector<Run> runs;
    Text label = {};           ///< number or bullet that stands in the hanging indent
    bool keepWithNext = false; ///< besides what the style says; such a paragraph is not divided
    /// Of a longer paragraph only the last lines stay with what follows; for running text.
    bool keepEndWithNext = false;
    bool startsPage = false;
    int source = NoSource; ///< for those who show where it comes from; no writer heeds it
};

struct Image {
    std::string png;
    Twips width = 0; ///< not more than that of the text
    Twips height = 0;
    Text description; ///< for those who cannot see it
};

struct Cell {
    std::vector<Paragraph> paragraphs;
    std::optional<Image> image = {}; ///< below the paragraphs
};

/// A row is never divided between pages.
using Row = std::vector<Cell>;

/// A table over the whole text width.
struct Table {
    static constexpr int NoGap = -1;

    std::vector<int> columns;  ///< widths in relation to each other
    std::vector<Row> rows;     ///< each with as many cells as there are columns
    bool grid = false;         ///< lines around all cells, and room inside them
    bool ruled = false;        ///< a line below each row, to write on
    int gap = NoGap;           ///< the column that has no such line
    bool headRow = false;      ///< the first row stands on top of every page
    Twips rowHeight = 0;       ///< at least; what stands in such a row stands in its middle
    bool keepRows = false;     ///< no page break between the rows
    bool keepWithNext = false; ///< nor behind the last one
    bool fillsPage = false;    ///< the last row comes as often as the page has room for it
};

using Block = std::variant<Paragraph, Table, Image>;

/// Begins on a new page and counts its pages from 1. The page number stands to the right of
/// `footer` at the foot of each page.
struct Section {
    Text footer;
    std::vector<Block> blocks;
};

struct Document {
    Text title;
    std::vector<Section> sections;
    bool landscape = false;

    [[nodiscard]] const page::Form& form() const {
        return landscape ? page::Landscape : page::Upright;
    }
};

inline Paragraph paragraph(StyleId style, Text text) {
    return {.style = style, .runs = {{.text = std::move(text)}}};
}

/// The texts of all runs together.
Text textOf(const Paragraph& paragraph);

/// The right edges of the columns, measured from the left edge of the table; the last one is
/// `width`.
std::vector<Twips> columnEdges(const Table& table, Twips width);

/// The text with "\n" for every line end (CR LF, CR, LF), a blank for a tab, and no other control
/// characters; blanks and line ends at both ends are gone.
Text printable(TextView text);

} // namespace zeugnis::dokumente
