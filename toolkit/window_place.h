#pragma once

#include <QMargins>
#include <QRect>

class QWidget;

/// Windows on the display, each with the frame that the desktop draws around it.
namespace zeugnis::windowplace {

/// Before a window has come up nobody knows its frame; then it is a likely one.
QMargins frameOf(const QWidget& window);

/// What is left for the window within its frame, on its display.
QRect room(const QWidget& window);

/// A size that is meant for the usual font, for the font there is.
QSize atFont(QSize size);

/// Whether a window takes more than it wishes for where a display has much room.
enum class Growth { None, WithDisplay };

/// In the middle of the display, as large as wished if there is room. The wish is meant for the
/// usual font.
void place(QWidget& window, QSize wished, Growth growth = Growth::WithDisplay);

/// Moves the window, and makes it smaller if need be, so that all of it lies on the display.
void bringOnDisplay(QWidget& window);

/// Does so whenever the window has come up and its frame is known.
void keepOnDisplay(QWidget& window);

} // namespace zeugnis::windowplace
