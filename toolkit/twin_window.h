#pragma once

#include "platform/text.h"

#include <QDialog>

#include <functional>

class QLayout;

namespace zeugnis {

/// The same text, or nearly, of two children side by side; what differs is marked.
class TwinWindow : public QDialog {
    Q_OBJECT

  public:
    struct Side {
        QString name; ///< the child
        Text text;
        QString way;                ///< what the button says that leads to the text
        std::function<void()> lead; ///< the window closes with it
    };

    TwinWindow(const QString& section, const Side& left, const Side& right, QWidget* owner);

  private:
    QLayout* column(const Side& side, const Text& other);
};

} // namespace zeugnis
