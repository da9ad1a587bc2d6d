#pragma once

#include "controls/program.h"
#include "platform/plain_machine.h"
#include "program/all_screens.h"

namespace zeugnis::test {

class NoDialogs : public Dialogs {
  public:
    Antwort message(const Meldung& /*meldung*/) override { return Antwort::Nein; }
    std::optional<Text> input(const Text& /*title*/, const Text& /*prompt*/) override { return {}; }
};

class NoLauncher : public Launcher {
  public:
    void start(const Text& /*commandLine*/, const std::filesystem::path& /*folder*/) override {}
};

/// The running program with nobody at the machine.
struct QuietProgramm {
    explicit QuietProgramm(const std::filesystem::path& folder)
        : programm({dialogs, clipboard, calendar, pictures, launcher}, folder) {
        BildschirmeAnmelden(programm);
    }

    NoDialogs dialogs;
    PlainClipboard clipboard;
    FixedCalendar calendar{u"15.03.2027"};
    JpegMarkPictures pictures;
    NoLauncher launcher;
    Programm programm;
};

} // namespace zeugnis::test
