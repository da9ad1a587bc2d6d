#pragma once

#include <QPixmap>
#include <QWidget>

namespace zeugnis {

/// Shows a picture as large as its place allows, in its own proportions.
class PictureView : public QWidget {
    Q_OBJECT

  public:
    explicit PictureView(QSize preferred, QWidget* parent = nullptr);

    void setPixmap(const QPixmap& pixmap);
    /// Its coming and going is told.
    void setSign() { m_isSign = true; }
    [[nodiscard]] bool isSign() const { return m_isSign; }
    [[nodiscard]] QSize sizeHint() const override { return m_preferred; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QPixmap m_pixmap;
    QPixmap m_fitted; // as large as it was last shown
    QSize m_preferred;
    bool m_isSign = false;
};

} // namespace zeugnis
