#pragma once

#include <QColor>

class QApplication;
class QPalette;
class QString;

/// What both programs with windows look like and speak, in one place.
namespace zeugnis::look {

struct Colours {
    QColor Background{0xF6, 0xF4, 0xEF};
    QColor Surface{0xFF, 0xFF, 0xFF};
    QColor Outline{0xC9, 0xC3, 0xB6};
    QColor OutlineStrong{0x8C, 0x86, 0x7A};
    QColor Ink{0x24, 0x2B, 0x33};
    QColor InkFaint{0x5F, 0x65, 0x6C};
    QColor InkResting{0x3F, 0x46, 0x4E}; ///< of what rests and has to be read all the same
    QColor InkDisabled{0x9A, 0x97, 0x90};
    QColor Accent{0x1F, 0x6F, 0x6B};
    QColor Highlight{0x1F, 0x6F, 0x6B}; ///< ground of what is chosen in a list
    QColor HighlightedText{0xFF, 0xFF, 0xFF};
    QColor Danger{0xB3, 0x26, 0x1E}; ///< outline and inscription of what deletes
    bool HighContrast = false;       ///< they are the system's; what is tinted has a border only
};

/// Those that apply() has chosen.
const Colours& colours();

/// The fonts that lie beside the program, where a package brings its own. `apply` does it too.
void loadDeliveredFonts();

/// Style, palette, font and German standard texts for the whole application, and its icon, which
/// comes behind the first picture. `ownStyleSheet` comes behind the rules that both programs share.
/// Where `system` is a palette of high contrast or a dark one, the colours are its own.
void apply(QApplication& application, const QString& ownStyleSheet, const QPalette& system);

} // namespace zeugnis::look
