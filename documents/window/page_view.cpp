#include "documents/window/page_view.h"

#include "documents/window/theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <array>

namespace zeugnis::dokumente {
namespace {

constexpr int Margin = 24; // around the pages and between them
constexpr int LineStep = 60;
constexpr double PointsPerInch = 72.0;
constexpr int ImagesKept = 12;
constexpr double NearTop = 0.35; // with what lies as near, the page is shown from its edge
constexpr std::array Factors = {0.25, 0.33, 0.5, 0.67, 0.75, 0.9, 1.0, 1.25, 1.5, 2.0, 3.0};

} // namespace

PageView::PageView(QWidget* parent) : QAbstractScrollArea(parent), m_images(ImagesKept) {
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    verticalScrollBar()->setSingleStep(LineStep);
    horizontalScrollBar()->setSingleStep(LineStep);
    setAccessibleName(QStringLiteral("Seiten des Dokuments"));
}

void PageView::setPages(const PdfPages& pages) {
    m_pages = &pages;
    m_images.clear();
    layOutPages();
    findCurrentPage();
}

void PageView::setZoom(Zoom zoom, double factor) {
    const int page = m_current;
    m_zoom = zoom;
    m_factor = std::clamp(factor, Factors.front(), Factors.back());
    layOutPages();
    showPlace({page, 0});
    emit zoomChanged();
}

void PageView::zoomBy(int steps) {
    const auto* next = std::lower_bound(Factors.begin(), Factors.end(), m_factor - 0.005);
    auto index = next - Factors.begin();
    const bool between = next != Factors.end() && *next > m_factor + 0.005;
    if (steps > 0)
        index += between ? steps - 1 : steps;
    else
        index += steps;
    index = std::clamp<std::ptrdiff_t>(index, 0, std::ssize(Factors) - 1);
    setZoom(Zoom::Factor, Factors.at(static_cast<size_t>(index)));
}

void PageView::showPlace(const Stelle& place) {
    if (place.page < 0 || static_cast<size_t>(place.page) >= m_areas.size())
        return;
    const QRect& area = m_areas[static_cast<size_t>(place.page)];
    const double top = place.top < NearTop ? 0 : place.top;
    verticalScrollBar()->setValue(area.top() + qRound(top * area.height()) - Margin / 2);
    findCurrentPage();
}

bool PageView::isReached(const Stelle& place) const {
    if (place.page < 0 || static_cast<size_t>(place.page) >= m_areas.size())
        return false;
    const QRect area = areaOf(place.page);
    return area.top() + qRound(place.top * area.height()) <= viewport()->height() / 2;
}

double PageView::factorFor(Zoom zoom) const {
    if (zoom == Zoom::Factor || m_pages == nullptr)
        return m_factor;
    const QSizeF onPaper = m_pages->size(0) * (logicalDpiX() / PointsPerInch);
    const double byWidth = (viewport()->width() - 2 * Margin) / onPaper.width();
    const double byHeight = (viewport()->height() - Margin) / onPaper.height();
    const double fitting = zoom == Zoom::PageWidth ? byWidth : std::min(byWidth, byHeight);
    return std::clamp(fitting, Factors.front(), Factors.back());
}

void PageView::layOutPages() {
    if (m_pages == nullptr)
        return;
    const double factor = factorFor(m_zoom);
    if (factor != m_factor)
        m_images.clear();
    m_factor = factor;
    const double scale = m_factor * logicalDpiX() / PointsPerInch;

    m_areas.clear();
    int top = Margin / 2;
    int widest = 0;
    for (int page = 0; page < m_pages->count(); ++page) {
        const QSize size = (m_pages->size(page) * scale).toSize();
        m_areas.emplace_back(QPoint(0, top), size);
        top += size.height() + Margin / 2;
        widest = std::max(widest, size.width());
    }
    m_desk = QSize(std::max(widest + 2 * Margin, viewport()->width()), top);
    for (QRect& area : m_areas)
        area.moveLeft((m_desk.width() - area.width()) / 2);

    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, m_desk.height() - viewport()->height());
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setRange(0, m_desk.width() - viewport()->width());
    viewport()->update();
}

QRect PageView::areaOf(int page) const {
    return m_areas[static_cast<size_t>(page)].translated(-horizontalScrollBar()->value(),
                                                         -verticalScrollBar()->value());
}

void PageView::findCurrentPage() {
    int best = 0;
    int mostSeen = -1;
    for (int page = 0; page < static_cast<int>(m_areas.size()); ++page) {
        const int seen = areaOf(page).intersected(viewport()->rect()).height();
        if (seen > mostSeen) {
            mostSeen = seen;
            best = page;
        }
    }
    if (best != m_current || accessibleDescription().isEmpty()) {
        m_current = best;
        describePage();
    }
    emit scrolled();
}

void PageView::describePage() {
    if (m_pages != nullptr)
        setAccessibleDescription(m_pages->text(m_current));
}

const QImage& PageView::imageOf(int page) {
    if (!m_images.contains(page)) {
        const double dotsPerInch = m_factor * logicalDpiX() * devicePixelRatioF();
        auto* image = new QImage(m_pages->image(page, dotsPerInch));
        image->setDevicePixelRatio(devicePixelRatioF());
        m_images.insert(page, image);
    }
    return *m_images.object(page);
}

void PageView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), theme::desk());
    for (int page = 0; page < static_cast<int>(m_areas.size()); ++page) {
        const QRect area = areaOf(page);
        if (!area.intersects(viewport()->rect()))
            continue;
        painter.drawImage(area, imageOf(page));
        painter.setPen(look::colours().Outline);
        painter.drawRect(area.adjusted(-1, -1, 0, 0));
    }
    if (hasFocus()) {
        painter.setPen(QPen(look::colours().Accent, 2));
        painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    }
}

void PageView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    const int page = m_current;
    const double before = m_factor;
    layOutPages();
    if (m_factor != before) {
        showPlace({page, 0});
        emit zoomChanged();
    }
}

void PageView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    viewport()->update();
    findCurrentPage();
}

void PageView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Home)
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
    else if (event->key() == Qt::Key_End)
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
    else if (event->key() == Qt::Key_Space)
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
    else
        QAbstractScrollArea::keyPressEvent(event);
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (event->modifiers().testFlag(Qt::ControlModifier))
        zoomBy(event->angleDelta().y() > 0 ? 1 : -1);
    else
        QAbstractScrollArea::wheelEvent(event);
}

} // namespace zeugnis::dokumente
