#pragma once

#include "desktop/rescue/damage_box.h"
#include "desktop/rescue/termination.h"
#include "rescue/former_states.h"
#include "rescue/typed_keeper.h"
#include "safety/folder_lock.h"

#include <QObject>
#include <QTimer>

namespace zeugnis {

class Control;
class DesktopDialogs;
class WindowHost;

/// Ties the net below the files to the windows: what is typed is set down, damage is asked about
/// before a routine reads it, and what no teacher could know is told before it happens.
class Net : public QObject {
    Q_OBJECT

  public:
    Net(WindowHost& host, DesktopDialogs& dialogs, safety::Guard& guard,
        const std::filesystem::path& programFolder);

    /// Shows others that the folder is open, as long as the program runs.
    void keepFolder(safety::FolderLock& lock);
    /// What the start page reads, before it does.
    void examineStart();
    /// When the start page stands: damage in the other files, and what was typed and not saved.
    void tellAtStart();

  private:
    void examine();
    void offerTyped();
    bool mayAct(Control& control);
    bool mayWrite(Control& control);
    bool mayAddPupil(const Control& control);
    void makeFolders() const;
    void showHelp();
    void showFormerStates();

    /// So that with the time of writing it is less than two seconds.
    static constexpr int Pause = 1000;

    WindowHost& m_host;
    std::filesystem::path m_folder;
    rescue::TypedKeeper m_keeper;
    rescue::FormerStates m_states;
    DamageBox m_damage;
    QTimer m_timer;
    QTimer m_beat;
    Termination m_termination;
};

} // namespace zeugnis
