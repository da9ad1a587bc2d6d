#include "tests/window_driver/pointing.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QFrame>
#include <QMimeData>
#include <QScrollArea>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace zeugnis::windowdriver::mouse {
namespace {

QWindow* windowOf(const QWidget& widget) { return widget.window()->windowHandle(); }

QPoint inWindow(const QWidget& widget, const QPoint& place) {
    return widget.mapTo(widget.window(), place);
}

// What lies on it is another's.
bool isGround(const QWidget& widget) { return widget.metaObject() == &QFrame::staticMetaObject; }

bool reaches(const QWidget& widget, const QPoint& place) {
    if (!widget.rect().contains(place) || widget.visibleRegion().isEmpty())
        return false;
    const QWidget& window = *widget.window();
    const QPoint there = inWindow(widget, place);
    const QWidget* hit = window.rect().contains(there) ? window.childAt(there) : nullptr;
    return hit == &widget || (hit != nullptr && !isGround(widget) && widget.isAncestorOf(hit));
}

} // namespace

// A new height travels outwards one layout at a time.
void settle() {
    constexpr int DeepestNesting = 6;
    for (int i = 0; i < DeepestNesting; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void activate(QWidget& widget) {
    QWidget* window = widget.window();
    constexpr int Attempts = 20;
    for (int i = 0; i < Attempts && QApplication::activeWindow() != window; ++i) {
        window->raise();
        window->activateWindow();
        settle();
    }
}

void bringIntoSight(QWidget& widget) {
    for (QWidget* outer = widget.parentWidget(); outer != nullptr; outer = outer->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(outer))
            area->ensureWidgetVisible(&widget, 4, 4);
    settle();
}

std::optional<QPoint> freePlace(const QWidget& widget, const QPoint& wished) {
    if (reaches(widget, wished))
        return wished;
    constexpr int Step = 6;
    for (const QRect& part : widget.visibleRegion())
        for (int y = part.top() + 1; y <= part.bottom(); y += Step)
            for (int x = part.left() + 1; x <= part.right(); x += Step)
                if (reaches(widget, {x, y}))
                    return QPoint(x, y);
    return std::nullopt;
}

void click(QWidget& widget, const QPoint& place) {
    QTest::mouseClick(windowOf(widget), Qt::LeftButton, {}, inWindow(widget, place));
}

void secondClick(QWidget& widget, const QPoint& place) {
    constexpr int LongerThanBetweenClicks = 5000;
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(LongerThanBetweenClicks);
    click(widget, place);
    QApplication::setDoubleClickInterval(interval);
}

// There is no drag and drop without a display, so what a display would tell the widget is told here
// while a drag of its own is under way.
void drag(QWidget& widget, const QPoint& to, const QString& text) {
    const QDrag underWay(&widget);
    QMimeData data;
    data.setText(text);
    const Qt::DropActions actions = Qt::MoveAction | Qt::CopyAction;
    QDragEnterEvent enters(to, actions, &data, Qt::LeftButton, {});
    QDragMoveEvent moves(to, actions, &data, Qt::LeftButton, {});
    QDropEvent drops(to, actions, &data, Qt::LeftButton, {});
    drops.setDropAction(Qt::MoveAction);
    for (QEvent* event : std::initializer_list<QEvent*>{&enters, &moves, &drops})
        QCoreApplication::sendEvent(&widget, event);
}

void turnWheel(QWidget& widget, const QPoint& place) {
    const QPoint there = inWindow(widget, place);
    constexpr int Notch = 120;
    QWheelEvent turned(there, widget.mapToGlobal(place), {}, QPoint(0, -Notch), Qt::NoButton,
                       Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(windowOf(widget), &turned);
}

void moveTo(QWidget& widget, const QPoint& place) {
    QTest::mouseMove(windowOf(widget), inWindow(widget, place));
}

} // namespace zeugnis::windowdriver::mouse
