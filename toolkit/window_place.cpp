#include "toolkit/window_place.h"

#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace zeugnis::windowplace {
namespace {

constexpr QMargins LikelyFrame(8, 32, 8, 8);
constexpr int UsualLineHeight = 20; // pixels
// Of a display that is much larger, a window takes no more: lines of text would get too long.
constexpr double MostGrowth = 1.5;
constexpr double ShareOfDisplay = 0.9;

class Keeper : public QObject {
  public:
    explicit Keeper(QWidget& window) : QObject(&window), m_window(window) {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        // Some desktops tell of the frame only a little later.
        constexpr int UntilFramed = 150;
        if (event->type() == QEvent::Show && !event->spontaneous())
            for (const int wait : {0, UntilFramed})
                QTimer::singleShot(wait, this, [this] {
                    if (m_window.isVisible())
                        bringOnDisplay(m_window);
                });
        return QObject::eventFilter(watched, event);
    }

  private:
    QWidget& m_window;
};

} // namespace

QMargins frameOf(const QWidget& window) {
    const QWindow* handle = window.windowHandle();
    return handle != nullptr && handle->isExposed() ? handle->frameMargins() : LikelyFrame;
}

QRect room(const QWidget& window) {
    return window.screen()->availableGeometry().marginsRemoved(frameOf(window));
}

QSize atFont(QSize size) {
    const double lineHeight = QFontMetrics(QApplication::font()).height();
    return size * std::max(1.0, lineHeight / UsualLineHeight);
}

void place(QWidget& window, QSize wished, Growth growth) {
    const QRect within = room(window);
    const QSize usual = atFont(wished);
    QSize size = usual;
    if (growth == Growth::WithDisplay)
        size = usual.expandedTo(within.size() * ShareOfDisplay).boundedTo(usual * MostGrowth);
    QRect rect(QPoint(), size.boundedTo(within.size()));
    rect.moveCenter(within.center());
    window.setGeometry(rect);
}

void bringOnDisplay(QWidget& window) {
    if (window.isMaximized() || window.isFullScreen() || window.isMinimized())
        return;
    const QRect within = room(window);
    QRect rect(window.geometry().topLeft(), window.size().boundedTo(within.size()));
    rect.moveLeft(std::clamp(rect.left(), within.left(), within.right() + 1 - rect.width()));
    rect.moveTop(std::clamp(rect.top(), within.top(), within.bottom() + 1 - rect.height()));
    if (rect != window.geometry())
        window.setGeometry(rect);
}

void keepOnDisplay(QWidget& window) { new Keeper(window); }

} // namespace zeugnis::windowplace
