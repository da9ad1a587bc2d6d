#pragma once

#include "platform/text.h"

#include <QDialog>

#include <functional>
#include <vector>

class QGridLayout;
class QLabel;
class QPushButton;
class QTextEdit;

namespace zeugnis {

/// The same text, or nearly, of two children side by side; what differs is marked. Where there are
/// more such children, one of them is chosen on the right.
class TwinWindow : public QDialog {
    Q_OBJECT

  public:
    struct Side {
        QString name; ///< the child
        Text text;
        QString way;                ///< what the button says that leads to the text
        std::function<void()> lead; ///< the window closes with it
    };

    /// `others`: at least one.
    TwinWindow(QString section, Side left, std::vector<Side> others, QWidget* owner);

  private:
    struct Column {
        QTextEdit* shown = nullptr;
        QPushButton* way = nullptr;
        const Side* side = nullptr;
    };

    QWidget* nameOfOthers();
    void addColumn(QGridLayout& columns, QWidget* name, Column& column);
    void compareWith(int other);
    static void fill(Column& column, const Side& side, const Side& other);

    QString m_section;
    Side m_own;
    std::vector<Side> m_others;
    QLabel* m_head;
    Column m_left;
    Column m_right;
};

} // namespace zeugnis
