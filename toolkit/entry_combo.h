#pragma once

#include <QComboBox>

namespace zeugnis {

/// A list to open and pick from. A name that does not fit ends in an ellipsis, and the tool tip
/// tells it whole. Nothing is picked on the way: the wheel scrolls what lies around
/// it, and a letter opens it at that letter. One that no entry begins with is left to the window.
class EntryCombo : public QComboBox {
    Q_OBJECT

  public:
    using QComboBox::QComboBox;

    void showPopup() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    [[nodiscard]] QString shownText() const;
    [[nodiscard]] QString elidedText() const;
};

} // namespace zeugnis
