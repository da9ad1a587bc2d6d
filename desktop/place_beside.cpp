#include "desktop/place_beside.h"

#include <QComboBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>

#include <algorithm>
#include <limits>
#include <vector>

namespace zeugnis {
namespace {

constexpr int Step = 10;

// In the coordinates of the display. Choices are locked while phrases are inserted, so they may be
// covered.
std::vector<QRect> keptFree(const QWidget& served) {
    std::vector<QRect> rects;
    const auto add = [&](const QWidget& widget) {
        if (widget.isVisible() && widget.isEnabled())
            rects.emplace_back(widget.mapToGlobal(QPoint(0, 0)), widget.size());
    };
    for (const auto* button : served.findChildren<QPushButton*>())
        add(*button);
    for (const auto* text : served.findChildren<QPlainTextEdit*>())
        add(*text);
    for (const auto* list : served.findChildren<QComboBox*>())
        add(*list);
    return rects;
}

int coveredOf(const std::vector<QRect>& rects, const QRect& place) {
    int area = 0;
    for (const QRect& rect : rects) {
        const QRect common = rect.intersected(place);
        area += common.width() * common.height();
    }
    return area;
}

} // namespace

QRect placeBeside(const QWidget& served, QSize wished, QSize least, QSize frame,
                  const QRect& available) {
    const std::vector<QRect> rects = keptFree(served);
    QRect best;
    int leastCovered = std::numeric_limits<int>::max();
    for (int share = 4; share >= 0 && leastCovered > 0; --share) {
        const QSize size = least + (wished - least) * share / 4 + frame;
        for (int y = available.top(); y + size.height() <= available.bottom() + 1; y += Step)
            for (int x = available.right() + 1 - size.width(); x >= available.left(); x -= Step)
                if (const int covered = coveredOf(rects, {QPoint(x, y), size});
                    covered < leastCovered) {
                    leastCovered = covered;
                    best = QRect(QPoint(x, y), size);
                }
    }
    return best;
}

} // namespace zeugnis
