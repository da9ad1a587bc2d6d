#include "desktop/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace zeugnis {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

QSize ElidedLabel::minimumSizeHint() const { return {1, QLabel::minimumSizeHint().height()}; }

void ElidedLabel::setTexts(const QString& text, const QStringList& shorter) {
    m_shorter = shorter;
    setText(text);
    update();
}

QString ElidedLabel::elidedText() const {
    const int room = contentsRect().width();
    QString shown = text();
    for (const QString& next : m_shorter) {
        if (fontMetrics().horizontalAdvance(shown) <= room)
            break;
        shown = next;
    }
    return fontMetrics().elidedText(shown, Qt::ElideRight, room);
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
