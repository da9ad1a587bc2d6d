#pragma once

#include "comfort/choice_memory.h"

#include <QObject>
#include <QTimer>

class QPushButton;

namespace zeugnis {

class ScreenWindow;
class WindowHost;

/// Shows on an entry window which lines its locked text was made of, by faint dots, and clicks them
/// again after a reset: F7, or the link that comes up. Belongs to its window.
class ChoiceKeeper : public QObject {
    Q_OBJECT

  public:
    ChoiceKeeper(ScreenWindow& window, WindowHost& host, const Eingabeschirm& entry);
    ~ChoiceKeeper() override;

    /// Visible as long as there is something to repeat.
    [[nodiscard]] QPushButton* link() const { return m_link; }

  private:
    void follow();
    void repeat();
    void setDown();

    static constexpr int Pause = 1000; // milliseconds

    ScreenWindow& m_window;
    WindowHost& m_host;
    Eingabeschirm m_entry;
    Auswahlgedaechtnis m_memory;
    Text m_screenName;
    std::filesystem::path m_keptIn; ///< the program folder; empty: nowhere
    std::vector<safety::Typed> m_setDown;
    QTimer m_timer;
    QPushButton* m_link;
};

} // namespace zeugnis
