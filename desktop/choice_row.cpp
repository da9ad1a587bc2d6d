#include "desktop/choice_row.h"

#include "desktop/theme.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace zeugnis {
namespace {

constexpr int MarkSize = 16;
constexpr int Padding = 8;
constexpr int HintWidth = 16;
constexpr int TopPadding = 4;

} // namespace

ChoiceRow::ChoiceRow(Mark mark, QWidget* parent) : QAbstractButton(parent), m_mark(mark) {
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void ChoiceRow::setTint(const QColor& tint) {
    if (m_tint == tint)
        return;
    m_tint = tint;
    update();
}

void ChoiceRow::setKeyHint(const QString& hint) {
    m_keyHint = hint;
    updateGeometry();
}

QRect ChoiceRow::textArea(int width, int height) const {
    const int left = Padding + MarkSize + Padding + (m_keyHint.isEmpty() ? 0 : HintWidth);
    return {left, TopPadding, width - left - Padding, height - 2 * TopPadding};
}

int ChoiceRow::heightForWidth(int width) const {
    const QRect area = textArea(width, 1000);
    const int lines = fontMetrics()
                         .boundingRect(QRect(0, 0, area.width(), 1000), Qt::TextWordWrap, text())
                         .height();
    return std::max(lines, fontMetrics().height()) + 2 * TopPadding + 2;
}

QSize ChoiceRow::sizeHint() const {
    const int width = fontMetrics().horizontalAdvance(text()) + textArea(0, 0).left() + 2 * Padding;
    return {std::min(width, 640), heightForWidth(std::min(width, 640))};
}

QSize ChoiceRow::minimumSizeHint() const {
    return {160, fontMetrics().height() + 2 * TopPadding + 2};
}

void ChoiceRow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::FontChange)
        updateGeometry();
    QAbstractButton::changeEvent(event);
}

void ChoiceRow::paintMark(QPainter& painter, const QColor& ink) const {
    const QRectF mark(Padding, (height() - MarkSize) / 2.0, MarkSize, MarkSize);
    painter.setPen(QPen(ink, 1.5));
    painter.setBrush(isEnabled() ? QColor(Qt::white) : theme::Background);
    if (m_mark == Mark::Option) {
        painter.drawEllipse(mark.adjusted(1, 1, -1, -1));
        if (isChecked()) {
            painter.setBrush(ink);
            painter.drawEllipse(mark.adjusted(4.5, 4.5, -4.5, -4.5));
        }
        return;
    }
    painter.drawRoundedRect(mark.adjusted(1, 1, -1, -1), 3, 3);
    if (isChecked()) {
        QPainterPath tick(mark.topLeft() + QPointF(4, 8.5));
        tick.lineTo(mark.topLeft() + QPointF(7, 11.5));
        tick.lineTo(mark.topLeft() + QPointF(12.5, 4.5));
        painter.setPen(QPen(ink, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(tick);
    }
}

void ChoiceRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor ink = isEnabled() ? theme::Ink : theme::InkDisabled;
    QColor fill = m_tint.isValid() ? m_tint : QColor(Qt::transparent);
    if (!isEnabled() && m_tint.isValid())
        fill.setAlpha(110);
    const bool hovered = isEnabled() && underMouse();
    const QColor outline = isChecked() && m_tint.isValid() ? theme::Ink
                           : hovered                        ? theme::OutlineStrong
                                                            : fill;
    theme::paintSurface(painter, rect().adjusted(0, 1, 0, -1), fill, outline, hasFocus());
    paintMark(painter, ink);
    painter.setPen(isEnabled() ? theme::InkFaint : theme::InkDisabled);
    const QRect area = textArea(width(), height());
    if (!m_keyHint.isEmpty())
        painter.drawText(QRect(area.left() - HintWidth, area.top(), HintWidth, area.height()),
                         Qt::AlignVCenter | Qt::AlignLeft, m_keyHint);
    painter.setPen(ink);
    painter.drawText(area, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextWordWrap, text());
}

} // namespace zeugnis
