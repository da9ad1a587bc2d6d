#pragma once

#include <QObject>

#include <vector>

class QKeyEvent;
class QWidget;

namespace zeugnis {

/// Widgets that are one stop of the Tab key together. Tab comes to the one that is chosen, or else
/// to the first; the arrow keys, Home and End move the keyboard on from there and press nothing.
class FocusGroup : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    /// In the order in which the arrow keys go. The group must not outlive its members.
    void add(QWidget& member);
    /// To be called when members were shown, hidden, enabled, disabled or chosen.
    void chooseStop();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool move(const QWidget& from, const QKeyEvent& event);
    [[nodiscard]] QWidget* stop() const;

    std::vector<QWidget*> m_members;
};

} // namespace zeugnis
