#pragma once

#include "platform/machine.h"

#include <deque>
#include <optional>
#include <ostream>

namespace zeugnis::driver {

/// Answers dialogs from a queue and prints what came up. Throws CommandError if an answer is
/// needed and none that fits is queued.
class ScriptedDialogs : public Dialogs {
  public:
    explicit ScriptedDialogs(std::ostream& out) : m_out(out) {}

    void queueAnswer(Antwort answer) { m_answers.push_back(answer); }
    void queueInput(std::optional<Text> input) { m_inputs.push_back(std::move(input)); }

    Antwort message(const Meldung& meldung) override;
    std::optional<Text> input(const Text& title, const Text& prompt) override;

  private:
    Antwort takeAnswer(Tasten buttons);

    std::ostream& m_out;
    std::deque<Antwort> m_answers;
    std::deque<std::optional<Text>> m_inputs;
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
