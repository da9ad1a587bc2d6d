#pragma once

#include <QScrollArea>

class QGridLayout;

namespace zeugnis {

/// The place of pages of which one is shown. It is as high as the shown page needs, and scrolls
/// only where the window is too small for that.
class PageArea : public QScrollArea {
    Q_OBJECT

  public:
    explicit PageArea(QWidget* parent = nullptr);

    void add(QWidget& page, Qt::Alignment alignment = {});

    /// For pages whose height depends on their width: the place of the scroll bar is always kept
    /// free, or the bar would come and go without end.
    void keepRoomToScroll();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QGridLayout* m_place;
};

} // namespace zeugnis
