#pragma once

#include <QPoint>

#include <optional>

class QString;
class QWidget;

/// The mouse of the hand: real events at a window, which finds its own way to the widget under it.
namespace zeugnis::windowdriver::mouse {

/// Lets everything happen that is on its way: layouts, repaints, deletions.
void settle();

/// Brings the widget's window to the front, as a click on it does.
void activate(QWidget& widget);

/// Scrolls until the widget is in sight.
void bringIntoSight(QWidget& widget);

/// A place of the widget where the mouse would reach it or one of its children, but no other. The
/// wished place, if that is one.
std::optional<QPoint> freePlace(const QWidget& widget, const QPoint& wished);

void click(QWidget& widget, const QPoint& place);
/// Makes a double click of the click before.
void secondClick(QWidget& widget, const QPoint& place);
/// Drags a selected text within the widget.
void drag(QWidget& widget, const QPoint& to, const QString& text);
/// One notch towards the user.
void turnWheel(QWidget& widget, const QPoint& place);
void moveTo(QWidget& widget, const QPoint& place);

} // namespace zeugnis::windowdriver::mouse
