#pragma once

#include "controls/program.h"
#include "desktop/busy_pointer.h"

#include <QObject>
#include <QPointer>
#include <QRect>
#include <Qt>

#include <functional>
#include <map>
#include <vector>

namespace zeugnis {

class Laufzeitfehler;
class ScreenWindow;

/// How a window was left: without its frame, and as it is when it is not maximised.
struct WindowPlace {
    QRect geometry;
    bool maximised = false;
};

/// Keeps the windows in step with the running program: every action of the user goes through
/// run(), and afterwards each shown screen has a window that shows what its controls say.
class WindowHost : public QObject {
    Q_OBJECT

  public:
    explicit WindowHost(Programm& program);
    ~WindowHost() override;

    /// Runs an action on the screens and brings the windows up to date. A run-time failure is
    /// caught here and nowhere else: it is shown, and the program ends with exit code 1.
    void run(const std::function<void()>& action);

    /// For dialogs, which come up in the middle of an action: brings the windows up to date, and
    /// the pointer rests.
    void refreshForBox();
    void refresh();

    /// The focus has come to a control's widget. Only what the user brought about counts: a window
    /// that comes to the front takes the focus away from the other screen, and a focus that the
    /// windows moved by themselves is none of the screens' business.
    void focusArrived(Control& control, Qt::FocusReason reason);

    [[nodiscard]] Programm& program() { return m_program; }
    [[nodiscard]] BusyPointer& busyPointer() { return m_busy; }

    /// The window that dialogs belong to, or null.
    [[nodiscard]] QWidget* dialogParent() const;

    /// The window of the screen is in front of all others now.
    void cameToFront(const Screen& screen);
    /// The window that is in front, but for one; null if there is none.
    [[nodiscard]] ScreenWindow* frontWindow(const QWidget* butFor = nullptr) const;
    /// Asks what each window would ask that is closed with the start page.
    [[nodiscard]] bool allMayClose() const;

    /// What stands beside the screens: each may be left out.
    struct Beside {
        /// Asked before a click or a pick by hand is delivered; false: it is not.
        std::function<bool(Control& control)> mayAct;
        /// After each action on the screens.
        std::function<void()> actionEnded;
        /// Before a window is closed although something is lost, as the teacher has agreed.
        std::function<void(const Screen& screen)> closesKnowingly;
        /// What a failure that ends the program leaves unsaved, in a few sentences.
        std::function<QString()> unsaved;
        /// Where what they remember from one run to the next is kept; empty: nowhere.
        std::filesystem::path programFolder;
        /// Opens the window of former states.
        std::function<void()> showFormerStates;
        /// Opens what is offered around the class folder, at the button that was pressed.
        std::function<void(QWidget& button)> openClassMenu;
        /// How many texts of the modules are delivered anew, and the window that shows them.
        std::function<size_t()> newModules;
        std::function<void()> showNewModules;
    };
    Beside beside;

    [[nodiscard]] bool mayAct(Control& control) {
        return m_depth > 0 || !beside.mayAct || beside.mayAct(control);
    }
    /// A window has been painted; only the first time counts.
    void painted();
    [[nodiscard]] bool hasPainted() const { return m_hasPainted; }
    /// No action is under way.
    [[nodiscard]] bool isIdle() const { return m_depth == 0; }

    /// Null if the screen has not been shown yet.
    [[nodiscard]] ScreenWindow* windowOf(const Screen* screen) const;

    /// How the screen's window was left, or null; kept as long as the program runs.
    [[nodiscard]] const WindowPlace* placed(const Text& screen) const;
    void remember(const Text& screen, const WindowPlace& place) { m_places[screen] = place; }

    /// Whether the report stands beside the input.
    bool reportBeside = false;

  signals:
    /// The first window stands on the display: what the eye does not wait for may begin.
    void firstPainted();
    /// A run-time failure is about to be shown.
    void failed(const zeugnis::Laufzeitfehler& failure);

  private:
    void openWindows();
    bool closeWindows();
    void followFocus();
    void leaveForOtherProgram(Qt::ApplicationState state);
    void reportFailure(const Laufzeitfehler& failure);

    Programm& m_program;
    BusyPointer m_busy;
    // The window of the start page owns the others.
    std::map<const Screen*, QPointer<ScreenWindow>> m_windows;
    std::map<Text, WindowPlace> m_places;
    int m_depth = 0;
    bool m_hasPainted = false;
    /// The screens whose windows are or were shown, the one in front last.
    std::vector<const Screen*> m_order;
    /// The focus as the windows have followed it.
    const Control* m_followed = nullptr;
    bool m_refreshing = false;
    bool m_failed = false;
};

} // namespace zeugnis
