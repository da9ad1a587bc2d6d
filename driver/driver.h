#pragma once

#include "controls/program.h"
#include "driver/command_line.h"
#include "driver/driver_machine.h"
#include "platform/plain_machine.h"

#include <filesystem>
#include <istream>
#include <memory>
#include <optional>
#include <ostream>

namespace zeugnis::driver {

/// Runs the program on an installation without any window: reads commands, one a line, and prints
/// what happens, one event a line.
class Driver {
  public:
    /// `date` is today's date (dd.mm.yyyy); without one the system's is taken. A watcher of what is
    /// written must outlive the driver.
    Driver(std::ostream& out, std::filesystem::path folder, std::optional<Text> date,
           WriteWatcher* watcher = nullptr);

    /// The exit code: 0 at the end of the program or the commands, 1 after a run-time failure,
    /// 2 after a command that makes no sense.
    int run(std::istream& commands);

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
    ScriptedDialogs m_dialogs;
    PrintingLauncher m_launcher;
    PlainClipboard m_clipboard;
    std::unique_ptr<Calendar> m_calendar;
    JpegMarkPictures m_pictures;
    std::filesystem::path m_folder;
    WriteWatcher* m_watcher;
    std::unique_ptr<Programm> m_program;
    bool m_quit = false;
};

} // namespace zeugnis::driver
