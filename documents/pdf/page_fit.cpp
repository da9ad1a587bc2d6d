#include "documents/pdf/page_fit.h"

#include "documents/pdf/layout.h"

#include <algorithm>

namespace zeugnis::dokumente {
namespace {

// What word processors reckon otherwise in a line: their roundings, and the ligatures of
// LibreOffice.
constexpr double Doubt = 12.0;
constexpr size_t TightenedLetters = 32; // by a twip each: more than the doubt, and not to be seen

constexpr size_t KeptLines = 3;
constexpr size_t NotParted = 6; // so many lines or fewer stay together

// Divides a run so that one begins at this place.
void beginRunAt(std::vector<Run>& runs, size_t place) {
    for (auto run = runs.begin(); run != runs.end(); place -= run->text.size(), ++run) {
        if (place == 0)
            return;
        if (place < run->text.size()) {
            Run rest = *run;
            rest.text.erase(0, place);
            run->text.erase(place);
            runs.insert(run + 1, std::move(rest));
            return;
        }
    }
}

void tighten(Paragraph& paragraph, size_t from, size_t to) {
    beginRunAt(paragraph.runs, from);
    beginRunAt(paragraph.runs, to);
    size_t start = 0;
    for (Run& run : paragraph.runs) {
        if (start >= from && start < to)
            run.tracking = -1;
        start += run.text.size();
    }
}

// A word that ends at the very edge stays on the line in one program and not in the other. With
// the letters in front of its end a trifle closer it stays in all of them.
void makeLinesSure(Paragraph& paragraph, Twips width) {
    const Text text = textOf(paragraph);
    for (size_t tries = text.size(); tries > 0; --tries) {
        const std::vector<size_t> narrow = lineStarts(paragraph, width, -Doubt);
        const std::vector<size_t> wide = lineStarts(paragraph, width, Doubt);
        const auto differ = std::mismatch(narrow.begin(), narrow.end(), wide.begin(), wide.end());
        if (differ.first == narrow.end())
            return;
        const size_t line = differ.first == narrow.begin() ? 0 : *(differ.first - 1);
        const size_t end = std::min(text.find_first_of(u" \n", *differ.first), text.size());
        tighten(paragraph, std::max(line, end - std::min(end, TightenedLetters)), end);
    }
}

void makeLinesSure(Table& table, Twips width) {
    const std::vector<Twips> edges = columnEdges(table, width);
    const Twips padding = table.grid ? 2 * CellPadding : 0;
    for (Row& row : table.rows)
        for (size_t column = 0; column < row.size(); ++column)
            for (Paragraph& paragraph : row[column].paragraphs)
                makeLinesSure(paragraph,
                              edges[column] - (column > 0 ? edges[column - 1] : 0) - padding);
}

void makeLinesSure(std::vector<Block>& blocks, Twips width) {
    for (Block& block : blocks) {
        if (auto* paragraph = std::get_if<Paragraph>(&block))
            makeLinesSure(*paragraph, width);
        else if (auto* table = std::get_if<Table>(&block))
            makeLinesSure(*table, width);
    }
}

// Takes what stands from a place on out of the paragraph.
Paragraph cutOff(Paragraph& paragraph, size_t from) {
    Paragraph rest = paragraph;
    size_t start = 0;
    for (size_t i = 0; i < paragraph.runs.size(); ++i) {
        Text& text = paragraph.runs[i].text;
        const size_t cut = from > start ? std::min(from - start, text.size()) : 0;
        start += text.size();
        rest.runs[i].text.erase(0, cut);
        text.erase(cut);
    }
    Text& last = paragraph.runs.back().text;
    last.erase(last.find_last_not_of(u" \n") + 1);
    rest.label.clear();
    rest.startsPage = false;
    return rest;
}

std::vector<Block> withKeptEnd(Paragraph paragraph, Twips width) {
    paragraph.keepEndWithNext = false;
    const std::vector<size_t> lines = lineStarts(paragraph, width);
    if (lines.size() <= NotParted) {
        paragraph.keepWithNext = true;
        return {std::move(paragraph)};
    }
    Paragraph end = cutOff(paragraph, lines[lines.size() - KeptLines]);
    paragraph.style = StyleId::BereichstextAnfang;
    end.keepWithNext = true;
    return {std::move(paragraph), std::move(end)};
}

std::vector<Block> withKeptEnds(std::vector<Block> blocks, Twips width) {
    std::vector<Block> fitted;
    for (Block& block : blocks) {
        auto* paragraph = std::get_if<Paragraph>(&block);
        if (paragraph == nullptr || !paragraph->keepEndWithNext) {
            fitted.push_back(std::move(block));
            continue;
        }
        for (Block& part : withKeptEnd(std::move(*paragraph), width))
            fitted.push_back(std::move(part));
    }
    return fitted;
}

Table* tableThatFills(std::vector<Block>& blocks) {
    for (Block& block : blocks)
        if (auto* table = std::get_if<Table>(&block); table != nullptr && table->fillsPage)
            return table;
    return nullptr;
}

void fillPage(std::vector<Block>& blocks, const page::Form& form) {
    Table* table = tableThatFills(blocks);
    if (table == nullptr || table->rows.empty())
        return;
    table->fillsPage = false;
    const std::vector<LaidStrip> strips = layBlocks(blocks, form.textWidth());
    const Twips bottom = paginate(strips, form.textHeight()).back().y + strips.back().strip.height;
    const Twips row = layTable(*table, form.textWidth()).back().strip.height;
    const Row last = table->rows.back();
    const int more = std::max(0, form.textHeight() - bottom) / row;
    table->rows.insert(table->rows.end(), static_cast<size_t>(more), last);
}

} // namespace

int linesTooMany(const LaidSection& section, Twips pageHeight, int pages) {
    std::vector<LaidStrip> strips = section.strips;
    const auto last = [&](bool inner) {
        const auto from = std::find_if(strips.rbegin(), strips.rend(), [&](const LaidStrip& one) {
            return one.source != Paragraph::NoSource && (one.isInner || !inner);
        });
        return from == strips.rend() ? strips.end() : from.base() - 1;
    };
    int lines = 0;
    while (!strips.empty() && paginate(strips, pageHeight).back().page >= pages) {
        // Without an inner line a paragraph keeps the space around it.
        auto line = last(true);
        if (line == strips.end() && (line = last(false)) == strips.end())
            break;
        strips.erase(line);
        ++lines;
    }
    return lines;
}

Document fittedToPages(Document document) {
    for (Section& section : document.sections) {
        makeLinesSure(section.blocks, document.form().textWidth());
        section.blocks = withKeptEnds(std::move(section.blocks), document.form().textWidth());
        fillPage(section.blocks, document.form());
    }
    return document;
}

} // namespace zeugnis::dokumente
