#pragma once

#include "controls/program.h"
#include "driver/command_line.h"
#include "driver/driver_machine.h"
#include "driver/hand.h"
#include "platform/plain_machine.h"

#include <filesystem>
#include <istream>
#include <memory>
#include <optional>
#include <ostream>

namespace zeugnis::driver {

/// Where the program runs: the installation's folder and today's date (dd.mm.yyyy), without one the
/// system's.
struct Surroundings {
    std::filesystem::path folder;
    std::optional<Text> date;
    WriteWatcher* watcher = nullptr; ///< of what is written; must outlive the driver
};

/// What a program that drives takes: FOLDER [--date dd.mm.yyyy]. Nothing if it is something else.
std::optional<Surroundings> surroundingsFrom(const std::vector<Text>& arguments);

/// Runs the program on an installation: reads commands, one a line, lets a hand carry them out, and
/// prints what happens, one event a line.
class Driver {
  public:
    /// The hand takes its answers from `script`; both outlive the driver and print to `out`.
    Driver(std::ostream& out, const Surroundings& surroundings, DialogScript& script, Hand& hand);
    ~Driver();
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;

    /// The exit code: 0 at the end of the program or the commands, 1 after a run-time failure,
    /// 2 after a command that makes no sense.
    int run(std::istream& commands);

    /// Carries out one command line. An exit code if that was the last one.
    std::optional<int> step(const std::string& line);

    /// The running program, or null before its start.
    [[nodiscard]] const Programm* running() const { return m_program.get(); }

  private:
    using Words = std::vector<Word>;
    using Handler = void (Driver::*)(const Words&);
    struct Command;
    static const std::vector<Command>& commands();

    void execute(const Words& words);

    void start(const Words& words);
    void click(const Words& words);
    void doubleClick(const Words& words);
    void select(const Words& words);
    void focus(const Words& words);
    void blur(const Words& words);
    void caret(const Words& words);
    void type(const Words& words);
    void key(const Words& words);
    void paste(const Words& words);
    void setText(const Words& words);
    void tick(const Words& words);
    void close(const Words& words);
    void answer(const Words& words);
    void input(const Words& words);
    void clipboard(const Words& words);
    void get(const Words& words);
    void dump(const Words& words);
    void screens(const Words& words);
    void quit(const Words& words);

    Programm& program();
    Screen& screen(TextView name);
    Control& control(const Word& word);
    template <typename T>
    T& controlAs(const Word& word, const char* kind);
    void printProperty(const Control& control, const std::string& property);
    void reached(bool reached, const Control& control);

    std::ostream& m_out;
    DialogScript& m_script;
    Hand& m_hand;
    PrintingLauncher m_launcher;
    std::unique_ptr<Calendar> m_calendar;
    JpegMarkPictures m_pictures;
    std::filesystem::path m_folder;
    WriteWatcher* m_watcher;
    std::unique_ptr<Programm> m_program;
    bool m_quit = false;
};

} // namespace zeugnis::driver
