#pragma once

#include <QRect>

class QWidget;

namespace zeugnis {

/// The place for a small window, frame and all, in which it covers as little as possible of the
/// buttons and text boxes of another: of those that lie free, the one furthest up and to the right.
/// It may become smaller for that, but not than `least`.
QRect placeBeside(const QWidget& served, QSize wished, QSize least, QSize frame,
                  const QRect& available);

} // namespace zeugnis
