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

QString inOneLine(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    while (text.startsWith(u'\n'))
        text.remove(0, 1);
    while (text.endsWith(u'\n'))
        text.chop(1);
    return text.replace(u'\n', u' ');
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
