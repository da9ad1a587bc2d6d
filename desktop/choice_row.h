#pragma once

#include <QAbstractButton>
#include <QPixmap>

#include <map>
#include <optional>

namespace zeugnis {

/// An option or check box as a row: mark, coloured ground and an inscription that wraps.
/// It shows a state and never changes it by itself.
class ChoiceRow : public QAbstractButton {
    Q_OBJECT

  public:
    enum class Mark { Option, Check };

    explicit ChoiceRow(Mark mark, QWidget* parent = nullptr);

    /// An ampersand in it is a character like any other.
    void setInscription(const QString& inscription);
    [[nodiscard]] const QString& inscription() const { return m_inscription; }
    [[nodiscard]] Mark mark() const { return m_mark; }
    void setTint(const QColor& tint);
    /// For a choice that something else than the mark tells; without it the mark does.
    void setChosen(bool chosen);
    [[nodiscard]] bool isChosen() const { return m_chosen.value_or(isChecked()); }
    /// It was chosen once and does not count now: a faint dot tells it.
    void setFormer(bool former);
    [[nodiscard]] bool isFormer() const { return m_isFormer; }
    /// A key that is shown in front of the inscription, such as the number of a line.
    void setKeyHint(const QString& hint);
    /// A picture in place of the inscription; the row then takes no more room than it needs.
    void setPicture(const QPixmap& picture);
    /// Less room around the inscription, for pages with many rows.
    void setCompact();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    /// A double click is one click; its second press does nothing.
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void nextCheckState() override {}
    /// Enter chooses as Space does.
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    [[nodiscard]] QRect textArea(int width, int height) const;
    [[nodiscard]] QColor outlineOf(const QColor& fill) const;
    void paintMark(QPainter& painter, const QColor& ink) const;
    [[nodiscard]] int wrapping(int width) const;
    [[nodiscard]] int textHeight(int width) const;
    void measureWords();

    Mark m_mark;
    QColor m_tint;
    std::optional<bool> m_chosen;
    bool m_isFormer = false;
    QString m_inscription;
    QString m_keyHint;
    QPixmap m_picture;
    int m_topPadding;
    int m_widestWord = 0;
    int m_hintWidth = 0;
    mutable std::map<int, int> m_textHeights; ///< by width; a layout asks for the same few often
};

} // namespace zeugnis
