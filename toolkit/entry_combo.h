#pragma once

#include <QComboBox>

namespace zeugnis {

/// A list to open and pick from. Nothing is picked on the way: the wheel scrolls what lies around
/// it, and a letter opens it at that letter.
class EntryCombo : public QComboBox {
    Q_OBJECT

  public:
    using QComboBox::QComboBox;

    void showPopup() override;

  protected:
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace zeugnis
