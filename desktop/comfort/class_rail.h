#pragma once

#include "comfort/class_overview.h"

#include <QWidget>

class QLabel;
class QListWidget;
class QMenu;
class QPoint;
class QPushButton;

namespace zeugnis {

class ScreenWindow;
class TextHints;
class WindowHost;

/// All children at the left of an entry window, with a mark for each page: nothing, a text, a text
/// with a hint. A press chooses the child as the list of pupils would. On a narrow window it folds
/// away, and the list of pupils shows who is unfinished. The context menu of a child holds its
/// hints; each leads to its text, or shows both of twins.
class ClassRail : public QWidget {
    Q_OBJECT

  public:
    ClassRail(ScreenWindow& window, WindowHost& host, const Eingabeschirm& entry);

    /// Tells how many hints there are for the child on display, and opens them; F3 does it, too.
    [[nodiscard]] QWidget* hintButton() const;

    /// A window must be so wide that the rail leaves the rest the room it needs.
    static constexpr int NarrowestWindow = 1300;

    /// Folds away although the window is wide enough, for something that needs the room.
    void giveWay(bool away);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void follow();
    void showStates(const std::vector<Kinderstand>& states);
    void markPupils(const std::vector<Kinderstand>& states);
    void choose(int row);
    void foldIfNarrow();
    void showMenu(const QPoint& place);
    void showHintCount();
    void openHints();
    void addHints(QMenu& menu, int child);
    void lead(int child, int page);
    void showTwins(int page, int child, int other);

    ScreenWindow& m_window;
    WindowHost& m_host;
    Eingabeschirm m_entry;
    TextHints* m_hints;
    Klassenuebersicht m_overview;
    std::vector<Kinderstand> m_states;
    QLabel* m_sentence;
    QPushButton* m_hintButton;
    QListWidget* m_list;
    bool m_givesWay = false;
};

} // namespace zeugnis
