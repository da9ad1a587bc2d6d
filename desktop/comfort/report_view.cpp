#include "desktop/comfort/report_view.h"

#include "desktop/spoken.h"
#include "desktop/theme.h"
#include "documents/sheet/report_sheet.h"
#include "toolkit/qt_text.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

namespace zeugnis {
namespace {

using dokumente::Zeugnisblatt;

constexpr int Gap = 8; // around the pages and between them
constexpr int LineStep = 40;
// Where there is little room, letters that can be read are worth more than white paper.
constexpr int WideEnough = 640;
constexpr int CutMargin = 760; // twips
constexpr int BarWidth = 4;
constexpr int BarDistance = 6;

} // namespace

ReportView::ReportView(QWidget* parent) : QAbstractScrollArea(parent) {
    setObjectName(QStringLiteral("reportView"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Else the width of the pages would go to and fro.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    verticalScrollBar()->setSingleStep(LineStep);
    viewport()->setMouseTracking(true);
    setAccessibleName(tr("Seiten des Zeugnisses"));
}

void ReportView::show(const Zeugnisblatt* sheet, const QString& sentence) {
    m_sheet = sheet;
    m_sentence = sentence;
    m_pointed.reset();
    layOutPages();
    viewport()->update();
}

void ReportView::setOpenPage(int page) {
    m_openPage = page;
    bringIntoSight(page);
    viewport()->update();
}

void ReportView::layOutPages() {
    const int width = viewport()->width() - 2 * Gap;
    m_cut = width < WideEnough ? CutMargin : 0;
    m_scale = double(width) / (Zeugnisblatt::Papier().width() - 2 * m_cut);
    const int pages = m_sheet == nullptr ? 0 : m_sheet->Seiten();
    const double height = Gap + pages * (Zeugnisblatt::Papier().height() * m_scale + Gap);
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(0, qCeil(height) - viewport()->height()));
}

QRectF ReportView::areaOfPage(int page) const {
    const double height = Zeugnisblatt::Papier().height() * m_scale;
    return {double(Gap), Gap + page * (height + Gap) - verticalScrollBar()->value(),
            double(viewport()->width() - 2 * Gap), height};
}

QRect ReportView::areaOf(size_t place) const {
    const Zeugnisblatt::Stelle& one = m_sheet->Stellen()[place];
    const QRectF page = areaOfPage(one.Seite);
    return QRectF(page.left() + (one.Flaeche.left() - m_cut) * m_scale,
                  page.top() + one.Flaeche.top() * m_scale, one.Flaeche.width() * m_scale,
                  one.Flaeche.height() * m_scale)
        .toAlignedRect();
}

bool ReportView::leadsOn(size_t place) const { return m_sheet->Stellen()[place].Abschnitt >= 0; }

std::optional<size_t> ReportView::placeAt(const QPoint& point) const {
    if (m_sheet != nullptr)
        for (size_t place = 0; place < m_sheet->Stellen().size(); ++place)
            if (areaOf(place).contains(point))
                return place;
    return std::nullopt;
}

void ReportView::point(std::optional<size_t> place) {
    if (place == m_pointed)
        return;
    m_pointed = place;
    viewport()->setCursor(place && leadsOn(*place) ? Qt::PointingHandCursor : Qt::ArrowCursor);
    viewport()->update();
}

// By the section's first part, if none of it is in sight.
void ReportView::bringIntoSight(int page) {
    if (m_sheet == nullptr || page < 0)
        return;
    std::optional<QRect> first;
    for (size_t place = 0; place < m_sheet->Stellen().size(); ++place) {
        if (m_sheet->Stellen()[place].Abschnitt != page)
            continue;
        const QRect area = areaOf(place);
        if (viewport()->rect().contains(area))
            return;
        if (!first)
            first = area;
    }
    if (first)
        verticalScrollBar()->setValue(verticalScrollBar()->value() + first->top() -
                                      viewport()->height() / 4);
}

void ReportView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(viewport());
    const theme::Colours& colours = theme::colours();
    painter.fillRect(viewport()->rect(), colours.Background);
    if (m_sheet == nullptr) {
        painter.setPen(colours.InkFaint);
        painter.drawText(viewport()->rect().adjusted(3 * Gap, 3 * Gap, -3 * Gap, -3 * Gap),
                         Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, m_sentence);
        return;
    }
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    for (int page = 0; page < m_sheet->Seiten(); ++page) {
        const QRectF area = areaOfPage(page);
        if (!area.intersects(viewport()->rect()))
            continue;
        painter.fillRect(area, Qt::white);
        painter.save();
        painter.setClipRect(area);
        painter.translate(area.left() - m_cut * m_scale, area.top());
        painter.scale(m_scale, m_scale);
        m_sheet->malen(painter, page);
        painter.restore();
        painter.setPen(colours.Outline);
        painter.drawRect(area);
    }
    for (size_t place = 0; place < m_sheet->Stellen().size(); ++place) {
        const QRect area = areaOf(place);
        if (m_openPage >= 0 && m_sheet->Stellen()[place].Abschnitt == m_openPage)
            painter.fillRect(area.left() - BarDistance - BarWidth, area.top(), BarWidth,
                             area.height(), colours.Accent);
        if (place == m_pointed && leadsOn(place)) {
            painter.setPen(QPen(colours.Accent, hasFocus() ? 2 : 1));
            painter.drawRoundedRect(area.adjusted(-2, -1, 2, 1), 3, 3);
        }
    }
    if (hasFocus()) {
        painter.setPen(QPen(colours.Accent, 2));
        painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    }
}

void ReportView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    layOutPages();
    bringIntoSight(m_openPage);
}

