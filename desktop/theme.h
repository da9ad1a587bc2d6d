#pragma once

#include "controls/control.h"

#include <QColor>
#include <QFont>

class QApplication;
class QPainter;
class QRect;

/// How the program looks, in one place.
namespace zeugnis::theme {

inline const QColor Background(0xF6, 0xF4, 0xEF);
inline const QColor Surface(0xFF, 0xFF, 0xFF);
inline const QColor Outline(0xC9, 0xC3, 0xB6);
inline const QColor OutlineStrong(0x8C, 0x86, 0x7A);
inline const QColor Ink(0x24, 0x2B, 0x33);
inline const QColor InkFaint(0x5F, 0x65, 0x6C);
inline const QColor InkDisabled(0x9A, 0x97, 0x90);
inline const QColor Accent(0x1F, 0x6F, 0x6B);
inline constexpr int Radius = 6;

/// Style, palette and font for the whole application.
void apply(QApplication& application);

/// The application's font, larger or smaller by a factor.
QFont scaledFont(double factor, QFont::Weight weight = QFont::Normal);

/// A control's colour; the window's own colour becomes `plain`.
QColor fromFarbwert(Farbwert value, const QColor& plain);

/// Black or white, whichever can be read on `background`.
QColor inkOn(const QColor& background);

/// A rounded surface with an outline, and a ring around it where the focus is.
void paintSurface(QPainter& painter, const QRect& area, const QColor& fill, const QColor& outline,
                  bool focused);

} // namespace zeugnis::theme
