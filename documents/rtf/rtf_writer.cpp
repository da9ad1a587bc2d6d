#include "documents/rtf/rtf_writer.h"

#include "documents/rtf/rtf_styles.h"
#include "documents/rtf/rtf_text.h"

namespace zeugnis::dokumente {
namespace {

std::string hexadecimal(std::string_view bytes) {
    constexpr std::string_view Digits = "0123456789abcdef";
    std::string hex;
    hex.reserve(bytes.size() * 2);
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        hex += Digits[value >> 4U];
        hex += Digits[value & 0xFU];
    }
    return hex;
}

int hundredthsOfMillimetres(Twips length) { return length * 2540 / 1440; }

std::string field(const char* instruction, int shown) {
    return std::string("{\\field{\\*\\fldinst ") + instruction + "}{\\fldrslt " +
           std::to_string(shown) + "}}";
}

std::string content(const Paragraph& paragraph) {
    std::string rtf;
    if (!paragraph.label.empty())
        rtf += rtfText(paragraph.label) + "\\tab ";
    const Twips tracking = styleOf(paragraph.style).tracking;
    for (const Run& run : paragraph.runs) {
        std::string words = run.bold ? "\\b" : "";
        if (run.tracking != 0)
            words += rtfNumber("\\expndtw", tracking + run.tracking);
        rtf += words.empty() ? rtfText(run.text) : "{" + words + " " + rtfText(run.text) + "}";
    }
    return rtf;
}

std::string opening(const Paragraph& paragraph, const char* place, bool keptRow = false) {
    const Style& style = styleOf(paragraph.style);
    std::string rtf = std::string("\\pard\\plain") + place + rtfProperties(style);
    if ((paragraph.keepWithNext || keptRow) && !style.keepWithNext)
        rtf += "\\keepn";
    if (paragraph.keepWithNext)
        rtf += "\\keep";
    if (paragraph.startsPage)
        rtf += "\\pagebb";
    return rtf + " ";
}

std::string picture(const Image& image) {
    return "{\\pict{\\*\\picprop{\\sp{\\sn wzDescription}{\\sv " + rtfText(image.description) +
           "}}}\\pngblip" + rtfNumber("\\picw", hundredthsOfMillimetres(image.width)) +
           rtfNumber("\\pich", hundredthsOfMillimetres(image.height)) +
           rtfNumber("\\picwgoal", image.width) + rtfNumber("\\pichgoal", image.height) + "\n" +
           hexadecimal(image.png) + "}";
}

std::string cellContent(const Cell& cell, bool keptRow) {
    std::string rtf;
    for (const Paragraph& paragraph : cell.paragraphs) {
        if (!rtf.empty())
            rtf += "\\par\n";
        rtf += opening(paragraph, "\\intbl", keptRow) + content(paragraph);
    }
    // The small font keeps the line no higher than the picture.
    if (cell.image)
        rtf += (rtf.empty() ? "" : "\\par\n") +
               rtfNumber("\\pard\\plain\\intbl\\qc\\sl0\\fs2\\sb", PicturePadding) +
               rtfNumber("\\sa", PicturePadding) + " " + picture(*cell.image);
    if (rtf.empty())
        rtf = keptRow ? "\\pard\\plain\\intbl\\keepn " : "\\pard\\plain\\intbl ";
    return rtf + "\\cell\n";
}

std::string cellEdge(const Table& table, Twips edge, bool isGap) {
    std::string rtf;
    if (table.grid)
        for (const char* side : {"\\clbrdrt", "\\clbrdrl", "\\clbrdrb", "\\clbrdrr"})
            rtf += side + rtfLine(RuleWidth, RuleColour);
    else if (table.ruled && !isGap)
        rtf += "\\clbrdrb" + rtfLine(RuleWidth, RuleColour);
    if (table.rowHeight > 0)
        rtf += "\\clvertalc";
    return rtf + rtfNumber("\\cellx", edge);
}

std::string rowFromTable(const Table& table, const Row& row, Twips width) {
    std::string rtf = rtfNumber("\\trowd\\trleft0\\trkeep\\trgaph", table.grid ? CellPadding : 0);
    if (table.rowHeight > 0)
        rtf += rtfNumber("\\trrh", table.rowHeight);
    if (table.headRow && &row == &table.rows.front())
        rtf += "\\trhdr";
    const bool kept = &row == &table.rows.back() ? table.keepWithNext : table.keepRows;
    int column = 0;
    for (const Twips edge : columnEdges(table, width))
        rtf += cellEdge(table, edge, column++ == table.gap);
    rtf += "\n";
    for (const Cell& cell : row)
        rtf += cellContent(cell, kept);
    return rtf + "\\row\n";
}

// What stands between the end of a block and whatever comes next; a paragraph needs an end,
// a table brings its own.
struct Piece {
    std::string rtf;
    bool needsEnd;
};

struct BlockToRtf {
    Twips width;

