#include "desktop/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace zeugnis {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

QSize ElidedLabel::minimumSizeHint() const { return {1, QLabel::minimumSizeHint().height()}; }

QString ElidedLabel::elidedText() const {
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), Qt::AlignVCenter | Qt::AlignLeft, elidedText());
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || elidedText() == text())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
}

} // namespace zeugnis
