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

// In the coordinates of the display.
struct KeptFree {
    QRect rect;
    int weight;
};

// Choices are locked while phrases are inserted, so they may be covered. A text box can be scrolled
// or comes free when the window is moved; a button must never look as if it were gone.
std::vector<KeptFree> keptFree(const QWidget& served) {
    constexpr int Button = 100;
    constexpr int Text = 1;
    std::vector<KeptFree> all;
    const auto add = [&](const QWidget& widget, int weight) {
        if (widget.isVisible() && widget.isEnabled())
            all.push_back({QRect(widget.mapToGlobal(QPoint(0, 0)), widget.size()), weight});
    };
    for (const auto* button : served.findChildren<QPushButton*>())
        add(*button, Button);
    for (const auto* list : served.findChildren<QComboBox*>())
        add(*list, Button);
    for (const auto* text : served.findChildren<QPlainTextEdit*>())
        add(*text, Text);
    return all;
}

int coveredOf(const std::vector<KeptFree>& all, const QRect& place) {
    int covered = 0;
    for (const KeptFree& one : all) {
        const QRect common = one.rect.intersected(place);
        if (!common.isEmpty())
            covered += one.weight * common.width() * common.height();
    }
    return covered;
}

} // namespace

QRect placeBeside(const QWidget& served, QSize wished, QSize least, QSize frame,
                  const QRect& available) {
    const std::vector<KeptFree> rects = keptFree(served);
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
