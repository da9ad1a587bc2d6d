#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;

namespace zeugnis {

/// Two texts beside each other, to read and to copy from.
class ComparePane : public QWidget {
    Q_OBJECT

  public:
    ComparePane(const QString& left, const QString& right, QWidget* parent);

    void show(const QString& left, const QString& right);
    void clear() { show({}, {}); }
    [[nodiscard]] QString leftText() const;

  private:
    QPlainTextEdit* column(const QString& heading);

    QPlainTextEdit* m_left;
    QPlainTextEdit* m_right;
};

} // namespace zeugnis
