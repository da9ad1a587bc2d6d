// What a teacher waits for on the master data screen, with a full class of 33.

#include "bench/quiet_machine.h"
#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "masterdata/master_data_screen.h"
#include "tests/support/test_installation.h"

#include <benchmark/benchmark.h>

namespace zeugnis::test {
namespace {

std::vector<Kind> fullClass() {
    std::vector<Kind> children;
    for (int i = 1; i <= SchuelerHoechstens; ++i)
        children.push_back({u"Hohenstein-Wiedemann " + textFromNumber(SchuelerHoechstens - i),
                            u"Maximilian Leopold", i % 2 == 0 ? u"w" : u"m"});
    return children;
}

/// The screen with everything unlocked, and a list of 25 working groups.
class UnlockedBasis {
  public:
    UnlockedBasis() {
        m_folder.write(u"Daten/Sibankpfad.txt", u"\"C:\\Sibank\\Daten\"\r\n");
        m_folder.write(u"Daten/sib1undsib2.txt", u"\"C:\\Eins\",\"C:\\Zwei\"\r\n");
        Text groups;
        for (int i = 1; i <= 25; ++i)
            groups += u"\"Roboter und Programmieren " + textFromNumber(i) + u"\"\r\n";
        m_folder.write(u"Daten/AGListe.txt", groups);
        m_running.programm.show(bildschirme::GsBasis);
        user::click(screen().Text1(SibankFeld));
        screen().SpeicherLoeschen = true;
    }

    GsBasis& screen() {
        return dynamic_cast<GsBasis&>(*m_running.programm.find(bildschirme::GsBasis));
    }

  private:
    TestInstallation m_folder{fullClass()};
    QuietProgramm m_running{m_folder.path()};
};

// All eleven files: the six stores and the five of the master data. Goal: less than 10 ms of CPU;
// the rest is the disk, which may flush each file that is written anew.
void BasisSpeichern(benchmark::State& state) {
    UnlockedBasis basis;
    for (auto _ : state)
        user::click(basis.screen().Command1(0));
}
BENCHMARK(BasisSpeichern)->Unit(benchmark::kMillisecond);

void SchuelerSortieren(benchmark::State& state) {
    UnlockedBasis basis;
    for (auto _ : state)
        basis.screen().Command6_Click();
}
BENCHMARK(SchuelerSortieren)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zeugnis::test
