#pragma once

#include "comfort/class_overview.h"

#include <QWidget>

class QLabel;
class QListWidget;

namespace zeugnis {

class ScreenWindow;
class WindowHost;

/// All children at the left of an entry window, with a mark for each page: nothing, a text, a text
/// with a hint. A press chooses the child as the list of pupils would. On a narrow window it folds
/// away, and the list of pupils shows who is unfinished.
class ClassRail : public QWidget {
    Q_OBJECT

  public:
    ClassRail(ScreenWindow& window, WindowHost& host, const Eingabeschirm& entry);

    /// A window must be so wide that the rail leaves the rest the room it needs.
    static constexpr int NarrowestWindow = 1300;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void follow();
    void showStates(const std::vector<Kinderstand>& states);
    void markPupils(const std::vector<Kinderstand>& states);
    void choose(int row);
    void foldIfNarrow();

    ScreenWindow& m_window;
    WindowHost& m_host;
    Eingabeschirm m_entry;
    Klassenuebersicht m_overview;
    QLabel* m_sentence;
    QListWidget* m_list;
};

} // namespace zeugnis
