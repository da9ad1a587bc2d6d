#pragma once

#include <QColor>

class QApplication;
class QString;

/// What both programs with windows look like and speak, in one place.
namespace zeugnis::look {

inline const QColor Background(0xF6, 0xF4, 0xEF);
inline const QColor Surface(0xFF, 0xFF, 0xFF);
inline const QColor Outline(0xC9, 0xC3, 0xB6);
inline const QColor OutlineStrong(0x8C, 0x86, 0x7A);
inline const QColor Ink(0x24, 0x2B, 0x33);
inline const QColor InkFaint(0x5F, 0x65, 0x6C);
inline const QColor InkResting(0x3F, 0x46, 0x4E); ///< of what rests and has to be read all the same
inline const QColor InkDisabled(0x9A, 0x97, 0x90);
inline const QColor Danger(0xB3, 0x26, 0x1E); ///< outline and inscription of what deletes
inline const QColor Accent(0x1F, 0x6F, 0x6B);

/// Style, palette, font, icon and German standard texts for the whole application. `ownStyleSheet`
/// comes behind the rules that both programs share.
void apply(QApplication& application, const QString& ownStyleSheet);

} // namespace zeugnis::look
