#pragma once

#include "controls/control.h"
#include "toolkit/look.h"

#include <QFont>

class QApplication;
class QPainter;
class QRect;

/// How the windows of the screens look.
namespace zeugnis::theme {

using namespace look;

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
