#pragma once

#include <QColor>

class QApplication;

/// How the window looks, in one place.
namespace zeugnis::dokumente::theme {

inline const QColor Desk(0xE6, 0xE2, 0xDA); ///< what the pages lie on
inline const QColor PageEdge(0xC9, 0xC3, 0xB6);
inline const QColor Accent(0x1F, 0x6F, 0x6B);

/// Style, palette, font and German standard texts for the whole application.
void apply(QApplication& application);

} // namespace zeugnis::dokumente::theme
