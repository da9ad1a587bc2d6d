#include "desktop/word_width.h"

#include <QFontMetrics>
#include <QString>

#include <algorithm>

namespace zeugnis {

int widestWord(const QFontMetrics& metrics, const QString& text) {
    int widest = 0;
    for (qsizetype begin = 0, end = 0; begin < text.size(); begin = end) {
        while (end < text.size() && !text[end].isSpace() && (end == begin || text[end - 1] != u'-'))
            ++end;
        if (end > begin)
            widest = std::max(widest, metrics.horizontalAdvance(text.mid(begin, end - begin)) + 1);
        else
            ++end;
    }
    return widest;
}

} // namespace zeugnis