    Piece operator()(const Paragraph& paragraph) const {
        return {opening(paragraph, "") + content(paragraph), true};
    }

    Piece operator()(const Table& table) const {
        std::string rtf;
        for (const Row& row : table.rows)
            rtf += rowFromTable(table, row, width);
        return {rtf, false};
    }

    // With an exact line height a picture would be cut off.
    Piece operator()(const Image& image) const {
        return {"\\pard\\plain" + rtfProperties(styleOf(StyleId::Bildzeile)) + "\\sl0 " +
                    picture(image),
                true};
    }
};

std::string footer(const Section& section, int pages, Twips width) {
    return "{\\footer\\pard\\plain" + rtfProperties(styleOf(StyleId::Fusszeile)) +
           rtfNumber("\\tqr\\tx", width) + " " + rtfText(section.footer) + "\\tab Seite " +
           field("PAGE", 1) + " von " + field("SECTIONPAGES", pages) + "\\par}\n";
}

// The end of a section is also the end of its last paragraph. Behind a table there has to be one;
// it is as small as can be, so that it does not fill a page of its own.
std::string sectionContent(const Section& section, const char* end, Twips width) {
    constexpr const char* SmallParagraph = "\\pard\\plain\\fs2\\sl-20\\slmult0 ";
    std::string rtf;
    bool needsEnd = false;
    for (const Block& block : section.blocks) {
        if (needsEnd)
            rtf += "\\par\n";
        Piece piece = std::visit(BlockToRtf{width}, block);
        rtf += piece.rtf;
        needsEnd = piece.needsEnd;
    }
    return rtf + (needsEnd ? "" : SmallParagraph) + end + "\n";
}

std::string pageSetup(const page::Form& form) {
    return rtfNumber("\\paperw", form.width) + rtfNumber("\\paperh", form.height) +
           rtfNumber("\\margl", page::Left) + rtfNumber("\\margr", page::Right) +
           rtfNumber("\\margt", page::Top) + rtfNumber("\\margb", page::Bottom) +
           (form.width > form.height ? "\\landscape" : "") + "\\widowctrl\\hyphauto0\\viewkind1\n";
}

std::string sectionSetup(const page::Form& form) {
    return rtfNumber("\\sectd\\sbkpage\\pgndec\\pgnrestart\\pgnstarts1\\footery",
                     page::FooterToEdge) +
           (form.width > form.height ? "\\lndscpsxn" : "") + rtfNumber("\\pgwsxn", form.width) +
           rtfNumber("\\pghsxn", form.height) + rtfNumber("\\marglsxn", page::Left) +
           rtfNumber("\\margrsxn", page::Right) + rtfNumber("\\margtsxn", page::Top) +
           rtfNumber("\\margbsxn", page::Bottom) + "\n";
}

} // namespace

std::string rtfFromDocument(const Document& document, const std::vector<int>& pages) {
    std::string rtf = "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\\deflang1031\n" + rtfTables() +
                      "{\\info{\\title " + rtfText(document.title) + "}}\n" +
                      pageSetup(document.form());
    for (size_t i = 0; i < document.sections.size(); ++i) {
        const Section& section = document.sections[i];
        const bool isLast = i + 1 == document.sections.size();
        const Twips width = document.form().textWidth();
        rtf += sectionSetup(document.form()) + footer(section, pages.at(i), width) +
               sectionContent(section, isLast ? "\\par" : "\\sect", width);
    }
    return rtf + "}\n";
}

} // namespace zeugnis::dokumente
