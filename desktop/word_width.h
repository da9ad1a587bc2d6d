#pragma once

class QFontMetrics;
class QString;

namespace zeugnis {

/// The width of the longest word in pixels; what is narrower would cut it in two.
int widestWord(const QFontMetrics& metrics, const QString& text);

} // namespace zeugnis
