#pragma once

#include "comfort/entry_access.h"

#include <QTimer>
#include <QWidget>

#include <memory>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QShortcut;

namespace zeugnis {

class ClassRail;
class ReportView;
class ScreenWindow;
class WindowHost;

namespace dokumente {
class Zeugnisblatt;
} // namespace dokumente

/// The whole report of the child beside an entry window, as it will be printed, with the texts that
/// stand there now. F9 opens and closes it. Where the window is too narrow it folds away, and F9
/// opens it in a window of its own.
class ReportPane : public QWidget {
    Q_OBJECT

  public:
    /// Stands at the end of `row`; the rail gives way where there is no room for both.
    ReportPane(ScreenWindow& window, WindowHost& host, const Eingabeschirm& entry, QHBoxLayout& row,
               ClassRail& rail);
    ~ReportPane() override;

    /// A button for those who do not use keys; it belongs to the window.
    [[nodiscard]] QPushButton* opener() const { return m_opener; }

    /// So long after a change the page is laid out anew, in milliseconds.
    static constexpr int Pause = 40;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    /// What is on show: child, page of the screen, texts.
    struct Shown {
        int child = -1;
        int page = -1;
        std::vector<Text> texts;
        bool operator==(const Shown&) const = default;
    };

    QWidget* head();
    void toggle();
    void open();
    void shut();
    /// Beside the input if there is room. False if there is none.
    bool dock();
    void fold();
    void floatFree();
    void follow();
    void readAnew();
    void layOut();
    void layOutTexts();
    void lookUp(int page);
    void tellFit();

    ScreenWindow& m_window;
    WindowHost& m_host;
    Eingabeschirm m_entry;
    QHBoxLayout& m_row;
    ClassRail& m_rail;
    QLabel* m_fit;
    ReportView* m_view;
    QPushButton* m_opener;
    QShortcut* m_ownKeys; ///< while it is a window
    QTimer m_timer;
    std::unique_ptr<dokumente::Zeugnisblatt> m_sheet; ///< null if the files cannot be read
    bool m_isStale = true;                            ///< the files are to be read again
    Shown m_shown;
};

} // namespace zeugnis
