#pragma once

#include "comfort/entry_access.h"
#include "rescue/last_term.h"

#include <QWidget>

class QLabel;
class QTextEdit;

namespace zeugnis {

class ScreenWindow;
class WindowHost;

/// The texts of the child on display from the last half-year, beside the input, to read and to copy
/// from. It follows the child and the page of its entry window, and closes with it.
class LastTermWindow : public QWidget {
    Q_OBJECT

  public:
    LastTermWindow(ScreenWindow& window, WindowHost& host, const Eingabeschirm& entry);

    /// Opens it, or closes it if it is open.
    void toggle();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void follow();
    [[nodiscard]] bool isOfPage(const rescue::LastTerm::Section& section) const;

    ScreenWindow& m_window;
    WindowHost& m_host;
    Eingabeschirm m_entry;
    std::optional<rescue::LastTerm> m_term;
    QLabel* m_head;
    QTextEdit* m_text;
};

} // namespace zeugnis
