#pragma once

#include "controls/control.h"
#include "toolkit/look.h"

#include <QApplication>
#include <QFont>
#include <QPalette>

class QPainter;
class QRect;

/// How the windows of the screens look.
namespace zeugnis::theme {

using namespace look;

inline constexpr int Radius = 6;

/// Style, palette and font for the whole application, as they go with the system's palette.
void apply(QApplication& application, const QPalette& system = QApplication::palette());

/// The steps of the letters. Each step and weight that a page shows costs its start half a
/// millisecond, so there are few.
enum class Size { Small, Body, Lead, Heading, Title };

/// The application's font in one of the steps.
QFont font(Size size, QFont::Weight weight = QFont::Normal);

/// A control's colour; the window's own colour becomes `plain`.
QColor fromFarbwert(Farbwert value, const QColor& plain);

/// The ground of what wears a tint, and the border that tells the tint where grounds are the
/// system's. An invalid tint is none.
struct Tinted {
    QColor Ground;
    QColor Border; ///< invalid where the ground tells it
};
Tinted tinted(const QColor& tint, const QColor& plain);

/// Black or white, whichever can be read on `background`.
QColor inkOn(const QColor& background);

/// A rounded surface with an outline, and a ring around it where the focus is.
void paintSurface(QPainter& painter, const QRect& area, const QColor& fill, const QColor& outline,
                  bool focused);
/// The same for what wears a tint.
void paintTinted(QPainter& painter, const QRect& area, const Tinted& tinted, const QColor& outline,
                 bool focused);

} // namespace zeugnis::theme
