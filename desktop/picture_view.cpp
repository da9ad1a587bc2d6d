#include "desktop/picture_view.h"

#include "desktop/theme.h"

#include <QPainter>
#include <QPainterPath>

namespace zeugnis {

PictureView::PictureView(QSize preferred, QWidget* parent)
    : QWidget(parent), m_preferred(preferred) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PictureView::setPixmap(const QPixmap& pixmap) {
    m_pixmap = pixmap;
    m_fitted = {};
    update();
}

void PictureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (hasFocus())
        theme::paintSurface(painter, rect(), Qt::transparent, theme::colours().Accent, true);
    if (m_pixmap.isNull())
        return;
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    const QSize shown =
        m_pixmap.size().scaled(hasFocus() ? size() - QSize(8, 8) : size(), Qt::KeepAspectRatio);
    const QRect place(QPoint((width() - shown.width()) / 2, (height() - shown.height()) / 2),
                      shown);
    if (!m_pixmap.hasAlpha()) {
        QPainterPath rounded;
        rounded.addRoundedRect(place, 8, 8);
        painter.setClipPath(rounded);
    }
    if (const QSize pixels = shown * devicePixelRatioF(); m_fitted.size() != pixels)
        m_fitted = m_pixmap.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawPixmap(place, m_fitted);
}

} // namespace zeugnis
