#pragma once

#include "rescue/former_states.h"

#include <QDialog>

#include <functional>

class QLabel;
class QPushButton;

namespace zeugnis {

class ComparePane;
class WrappedTree;

/// "Frühere Stände": what was before which action, and the ways back.
class FormerStatesWindow : public QDialog {
    Q_OBJECT

  public:
    /// `help` opens the help text.
    FormerStatesWindow(rescue::FormerStates& states, std::function<void()> help, QWidget* owner);

  private:
    QWidget* lists();
    QLayout* ways();
    void showStates();
    void chooseState();
    void showChosen();
    void bring(const std::function<bool()>& way, const QString& done);
    void enableWays();
    [[nodiscard]] const safety::Difference* chosen() const;
    [[nodiscard]] QString chosenPupil() const;

    rescue::FormerStates& m_states;
    std::function<void()> m_help;
    WrappedTree* m_actions;
    WrappedTree* m_differences;
    ComparePane* m_texts;
    QLabel* m_told;
    QPushButton* m_text = nullptr;
    QPushButton* m_pupil = nullptr;
    QPushButton* m_all = nullptr;
    QPushButton* m_copy = nullptr;
};

} // namespace zeugnis
