// What a teacher of years 1 and 2 waits for, with a full class of 33 and the delivered modules.

#include "bench/quiet_machine.h"
#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "tests/support/test_installation.h"
#include "years12/entry_screen.h"

#include <benchmark/benchmark.h>

namespace zeugnis::test {
namespace {

namespace fs = std::filesystem;

constexpr int Children = 33;
constexpr int Areas = jahrgang12::Bereichszahl;

// The delivered installation with another class list, and all texts of all children written.
class FullClass {
  public:
    FullClass() {
        fs::copy(fs::path(ZEUGNIS_SOURCE_FOLDER) / "install", m_folder.path(),
                 fs::copy_options::recursive);
        Text names;
        for (int i = 1; i <= Children; ++i)
            names += textFromNumber(i) + u",\"2b\",\"Hohenstein-Wiedemann\",\"Maximilian\",\"" +
                     (i % 2 == 0 ? u"w" : u"m") +
                     u"\",\"01.02.2019\",\"Chor\",\"Schach\",\"\",\"\",\"Ort\"\r\n";
        m_folder.write(u"Daten/Namen.Txt", names);
        for (int child = 0; child < Children; ++child)
            writeAll(child);
        user::click(screen().Command2);
        m_running.programm.unload(bildschirme::Kompetenzen);
    }

    Kompetenzen& screen() {
        m_running.programm.show(bildschirme::Kompetenzen);
        return dynamic_cast<Kompetenzen&>(*m_running.programm.find(bildschirme::Kompetenzen));
    }
    Kompetenzen& screen(int child, int page) {
        user::pick(screen().Combo1, child);
        user::click(screen().Command1(page));
        return screen();
    }
    void unload() { m_running.programm.unload(bildschirme::Kompetenzen); }

  private:
    void writeAll(int child) {
        for (int page = 0; page < Areas; ++page) {
            screen(child, page);
            if (!screen().Frame1(page).Enabled)
                user::click(screen().Command4);
            for (int g = 0; g < jahrgang12::Gruppenzahl; ++g)
                if (jahrgang12::gruppe(g).Seite == page)
                    user::click(screen().options(g)(jahrgang12::gruppe(g).LetzterKnopf));
        }
    }

    TemporaryFolder m_folder;
    QuietProgramm m_running{m_folder.path()};
};

// Goal: less than 5 ms.
void OpenYears12(benchmark::State& state) {
    FullClass full;
    for (auto _ : state) {
        benchmark::DoNotOptimize(full.screen().Liste.Schuelerzahl);
        full.unload();
    }
}
BENCHMARK(OpenYears12)->Unit(benchmark::kMillisecond);

// A choice among the others of its page, to the finished text. Goal: less than 100 µs.
void ChooseOnPage(benchmark::State& state) {
    FullClass full;
    const int page = static_cast<int>(state.range(0));
    Kompetenzen& screen = full.screen(1, page);
    int chosen = 0;
    while (jahrgang12::gruppe(chosen).Seite != page)
        ++chosen;
    for (int g = chosen; g < jahrgang12::Gruppenzahl && jahrgang12::gruppe(g).Seite == page; ++g) {
        screen.Option_Click(g, jahrgang12::gruppe(g).LetzterKnopf);
    }
    int button = 0;
    for (auto _ : state) {
        button = 1 - button;
        screen.options(chosen)(button).setValue(true);
        benchmark::DoNotOptimize(screen.Text1(page).text().size());
    }
}
BENCHMARK(ChooseOnPage)->DenseRange(0, Areas - 2)->Unit(benchmark::kMicrosecond);

// Goal: less than 100 µs.
void TickSubject(benchmark::State& state) {
    FullClass full;
    Kompetenzen& screen = full.screen(1, jahrgang12::SeiteBemerkungen);
    for (auto _ : state) {
        screen.Check3(3).setValue(!screen.Check3(3).value());
        benchmark::DoNotOptimize(screen.Text1(jahrgang12::SeiteBemerkungen).text().size());
    }
}
BENCHMARK(TickSubject)->Unit(benchmark::kMicrosecond);

// Both stores and their copies. Goal: less than 5 ms.
void SaveYears12(benchmark::State& state) {
    FullClass full;
    Kompetenzen& screen = full.screen(1, 0);
    for (auto _ : state)
        screen.Command2_Click();
}
BENCHMARK(SaveYears12)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zeugnis::test
