#pragma once

class QWidget;

namespace zeugnis {

/// Tells the window manager that this window stands above its parent, so that a task bar does not
/// turn them round. Qt tells X so of dialogs only. To be called whenever the window has been shown.
void standAboveParent(const QWidget& window);

} // namespace zeugnis
