#include "desktop/text_line_ends.h"

#include "toolkit/qt_text.h"

namespace zeugnis {
namespace {

size_t unitLength(TextView text, size_t at) { return text.substr(at, 2) == Zeilenende ? 2 : 1; }

} // namespace

QString documentText(TextView boxText) {
    QString text;
    for (size_t at = 0; at < boxText.size(); at += unitLength(boxText, at)) {
        const char16_t unit = boxText[at];
        text += unit == u'\r' ? QChar(u'\n') : QChar(unit);
    }
    return text;
}

size_t boxPosition(TextView boxText, int documentPosition) {
    size_t at = 0;
    for (int i = 0; i < documentPosition && at < boxText.size(); ++i)
        at += unitLength(boxText, at);
    return at;
}

int documentPosition(TextView boxText, size_t boxPosition) {
    int position = 0;
    for (size_t at = 0; at < boxPosition && at < boxText.size(); at += unitLength(boxText, at))
        ++position;
    return position;
}

} // namespace zeugnis
