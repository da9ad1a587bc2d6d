// What the safety net costs a save: the same saves without it (/0) and with it (/1). Each changes
// one text, so nothing is spared for being the same. Goal: at most three times the time.

#include "behaviour/avsv_entry_screen.h"
#include "bench/quiet_machine.h"
#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "masterdata/master_data_screen.h"
#include "safety/guard.h"
#include "tests/support/test_installation.h"

#include <benchmark/benchmark.h>

namespace zeugnis::test {
namespace {

constexpr int Saves = 200;

std::vector<Kind> fullClass() {
    std::vector<Kind> children;
    for (int i = 1; i <= SchuelerHoechstens; ++i)
        children.push_back({u"Hohenstein-Wiedemann " + textFromNumber(i), u"Maximilian Leopold",
                            i % 2 == 0 ? u"w" : u"m"});
    return children;
}

class Running {
  public:
    explicit Running(bool withNet) {
        m_folder.write(u"Daten/Sibankpfad.txt", u"\"C:\\Sibank\\Daten\"\r\n");
        m_folder.write(u"Daten/sib1undsib2.txt", u"\"C:\\Eins\",\"C:\\Zwei\"\r\n");
        m_folder.write(u"Daten/AGListe.txt", u"\"Roboter\"\r\n");
        if (withNet)
            m_running.programm.directory().watchWrites(&m_guard);
    }

    template <typename S>
    S& open(TextView name) {
        m_running.programm.show(name);
        return dynamic_cast<S&>(*m_running.programm.find(name));
    }

  private:
    TestInstallation m_folder{fullClass()};
    // Nobody saves more than once a second.
    safety::Moment m_clock = safety::now();
    safety::Guard m_guard{m_folder.path(), [this] { return m_clock += std::chrono::seconds(1); }};
    QuietProgramm m_running{m_folder.path()};
};

// Two stores of a class with full texts, and their two dated copies.
void SaveWithCopies(benchmark::State& state) {
    Running running(state.range(0) != 0);
    auto& screen = running.open<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten);
    for (int i = 0; i < screen.Liste.Schuelerzahl; ++i)
        screen.Speicher.AV.Texte[i] = screen.Speicher.SV.Texte[i] = Text(900, u'x');
    int turn = 0;
    for (auto _ : state) {
        screen.Speicher.AV.Texte[0] = textFromNumber(++turn % 1000);
        screen.Speicher.AV.Wahl[0][0] = turn % 9;
        screen.Command4.Enabled = true;
        if (!user::click(screen.Command4))
            state.SkipWithError("the save cannot be clicked");
    }
}
BENCHMARK(SaveWithCopies)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(Saves);

// The six stores and the five files of the master data.
void MasterData(benchmark::State& state) {
    Running running(state.range(0) != 0);
    auto& screen = running.open<GsBasis>(bildschirme::GsBasis);
    user::click(screen.Text1(SibankFeld));
    int turn = 0;
    for (auto _ : state) {
        screen.Schule.Schulname = screen.SibankPfad = screen.Liste.Kinder[0].Vorname =
            textFromNumber(++turn % 1000);
        screen.Command1(0).Enabled = true;
        if (!user::click(screen.Command1(0)))
            state.SkipWithError("the save cannot be clicked");
    }
}
BENCHMARK(MasterData)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(Saves);

} // namespace
} // namespace zeugnis::test
