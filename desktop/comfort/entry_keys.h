#pragma once

#include "comfort/entry_flow.h"

#include <QKeySequence>
#include <QObject>

#include <functional>

class QLabel;

namespace zeugnis {

class ElidedLabel;
class ScreenWindow;
class WindowHost;

/// The keys of an entry window that lead through a report. Digits choose where no text is typed.
/// Belongs to its window.
class EntryKeys : public QObject {
    Q_OBJECT

  public:
    EntryKeys(ScreenWindow& window, WindowHost& host, const Eingabeschirm& entry);

    /// The faint line that tells the keys.
    [[nodiscard]] QLabel* hint() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void onKey(const QKeySequence& key, std::function<bool()> step);
    void go(const std::function<bool()>& step);
    void showPlace();
    void tell(const QString& sentence);
    void tellKeys();
    [[nodiscard]] bool mayLeaveChild() const;

    ScreenWindow& m_window;
    WindowHost& m_host;
    Eingabeschirm m_entry;
    Eingabefluss m_flow;
    ElidedLabel* m_hint;
};

} // namespace zeugnis
