#include "desktop/choice_row.h"

#include "desktop/theme.h"
#include "desktop/word_width.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace zeugnis {
namespace {

constexpr int MarkSize = 16;
constexpr int Padding = 8;
constexpr int HintPadding = 10;
constexpr int TopPadding = 4;
constexpr int CompactTopPadding = 1;
constexpr int PictureSize = 56;
constexpr int LongestWord = 28; // characters

} // namespace

ChoiceRow::ChoiceRow(Mark mark, QWidget* parent)
    : QAbstractButton(parent), m_mark(mark), m_topPadding(TopPadding) {
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void ChoiceRow::setInscription(const QString& inscription) {
    if (m_inscription == inscription)
        return;
    m_inscription = inscription;
    setText(QString(inscription).replace(u'&', QStringLiteral("&&")));
    measureWords();
}

void ChoiceRow::setTint(const QColor& tint) {
    if (m_tint == tint)
        return;
    m_tint = tint;
    update();
}

void ChoiceRow::setChosen(bool chosen) {
    const bool isNew = isChosen() != chosen;
    m_chosen = chosen;
    if (!isNew)
        return;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void ChoiceRow::setFormer(bool former) {
    if (m_isFormer == former)
        return;
    m_isFormer = former;
    update();
}

void ChoiceRow::setKeyHint(const QString& hint) {
    m_keyHint = hint;
    measureWords();
}

void ChoiceRow::setPicture(const QPixmap& picture) {
    m_picture = picture;
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    updateGeometry();
}

void ChoiceRow::setCompact() {
    m_topPadding = CompactTopPadding;
    updateGeometry();
}

QRect ChoiceRow::textArea(int width, int height) const {
    const int left = Padding + MarkSize + Padding + m_hintWidth;
    return {left, m_topPadding, width - left - Padding, height - 2 * m_topPadding};
}

int ChoiceRow::heightForWidth(int width) const {
    if (!m_picture.isNull())
        return PictureSize + 2 * m_topPadding;
    return textHeight(textArea(width, 1000).width()) + 2 * m_topPadding + 2;
}

int ChoiceRow::textHeight(int width) const {
    const auto [known, isNew] = m_textHeights.try_emplace(width);
    if (isNew)
        known->second =
            std::max(fontMetrics()
                         .boundingRect(QRect(0, 0, width, 1000), wrapping(width), m_inscription)
                         .height(),
                     fontMetrics().height());
    return known->second;
}

QSize ChoiceRow::sizeHint() const {
    if (!m_picture.isNull())
        return {textArea(0, 0).left() + PictureSize + Padding, heightForWidth(0)};
    const int width =
        fontMetrics().horizontalAdvance(m_inscription) + textArea(0, 0).left() + 2 * Padding;
    return {std::min(width, 640), heightForWidth(std::min(width, 640))};
}

QSize ChoiceRow::minimumSizeHint() const {
    if (!m_picture.isNull())
        return sizeHint();
    const int longest = fontMetrics().averageCharWidth() * LongestWord;
    return {textArea(0, 0).left() + Padding + std::min(m_widestWord, longest),
            fontMetrics().height() + 2 * m_topPadding + 2};
}

void ChoiceRow::measureWords() {
    m_textHeights.clear();
    m_widestWord = widestWord(fontMetrics(), m_inscription);
    m_hintWidth =
        m_keyHint.isEmpty() ? 0 : fontMetrics().horizontalAdvance(m_keyHint) + HintPadding;
    updateGeometry();
}

// A word that no row has room for is cut in two.
int ChoiceRow::wrapping(int width) const {
    return m_widestWord > width ? Qt::TextWrapAnywhere : Qt::TextWordWrap;
}

void ChoiceRow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange)
        measureWords();
    QAbstractButton::changeEvent(event);
}

void ChoiceRow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void ChoiceRow::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

void ChoiceRow::paintMark(QPainter& painter, const QColor& ink) const {
    const QRectF mark(Padding, (height() - MarkSize) / 2.0, MarkSize, MarkSize);
    const auto paintFormer = [&] {
        if (!m_isFormer || isChecked())
            return;
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme::colours().OutlineStrong);
        painter.drawEllipse(mark.adjusted(5, 5, -5, -5));
    };
    painter.setPen(QPen(ink, 1.5));
    painter.setBrush(isEnabled() ? theme::colours().Surface : theme::colours().Background);
    if (m_mark == Mark::Option) {
        painter.drawEllipse(mark.adjusted(1, 1, -1, -1));
        if (isChecked()) {
            painter.setBrush(ink);
            painter.drawEllipse(mark.adjusted(4.5, 4.5, -4.5, -4.5));
        }
        paintFormer();
        return;
    }
    painter.drawRoundedRect(mark.adjusted(1, 1, -1, -1), 3, 3);
    paintFormer();
    if (isChecked()) {
        QPainterPath tick(mark.topLeft() + QPointF(4, 8.5));
        tick.lineTo(mark.topLeft() + QPointF(7, 11.5));
        tick.lineTo(mark.topLeft() + QPointF(12.5, 4.5));
        painter.setPen(QPen(ink, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(tick);
    }
}

// A picture has no ground that could tell the choice, so its outline does.
QColor ChoiceRow::outlineOf(const QColor& fill) const {
    if (isChecked() && (m_tint.isValid() || !m_picture.isNull()))
        return theme::colours().Ink;
    return isEnabled() && underMouse() ? theme::colours().OutlineStrong : fill;
}

void ChoiceRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor ink = isEnabled() ? theme::colours().Ink : theme::colours().InkResting;
    theme::Tinted tinted = theme::tinted(m_tint, QColor(Qt::transparent));
    for (QColor* colour : {&tinted.Ground, &tinted.Border})
        if (!isEnabled() && colour->alpha() == 255)
            colour->setAlpha(110);
    theme::paintTinted(painter, rect().adjusted(0, 1, 0, -1), tinted, outlineOf(tinted.Ground),
                       hasFocus());
    paintMark(painter, ink);
    painter.setPen(theme::colours().InkFaint);
    const QRect area = textArea(width(), height());
    if (!m_keyHint.isEmpty())
        painter.drawText(QRect(area.left() - m_hintWidth, area.top(), m_hintWidth, area.height()),
                         Qt::AlignVCenter | Qt::AlignLeft, m_keyHint);
    painter.setPen(ink);
    if (!m_picture.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setOpacity(isEnabled() ? 1.0 : 0.45);
        painter.drawPixmap(QRect(area.topLeft(), QSize(PictureSize, PictureSize)), m_picture);
        return;
    }
    painter.drawText(area,
                     static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft) | wrapping(area.width()),
                     m_inscription);
}

} // namespace zeugnis
