#include "documents/model/document.h"

#include <numeric>

namespace zeugnis::dokumente {

Text textOf(const Paragraph& paragraph) {
    Text text;
    for (const Run& run : paragraph.runs)
        text += run.text;
    return text;
}

std::vector<Twips> columnEdges(const Table& table, Twips width) {
    const int whole = std::accumulate(table.columns.begin(), table.columns.end(), 0);
    std::vector<Twips> edges;
    int sum = 0;
    for (const int column : table.columns) {
        sum += column;
        edges.push_back(width * sum / whole);
    }
    return edges;
}

Text printable(TextView text) {
    Text clean;
    for (size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (unit == u'\r' || unit == u'\n') {
            clean += u'\n';
            if (unit == u'\r' && text.substr(i + 1, 1) == u"\n")
                ++i;
        } else if (unit == u'\t') {
            clean += u' ';
        } else if (unit >= u' ' && (unit < 0x7F || unit > 0x9F)) {
            clean += unit;
        }
    }
    const size_t first = clean.find_first_not_of(u" \n");
    if (first == Text::npos)
        return {};
    return clean.substr(first, clean.find_last_not_of(u" \n") - first + 1);
}

} // namespace zeugnis::dokumente
