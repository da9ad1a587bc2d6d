#pragma once

#include "platform/text.h"

#include <filesystem>
#include <memory>
#include <vector>

namespace zeugnis {

/// The number by which the machine knows this run of the program.
int ownProcess();

/// Whether a program with this number runs on this machine.
bool processLives(int process);

/// How this machine and the user who is logged in are called; empty or "unbekannt" if the system
/// does not say.
Text machineName();
Text userName();

/// The arguments behind the program's name, in the system's own encoding of them.
std::vector<Text> programArguments(int argc, char** argv);

/// The file of the running program.
std::filesystem::path programFile();

/// Allows another program to bring its window to the front: Windows refuses that without leave of
/// the one that the user has just clicked or started.
void letOthersComeToFront();

/// Keeps line ends in standard input and output as they are.
void useBinaryStreams();

/// A program that works for this one without a window, with all that it starts in turn. Whoever
/// drops it ends them.
class ProcessFamily {
  public:
    /// Null if the program cannot be started.
    static std::unique_ptr<ProcessFamily> start(const std::filesystem::path& program,
                                                const std::vector<Text>& arguments);
    virtual ~ProcessFamily() = default;
    ProcessFamily(const ProcessFamily&) = delete;
    ProcessFamily& operator=(const ProcessFamily&) = delete;

    /// Whether the program itself has come to its end.
    virtual bool hasEnded() = 0;

  protected:
    ProcessFamily() = default;
};

} // namespace zeugnis
