#include "toolkit/page_area.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QResizeEvent>
#include <QScrollBar>

namespace zeugnis {

PageArea::PageArea(QWidget* parent) : QScrollArea(parent) {
    auto* content = new QWidget;
    m_place = new QGridLayout(content);
    m_place->setContentsMargins(0, 0, 0, 0);
    m_place->setRowStretch(0, 1);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    setWidgetResizable(true);
    setWidget(content);
    // The ground is that of what it stands on.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* focused) { showFocused(focused); });
}

// What it holds goes after it, and the keyboard leaves that.
PageArea::~PageArea() { qApp->disconnect(this); }

// Under the mouse nothing may move: the release would miss what was pressed.
void PageArea::showFocused(QWidget* focused) {
    if (focused != nullptr && QGuiApplication::mouseButtons() == Qt::NoButton &&
        widget()->isAncestorOf(focused))
        ensureWidgetVisible(focused, 0, 6);
}

void PageArea::add(QWidget& page, Qt::Alignment alignment) {
    m_place->addWidget(&page, 0, 0, alignment);
}

void PageArea::add(QLayout& page) { m_place->addLayout(&page, 0, 0); }

void PageArea::addBelow(QWidget& part) { m_place->addWidget(&part, 1, 0); }

void PageArea::fillRoom() { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding); }

void PageArea::keepRoomToScroll() {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QScrollBar* bar = verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, bar,
            [bar](int lowest, int highest) { bar->setEnabled(highest > lowest); });
}

QSize PageArea::sizeHint() const {
    const int width = viewport()->width();
    const int height = m_place->hasHeightForWidth() ? m_place->totalHeightForWidth(width)
                                                    : m_place->totalSizeHint().height();
    return {width, qMax(height, m_place->totalMinimumSize().height())};
}

QSize PageArea::minimumSizeHint() const {
    constexpr int LeastLines = 4;
    const int width = m_place->totalMinimumSize().width() + verticalScrollBar()->sizeHint().width();
    return {width, qMin(sizeHint().height(), LeastLines * fontMetrics().lineSpacing())};
}

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
