#include "desktop/word_width.h"

#include <QFontMetrics>
#include <QRegularExpression>
#include <QString>

#include <algorithm>

namespace zeugnis {

int widestWord(const QFontMetrics& metrics, const QString& text) {
    int widest = 0;
    static const QRegularExpression breaks(QStringLiteral("\\s|(?<=-)"));
    for (const QString& word : text.split(breaks, Qt::SkipEmptyParts))
        widest = std::max(widest, metrics.horizontalAdvance(word) + 1);
    return widest;
}

} // namespace zeugnis