void ReportView::scrollContentsBy(int /*dx*/, int /*dy*/) { viewport()->update(); }

// To the next section that leads on; on its way round it stops at the ends.
void ReportView::step(int direction) {
    if (m_sheet == nullptr)
        return;
    const int count = static_cast<int>(m_sheet->Stellen().size());
    int place = m_pointed       ? static_cast<int>(*m_pointed) + direction
                : direction > 0 ? 0
                                : count - 1;
    while (place >= 0 && place < count && !leadsOn(static_cast<size_t>(place)))
        place += direction;
    if (place < 0 || place >= count)
        return;
    point(static_cast<size_t>(place));
    const Zeugnisblatt::Stelle& one = m_sheet->Stellen()[static_cast<size_t>(place)];
    bringIntoSight(one.Abschnitt);
    spoken::describe(*this, tr("%1, Seite %2. Enter führt dorthin.")
                                .arg(qString(one.Name), QString::number(one.Seite + 1)));
}

void ReportView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Down:
        return step(1);
    case Qt::Key_Up:
        return step(-1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_sheet != nullptr && m_pointed && leadsOn(*m_pointed))
            emit pageChosen(m_sheet->Stellen()[*m_pointed].Abschnitt);
        return;
    case Qt::Key_Home:
        return verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
    case Qt::Key_End:
        return verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
    case Qt::Key_Space:
        return verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void ReportView::mouseMoveEvent(QMouseEvent* event) { point(placeAt(event->position().toPoint())); }

void ReportView::mouseReleaseEvent(QMouseEvent* event) {
    const std::optional<size_t> place = placeAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && place && leadsOn(*place))
        emit pageChosen(m_sheet->Stellen()[*place].Abschnitt);
}

bool ReportView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave)
        point(std::nullopt);
    if (event->type() != QEvent::ToolTip)
        return QAbstractScrollArea::viewportEvent(event);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const std::optional<size_t> place = placeAt(help.pos());
    QToolTip::showText(help.globalPos(),
                       !place ? QString()
                       : leadsOn(*place)
                           ? tr("Zu „%1“").arg(qString(m_sheet->Stellen()[*place].Name))
                           : tr("Dieser Text wird in einem anderen Fenster "
                                "geschrieben."),
                       viewport());
    return true;
}

} // namespace zeugnis
