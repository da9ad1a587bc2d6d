#pragma once

#include "platform/machine.h"

#include <deque>
#include <optional>
#include <ostream>

namespace zeugnis::driver {

/// The answers that wait for dialogs, and the lines that tell of dialogs. An answer that is needed
/// and not queued, or does not fit, is a CommandError.
class DialogScript {
  public:
    explicit DialogScript(std::ostream& out) : m_out(out) {}

    void queueAnswer(Antwort answer) { m_answers.push_back(answer); }
    void queueInput(std::optional<Text> input) { m_inputs.push_back(std::move(input)); }

    Antwort takeAnswer(Tasten buttons);
    std::optional<Text> takeInput();

    void print(const Meldung& meldung, Antwort answer);
    void printInput(const Text& title, const Text& prompt, const std::optional<Text>& answer);

  private:
    std::ostream& m_out;
    std::deque<Antwort> m_answers;
    std::deque<std::optional<Text>> m_inputs;
};

/// Answers dialogs from a script without showing any.
class ScriptedDialogs : public Dialogs {
  public:
    explicit ScriptedDialogs(DialogScript& script) : m_script(script) {}

    Antwort message(const Meldung& meldung) override;
    std::optional<Text> input(const Text& title, const Text& prompt) override;

  private:
    DialogScript& m_script;
};

/// Prints the command line and starts nothing.
class PrintingLauncher : public Launcher {
  public:
    explicit PrintingLauncher(std::ostream& out) : m_out(out) {}
    void start(const Text& commandLine, const std::filesystem::path& programFolder) override;

  private:
    std::ostream& m_out;
};

/// The answer that a word of a command stands for, if it is one.
std::optional<Antwort> answerFromName(TextView name);

} // namespace zeugnis::driver
