#include "desktop/tinted_button.h"

#include "desktop/theme.h"
#include "desktop/word_width.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcutEvent>

#include <algorithm>

namespace zeugnis {
namespace {

constexpr int SidePadding = 12;
constexpr int TopPadding = 6;
constexpr int LeastWidth = 80;
constexpr int WidestLine = 420;
constexpr int MarkRoom = 2;
constexpr int BadgeRoom = 12; // beside the padding

} // namespace

TintedButton::TintedButton(Role role, QWidget* parent) : QPushButton(parent), m_role(role) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    QSizePolicy policy(QSizePolicy::Preferred,
                       role == Role::Round ? QSizePolicy::Fixed : QSizePolicy::Minimum);
    policy.setHeightForWidth(hasHeightForWidth());
    setSizePolicy(policy);
    if (role == Role::Main || role == Role::Round)
        setFont(theme::font(theme::Size::Body, QFont::DemiBold));
}

void TintedButton::setTint(const QColor& tint) {
    if (m_tint == tint)
        return;
    m_tint = tint;
    update();
}

void TintedButton::setMarked(bool marked) {
    if (m_marked == marked)
        return;
    if (!m_marked)
        updateGeometry();
    m_marked = marked;
    update();
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void TintedButton::setBadge(const QString& badge) {
    if (m_badge == badge)
        return;
    if (!m_badge)
        updateGeometry();
    m_badge = badge;
    update();
}

void TintedButton::setFormerBadge(const QString& badge) {
    if (m_formerBadge == badge)
        return;
    m_formerBadge = badge;
    update();
}

void TintedButton::setContent(Content content) {
    if (m_content == content)
        return;
    m_content = content;
    setAccessibleDescription(content == Content::Unknown ? QString()
                             : content == Content::Empty ? tr("noch leer")
                                                         : tr("hat einen Text"));
    update();
}

int TintedButton::textFlags() const {
    const int align = m_role == Role::Main ? Qt::AlignLeft : Qt::AlignHCenter;
    return align | static_cast<int>(Qt::AlignVCenter) | Qt::TextWordWrap | Qt::TextShowMnemonic;
}

int TintedButton::leastHeight() const {
    const int lines = fontMetrics().height() + 2 * TopPadding;
    return m_role == Role::Main ? lines + 8 : lines;
}

// Room for a badge and a mark is kept on both sides, whether there is one or not: the inscription
// stays in the middle.
int TintedButton::sidePadding() const {
    return SidePadding + (m_badge ? BadgeRoom : 0) + (m_marked ? MarkRoom : 0);
}

QRect TintedButton::textArea(const QRect& area) const {
    return area.adjusted(sidePadding(), TopPadding, -sidePadding(), -TopPadding);
}

QSize TintedButton::sizeHint() const {
    if (m_role == Role::Round)
        return {leastHeight() + 2, leastHeight() + 2};
    const QSize size = textSize(WidestLine);
    return {size.width() + 2 * sidePadding() + 4,
            std::max(leastHeight(), size.height() + 2 * TopPadding)};
}

QSize TintedButton::minimumSizeHint() const {
    if (m_role == Role::Round)
        return sizeHint();
    const int word = widestWord(fontMetrics(), QString(text()).remove(u'&'));
    return {std::max(LeastWidth, word + 2 * SidePadding), leastHeight()};
}

int TintedButton::heightForWidth(int width) const {
    const int room = width - 2 * sidePadding();
    const QSize widest = textSize(WidestLine);
    const bool isOneLine = widest.height() < 2 * fontMetrics().height();
    const bool breaksAlike = widest.width() <= room && (isOneLine || room <= WidestLine);
    const QSize size = breaksAlike ? widest : textSize(room);
    return std::max(leastHeight(), size.height() + 2 * TopPadding);
}

// The layouts ask again and again, a dozen times for each picture.
QSize TintedButton::textSize(int width) const {
    Measured& last = width == WidestLine ? m_onWidestLine : m_asLastAsked;
    if (last.width != width || last.text != text() || last.font != font())
        last = {text(), font(), width,
                fontMetrics().boundingRect(QRect(0, 0, width, 1000), textFlags(), text()).size()};
    return last.size;
}

void TintedButton::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

// A shortcut acts at once. Qt would wait to show the button pressed, and what is typed meanwhile
// would still go to the box that is being left.
bool TintedButton::event(QEvent* event) {
    if (event->type() == QEvent::Shortcut && isEnabled() &&
        !static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
        click();
        return true;
    }
    return QPushButton::event(event);
}

void TintedButton::paintBadge(QPainter& painter) const {
    const bool counts = !m_badge.value_or(QString()).isEmpty();
    if (!counts && m_formerBadge.isEmpty())
        return;
    painter.save();
    painter.setFont(theme::font(theme::Size::Small, counts ? QFont::DemiBold : QFont::Normal));
    const int size = painter.fontMetrics().height() + 1;
    const QRect place(width() - size - 6, (height() - size) / 2, size, size);
    painter.setPen(QPen(counts ? theme::colours().Ink : theme::colours().InkResting, 1.2));
    if (counts) {
        painter.setBrush(theme::colours().Surface);
        painter.drawEllipse(place);
    }
    painter.drawText(place, Qt::AlignCenter, counts ? *m_badge : m_formerBadge);
    painter.restore();
}

void TintedButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    theme::Tinted tinted = theme::tinted(m_tint, theme::colours().Surface);
    QColor& fill = tinted.Ground;
    QColor ink = theme::inkOn(fill);
    QColor outline = theme::colours().OutlineStrong;
    if (m_role == Role::Danger)
        ink = outline = theme::colours().Danger;
    if (!isEnabled()) {
        fill = m_tint.isValid() ? fill.lighter(104) : theme::colours().Background;
        fill.setAlpha(140);
        tinted.Border = QColor();
        ink = theme::colours().InkDisabled;
        outline = theme::colours().Outline;
    } else if (isDown()) {
        fill = fill.darker(112);
    } else if (underMouse()) {
        fill = fill.darker(105);
    }
    theme::paintTinted(painter, rect(), tinted, outline, hasFocus());
    if (m_marked.value_or(false)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme::colours().Ink);
        painter.drawRoundedRect(QRectF(4, 7, 5, height() - 14), 2, 2);
    }
    if (m_content != Content::Unknown) {
        painter.setPen(QPen(ink, 1.4));
        painter.setBrush(m_content == Content::Filled ? QBrush(ink)
                                                      : QBrush(theme::colours().Surface));
        painter.drawEllipse(QRectF(width() - 14, height() - 14, 8, 8));
    }
    paintBadge(painter);
    painter.setPen(ink);
    painter.drawText(m_role == Role::Round ? rect() : textArea(rect()), textFlags(), text());
}

} // namespace zeugnis
