#include "desktop/picture_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <utility>

namespace zeugnis {

PictureView::PictureView(QSize preferred, QWidget* parent)
    : QWidget(parent), m_preferred(preferred) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PictureView::setPixmap(const QPixmap& pixmap) {
    m_pixmap = pixmap;
    update();
}

void PictureView::paintEvent(QPaintEvent*) {
    if (m_pixmap.isNull())
        return;
    QPainter painter(this);
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    const QSize shown = m_pixmap.size().scaled(size(), Qt::KeepAspectRatio);
    const QRect place(QPoint((width() - shown.width()) / 2, (height() - shown.height()) / 2),
                      shown);
    if (!m_pixmap.hasAlpha()) {
        QPainterPath rounded;
        rounded.addRoundedRect(place, 8, 8);
        painter.setClipPath(rounded);
    }
    painter.drawPixmap(place, m_pixmap);
}

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && !std::exchange(m_secondRelease, false))
        emit clicked();
}

void PictureView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    m_secondRelease = true;
    emit doubleClicked();
}

} // namespace zeugnis
