#pragma once

#include "controls/screen.h"
#include "platform/machine.h"
#include "platform/working_directory.h"
#include "platform/write_watcher.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace zeugnis {

/// The running program: its screens, its working directory, the focus, and what it asks of the
/// machine.
class Programm {
  public:
    using Factory = std::function<std::unique_ptr<Screen>(Programm&)>;

    Programm(const Machine& machine, const std::filesystem::path& programFolder);
    ~Programm();
    Programm(const Programm&) = delete;
    Programm& operator=(const Programm&) = delete;

    /// Tells under which name which screen is made. To be called before the first load.
    void registerScreen(TextView name, Factory factory);

    /// Makes the screen and runs its load; nothing if it is loaded.
    Screen& load(TextView name);
    /// Loads the screen where needed, shows it and brings it to the front.
    void show(TextView name);
    void hide(TextView name);
    /// Drops the screen with all its state, without leave events; nothing if it is not loaded. It
    /// is destroyed when the running handlers have ended, so the caller may be inside it, but must
    /// not go on working on it.
    void unload(TextView name);
    /// Ends the program at once: no screen is asked and no further action reaches a control.
    void end() { m_ended = true; }

    /// Null if the screen is not loaded.
    [[nodiscard]] Screen* find(TextView name) const;
    /// The loaded screens in the order in which they were loaded.
    [[nodiscard]] const std::vector<Screen*>& screens() const { return m_order; }
    /// The screen that the program was started with, or null before.
    [[nodiscard]] Screen* startScreen() const {
        return m_order.empty() ? nullptr : m_order.front();
    }
    [[nodiscard]] bool ended() const { return m_ended; }

    [[nodiscard]] Arbeitsverzeichnis& directory() { return m_directory; }
    [[nodiscard]] const Machine& machine() const { return m_machine; }

    /// The control that has the focus, or null.
    [[nodiscard]] Control* focus() const { return m_focus; }
    /// Moves the focus; the control that had it gets its leave event. Null: to no other.
    void moveFocus(Control* control);

    /// Everything that runs handlers runs inside a task: screens that are dropped meanwhile live
    /// until the outermost task ends. What the outermost task writes is one unit.
    class Task {
      public:
        explicit Task(Programm& programm);
        ~Task();
        Task(const Task&) = delete;
        Task& operator=(const Task&) = delete;

      private:
        Programm& m_programm;
        std::optional<WriteUnit> m_unit;
    };

  private:
    Machine m_machine;
    Arbeitsverzeichnis m_directory;
    std::map<Text, Factory, std::less<>> m_factories;
    std::map<Text, std::unique_ptr<Screen>, std::less<>> m_loaded;
    std::vector<Screen*> m_order;
    std::vector<std::unique_ptr<Screen>> m_dropped;
    Control* m_focus = nullptr;
    int m_runningTasks = 0;
    bool m_ended = false;
};

} // namespace zeugnis
