#pragma once

#include "documents/window/pdf_pages.h"

#include <QAbstractScrollArea>
#include <QCache>

namespace zeugnis::dokumente {

/// Shows pages one below the other, as large as wished, and scrolls through them. The keys are
/// those of any text: arrows, page up and down, Home and End.
class PageView : public QAbstractScrollArea {
    Q_OBJECT

  public:
    enum class Zoom { WholePage, PageWidth, Factor };

    explicit PageView(QWidget* parent = nullptr);

    /// `pages` must outlive the view or the next call.
    void setPages(const PdfPages& pages);

    void setZoom(Zoom zoom, double factor = 1.0);
    /// One step larger or smaller.
    void zoomBy(int steps);
    [[nodiscard]] Zoom zoom() const { return m_zoom; }
    /// 1.0 is the size on paper.
    [[nodiscard]] double factor() const { return m_factor; }

    /// Brings the place to the top of the view.
    void showPlace(const Stelle& place);
    /// Whether the place lies in the upper half of the view or above it.
    [[nodiscard]] bool isReached(const Stelle& place) const;
    /// The page that fills most of the view.
    [[nodiscard]] int currentPage() const { return m_current; }

  signals:
    void scrolled();
    void zoomChanged();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void layOutPages();
    void findCurrentPage();
    void describePage();
    [[nodiscard]] double factorFor(Zoom zoom) const;
    [[nodiscard]] QRect areaOf(int page) const; ///< in the view's coordinates
    const QImage& imageOf(int page);

    const PdfPages* m_pages = nullptr;
    Zoom m_zoom = Zoom::Factor;
    double m_factor = 1.0;
    std::vector<QRect> m_areas; ///< of the pages, on the desk
    QSize m_desk;
    int m_current = 0;
    QCache<int, QImage> m_images;
};

} // namespace zeugnis::dokumente
