#pragma once

#include <QObject>

class QApplication;

namespace zeugnis {

/// Enter presses the button that has the keyboard, in a window as in a dialog, and never another
/// one.
class EnterKey : public QObject {
    Q_OBJECT

  public:
    /// For all windows; again it does nothing.
    static void install(QApplication& application);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    using QObject::QObject;
};

} // namespace zeugnis
