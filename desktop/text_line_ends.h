#pragma once

#include "platform/text.h"

#include <QString>

namespace zeugnis {

/// A text box's text has CR LF for a line end, a Qt document one character. Lone CR and LF, as a
/// file may hold them, are one character on both sides.
QString documentText(TextView boxText);

/// The text for a box of one line: line ends become blanks, those around it go.
QString inOneLine(QString text);

/// The place in the box's text that a place in its document stands for, and the other way round.
size_t boxPosition(TextView boxText, int documentPosition);
int documentPosition(TextView boxText, size_t boxPosition);

} // namespace zeugnis
