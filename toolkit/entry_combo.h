#pragma once

#include <QComboBox>

class QStyleOptionComboBox;

namespace zeugnis {

/// A list to open and pick from. A name that does not fit ends in an ellipsis, and the tool tip
/// tells it whole. Nothing is picked on the way: the wheel scrolls what lies around
/// it, and a letter opens it at that letter. One that no entry begins with is left to the window.
class EntryCombo : public QComboBox {
    Q_OBJECT

  public:
    using QComboBox::QComboBox;

    void showPopup() override;
    [[nodiscard]] QSize sizeHint() const override { return wholeIn(QComboBox::sizeHint()); }
    [[nodiscard]] QSize minimumSizeHint() const override {
        return wholeIn(QComboBox::minimumSizeHint());
    }

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    [[nodiscard]] QSize wholeIn(QSize hint) const;
    /// For the text, in a box of this shape.
    [[nodiscard]] int room(const QStyleOptionComboBox& option) const;
    [[nodiscard]] QString shownText() const;
    [[nodiscard]] QString elidedText() const;
};

} // namespace zeugnis
