#pragma once

#include "controls/program.h"
#include "platform/plain_machine.h"
#include "program/all_screens.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

#include <deque>
#include <vector>

namespace zeugnis::test {

/// Keeps what came up and answers from queues. A question without a queued answer is a failure
/// of the test.
class RecordingDialogs : public Dialogs {
  public:
    Antwort message(const Meldung& meldung) override {
        shown.push_back(meldung);
        if (meldung.tasten == Tasten::Ok)
            return Antwort::Ok;
        if (answers.empty()) {
            ADD_FAILURE() << "no answer for: " << utf8FromText(meldung.text);
            return Antwort::Nein;
        }
        const Antwort answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::optional<Text> input(const Text&, const Text&) override {
        if (inputs.empty()) {
            ADD_FAILURE() << "no input is queued";
            return std::nullopt;
        }
        std::optional<Text> answer = inputs.front();
        inputs.pop_front();
        return answer;
    }

    std::vector<Meldung> shown;
    std::deque<Antwort> answers;
    std::deque<std::optional<Text>> inputs;
};

class RecordingLauncher : public Launcher {
  public:
    void start(const Text& commandLine, const std::filesystem::path& programFolder) override {
        started.push_back(commandLine);
        folders.push_back(programFolder);
    }

    std::vector<Text> started;
    std::vector<std::filesystem::path> folders;
};

/// A running program with doubles for the machine. Today is 15.03.2027.
struct EmptyProgramm {
    explicit EmptyProgramm(const std::filesystem::path& folder)
        : programm({dialogs, clipboard, calendar, pictures, launcher}, folder) {}

    RecordingDialogs dialogs;
    PlainClipboard clipboard;
    FixedCalendar calendar{u"15.03.2027"};
    JpegMarkPictures pictures;
    RecordingLauncher launcher;
    Programm programm;
};

/// The same with all screens of the program.
struct TestProgramm : EmptyProgramm {
    explicit TestProgramm(const TemporaryFolder& installation)
        : EmptyProgramm(installation.path()) {
        BildschirmeAnmelden(programm);
    }

    template <typename S>
    S& open(TextView screen) {
        programm.show(screen);
        return dynamic_cast<S&>(*programm.find(screen));
    }
};

} // namespace zeugnis::test
