#pragma once

#include <QLabel>

namespace zeugnis {

/// One line that ends in an ellipsis where it does not fit; the tool tip tells it whole then.
class ElidedLabel : public QLabel {
    Q_OBJECT

  public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    /// A text, and what stands for it where it does not fit, the longest first.
    void setTexts(const QString& text, const QStringList& shorter);

    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    [[nodiscard]] QString elidedText() const;

    QStringList m_shorter;
};

} // namespace zeugnis
