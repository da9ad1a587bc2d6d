#pragma once

#include "documents/content/class_summary.h"
#include "shell/start_page.h"

#include <QWidget>

#include <array>

class QPushButton;

namespace zeugnis {

class CheckThread;
class FlowRow;
class ScreenWindow;
class WindowHost;

/// The class in a quiet line on the start page: how many children, who is unfinished, what was
/// noticed, whose grades are missing. It is read in the background each time the page comes to the
/// front. Each part leads to the first child concerned, by the keys that a hand would press.
class ClassSummaryLine : public QWidget {
    Q_OBJECT

  public:
    ClassSummaryLine(GsStart& screen, ScreenWindow& window, WindowHost& host);

  signals:
    /// All of it is there, spelling included.
    void complete();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void read();
    void show(const dokumente::Klassenbild& picture);
    void showMasterData();
    void showText(const std::optional<dokumente::Fundort>& place);

    GsStart& m_screen;
    ScreenWindow& m_window;
    WindowHost& m_host;
    CheckThread& m_thread;
    dokumente::Klassenbild m_picture;
    bool m_isKnown = false;
    enum Part { Children, Texts, Hints, Grades };
    std::array<QPushButton*, 4> m_parts{};
};

} // namespace zeugnis
