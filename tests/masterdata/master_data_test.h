#pragma once

#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "masterdata/master_data_screen.h"
#include "tests/support/failure_of.h"
#include "tests/support/test_programm.h"

#include <algorithm>
#include <memory>

namespace zeugnis::test {

inline std::vector<Kind> classOf(int children) {
    std::vector<Kind> kinder;
    for (int i = 1; i <= children; ++i)
        kinder.push_back({u"N" + textFromNumber(i), u"V" + textFromNumber(i), i % 2 ? u"m" : u"w"});
    return kinder;
}

/// A small installation with what the master data screen reads besides, and the screen on it.
class MasterDataTest : public testing::Test {
  protected:
    /// Opens the screen of a new program on a class of `children`, with all data unlocked.
    GsBasis& unlocked(int children) {
        prepare(children);
        return unlockedAsItIs();
    }

    GsBasis& unlockedAsItIs() {
        GsBasis& screen = opened();
        machine->dialogs.answers = {Antwort::Ja};
        user::click(screen.Command5);
        return screen;
    }

    void prepare(int children) {
        installation.klassenliste(u"3a", classOf(children));
        installation.leereSpeicher(u"3a", classOf(children));
        installation.write(u"Daten/AVSVspeicher.txt", u"old");
        installation.write(u"Daten/Sibankpfad.txt", u"\"C:\\Sibank\"\r\n");
        installation.write(u"Daten/sib1undsib2.txt", u"\"A\",\"B\"\r\n");
        installation.write(u"Daten/AGListe.txt", u"\"Chor\"\r\n");
    }

    GsBasis& opened() {
        machine = std::make_unique<TestProgramm>(installation);
        return machine->open<GsBasis>(bildschirme::GsBasis);
    }

    [[nodiscard]] Text names() const { return installation.read(u"Daten/Namen.Txt"); }

    [[nodiscard]] int records(TextView file) const {
        const Text content = installation.read(u"Daten/" + Text(file));
        return static_cast<int>(std::count(content.begin(), content.end(), u'\n'));
    }

    TestInstallation installation;
    std::unique_ptr<TestProgramm> machine;
};

} // namespace zeugnis::test
