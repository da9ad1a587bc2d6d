#pragma once

#include <QAbstractScrollArea>

#include <optional>

namespace zeugnis {

namespace dokumente {
class Zeugnisblatt;
} // namespace dokumente

/// Shows the pages of a report one below the other, as wide as there is room. A press on a section
/// chooses its page of the screen; with the keyboard the arrows go from section to section, and
/// Enter chooses.
class ReportView : public QAbstractScrollArea {
    Q_OBJECT

  public:
    explicit ReportView(QWidget* parent);

    /// Null shows the sentence alone. The sheet must stay until another one is set.
    void show(const dokumente::Zeugnisblatt* sheet, const QString& sentence);
    /// The page of the screen that is open, -1 for none: it is marked and brought into sight.
    void setOpenPage(int page);

  signals:
    void pageChosen(int page);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;

  private:
    void layOutPages();
    [[nodiscard]] QRectF areaOfPage(int page) const;
    [[nodiscard]] QRect areaOf(size_t place) const;
    [[nodiscard]] std::optional<size_t> placeAt(const QPoint& point) const;
    [[nodiscard]] bool leadsOn(size_t place) const;
    void point(std::optional<size_t> place);
    void bringIntoSight(int page);
    void step(int direction);

    const dokumente::Zeugnisblatt* m_sheet = nullptr;
    QString m_sentence;
    int m_openPage = -1;
    std::optional<size_t> m_pointed; ///< by the mouse or by the arrows
    double m_scale = 1.0;            ///< pixels for a twip
    int m_cut = 0;                   ///< what is not shown of the paper's side margins
};

} // namespace zeugnis
