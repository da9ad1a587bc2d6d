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
    [[nodiscard]] QSize sizeHint() const override { return m_preferred; }

  signals:
    void clicked();
    void doubleClicked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    QPixmap m_pixmap;
    QSize m_preferred;
    bool m_secondRelease = false;
};

} // namespace zeugnis
