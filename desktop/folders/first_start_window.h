#pragma once

#include "desktop/folders/take_class.h"

#include <QDialog>

#include <optional>

class QBoxLayout;
class QLabel;
class QListWidget;
class QPushButton;

namespace zeugnis {

/// The small window in front of a class: one that was open before, another folder, a new class, the
/// sample class, one from a stick. It is accepted once a class is taken.
class FirstStartWindow : public QDialog {
    Q_OBJECT

  public:
    /// Without a template there is nothing that a class could be made of. `note` tells why the
    /// window has come.
    FirstStartWindow(std::optional<std::filesystem::path> delivered, const QString& note);

    /// The class, once accepted.
    [[nodiscard]] TakenClass takeAway() { return std::move(m_taken); }

  private:
    QWidget* recent();
    QBoxLayout* otherWays();
    QBoxLayout* lastRow();
    void showRecent();
    void openChosen();
    void chooseFolder();
    void newClass();
    void openSample();
    void takeAlong();
    void openClass(const std::filesystem::path& folder);
    void tell(const QString& sentence);

    std::optional<std::filesystem::path> m_delivered;
    TakenClass m_taken;
    QListWidget* m_recent;
    QLabel* m_welcome;
    QPushButton* m_open;
    QPushButton* m_new;
    QLabel* m_told;
};

} // namespace zeugnis
