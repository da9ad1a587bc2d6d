#pragma once

#include <QPushButton>

#include <optional>

namespace zeugnis {

/// A push button that wears a colour, wraps long inscriptions, and grows with the font.
class TintedButton : public QPushButton {
    Q_OBJECT

  public:
    /// Danger is for what is gone at once: it looks it, and has no mnemonic.
    enum class Role { Normal, Main, Quiet, Round, Danger };

    explicit TintedButton(Role role, QWidget* parent = nullptr);

    [[nodiscard]] Role role() const { return m_role; }
    void setTint(const QColor& tint);
    /// Stands out among its like, as the one that is worked on. From then on it is one of several
    /// that lead to a page.
    void setMarked(bool marked);
    [[nodiscard]] std::optional<bool> marked() const { return m_marked; }
    /// A few characters that say what the colour says, in a corner.
    void setBadge(const QString& badge);
    /// One that does not count now; shown faintly where there is no other.
    void setFormerBadge(const QString& badge);
    /// A small sign that tells whether what the button leads to holds anything.
    enum class Content { Unknown, Empty, Filled };
    void setContent(Content content);

    /// Shows a sign in place of its control's inscription.
    [[nodiscard]] bool showsSign() const { return m_role == Role::Round; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return m_role != Role::Round; }
    [[nodiscard]] int heightForWidth(int width) const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    /// A double click is one click; its second press does nothing.
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    [[nodiscard]] int textFlags() const;
    [[nodiscard]] int leastHeight() const;
    [[nodiscard]] int sidePadding() const;
    [[nodiscard]] QSize textSize(int width) const;
    [[nodiscard]] QRect textArea(const QRect& area) const;
    void paintBadge(QPainter& painter) const;

    Role m_role;
    QColor m_tint;
    std::optional<bool> m_marked;
    std::optional<QString> m_badge;
    QString m_formerBadge;
    Content m_content = Content::Unknown;
    struct Measured {
        QString text;
        QFont font;
        int width = 0;
        QSize size;
    };
    mutable Measured m_onWidestLine;
    mutable Measured m_asLastAsked;
};

} // namespace zeugnis
