#pragma once

#include <QScrollArea>

class QGridLayout;
class QLayout;

namespace zeugnis {

/// The place of pages of which one is shown. It is as high as the shown page needs, and scrolls
/// only where the window is too small for that. What the keyboard comes to is brought into sight.
class PageArea : public QScrollArea {
    Q_OBJECT

  public:
    explicit PageArea(QWidget* parent = nullptr);
    ~PageArea() override;

    void add(QWidget& page, Qt::Alignment alignment = {});
    void add(QLayout& page);
    /// Stands below each of the pages.
    void addBelow(QWidget& part);
    /// Takes all the room there is, also where its page needs less.
    void fillRoom();

    /// For pages whose height depends on their width: the place of the scroll bar is always kept
    /// free, or the bar would come and go without end.
    void keepRoomToScroll();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void showFocused(QWidget* focused);

    QGridLayout* m_place;
};

} // namespace zeugnis
