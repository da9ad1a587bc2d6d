#include "desktop/page_area.h"

#include <QEvent>
#include <QGridLayout>
#include <QResizeEvent>
#include <QScrollBar>

namespace zeugnis {

PageArea::PageArea(QWidget* parent) : QScrollArea(parent) {
    auto* content = new QWidget;
    m_place = new QGridLayout(content);
    m_place->setContentsMargins(0, 0, 0, 0);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    setWidgetResizable(true);
    setWidget(content);
}

void PageArea::add(QWidget& page, Qt::Alignment alignment) {
    m_place->addWidget(&page, 0, 0, alignment);
}

void PageArea::keepRoomToScroll() {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QScrollBar* bar = verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, bar,
            [bar](int lowest, int highest) { bar->setEnabled(highest > lowest); });
}

QSize PageArea::sizeHint() const {
    const int width = viewport()->width();
    return {width, m_place->hasHeightForWidth() ? m_place->totalHeightForWidth(width)
                                                : m_place->totalSizeHint().height()};
}

QSize PageArea::minimumSizeHint() const { return {0, qMin(sizeHint().height(), 160)}; }

void PageArea::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        updateGeometry();
}

bool PageArea::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace zeugnis
