#pragma once

#include "toolkit/look.h"

class QApplication;

/// How the window looks, in one place.
namespace zeugnis::dokumente::theme {

inline const QColor Desk(0xE6, 0xE2, 0xDA); ///< what the pages lie on
inline const QColor PageEdge = look::Outline;

/// Style, palette, font and German standard texts for the whole application.
void apply(QApplication& application);

} // namespace zeugnis::dokumente::theme
