#pragma once

#include "toolkit/look.h"

class QApplication;

/// How the window looks, in one place.
namespace zeugnis::dokumente::theme {

/// What the pages lie on.
QColor desk();

/// Style, palette, font and German standard texts for the whole application.
void apply(QApplication& application);

} // namespace zeugnis::dokumente::theme
