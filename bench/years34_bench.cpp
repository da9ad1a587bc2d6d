// What a teacher of years 3 and 4 waits for, with a full class of 33 and the delivered modules.

#include "bench/quiet_machine.h"
#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "tests/support/test_installation.h"
#include "years34/entry_screen.h"

#include <benchmark/benchmark.h>

namespace zeugnis::test {
namespace {

namespace fs = std::filesystem;

constexpr int Children = 33;

// The delivered installation with another class list, and all texts of all children written.
class FullClass34 {
  public:
    FullClass34() {
        fs::copy(fs::path(ZEUGNIS_SOURCE_FOLDER) / "install", m_folder.path(),
                 fs::copy_options::recursive);
        Text names;
        for (int i = 1; i <= Children; ++i)
            names += textFromNumber(i) + u",\"4c\",\"Hohenstein-Wiedemann\",\"Maximilian\",\"" +
                     (i % 2 == 0 ? u"w" : u"m") +
                     u"\",\"01.02.2017\",\"Chor\",\"Schach\",\"Kunst\",\"Theater\",\"Ort\"\r\n";
        m_folder.write(u"Daten/Namen.Txt", names);
        for (int child = 0; child < Children; ++child)
            writeAll(child);
        user::click(screen().Command1(0));
        unload();
    }

    GSAGFI& screen() {
        m_running.programm.show(bildschirme::GSAGFI);
        return dynamic_cast<GSAGFI&>(*m_running.programm.find(bildschirme::GSAGFI));
    }
    GSAGFI& screen(int child, int page) {
        user::pick(screen().Combo1, child);
        user::click(screen().Command2(page));
        return screen();
    }
    void unload() { m_running.programm.unload(bildschirme::GSAGFI); }

    /// Everything that can be chosen on all pages, from left to right.
    void writeAll(int child) {
        GSAGFI& opened = screen(child, 0);
        const auto tickAll = [](const ControlArray<CheckBox>& boxes) {
            boxes.each([](CheckBox& box) { user::click(box); });
        };
        tickAll(opened.Check1);
        user::click(opened.Option6(0));
        user::click(opened.Command2(1));
        user::click(opened.Option1(13));
        tickAll(opened.Check3);
        user::click(opened.Command2(2));
        tickAll(opened.Check2);
        user::click(opened.Option2(0));
        tickAll(opened.Check5);
        user::click(opened.Option3(0));
        user::click(opened.Option4(0));
    }

  private:
    TemporaryFolder m_folder;
    QuietProgramm m_running{m_folder.path()};
};

// Goal: less than 5 ms.
void OpenYears34(benchmark::State& state) {
    FullClass34 full;
    for (auto _ : state) {
        benchmark::DoNotOptimize(full.screen().Liste.Schuelerzahl);
        full.unload();
    }
}
BENCHMARK(OpenYears34)->Unit(benchmark::kMillisecond);

// A box among all others that are set, on each page, to the finished text. Goal: less than 100 µs.
void ChooseOnPage34(benchmark::State& state) {
    FullClass34 full;
    GSAGFI& screen = full.screen(0, 0);
    for (const int page : {0, 1, 2}) {
        user::click(screen.Command2(page));
        user::click(screen.Command1(2));
    }
    full.writeAll(0);
    CheckBox* const boxes[] = {&screen.Check1(3), &screen.Check3(3), &screen.Check5(3)};
    CheckBox& box = *boxes[state.range(0)];
    for (auto _ : state) {
        // Without this the sentence on groups would grow by a full stop each time.
        screen.Staende[0].AGSatz = screen.Option6(0).Caption;
        box.setValue(!box.value());
        benchmark::DoNotOptimize(screen.Text3.text().size());
    }
}
BENCHMARK(ChooseOnPage34)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

// Goal: less than 1 ms, with a picture from disk.
void ChangePupil34(benchmark::State& state) {
    FullClass34 full;
    GSAGFI& screen = full.screen(0, 2);
    int child = 0;
    for (auto _ : state) {
        child = (child + 1) % Children;
        user::pick(screen.Combo1, child);
    }
}
BENCHMARK(ChangePupil34)->Unit(benchmark::kMicrosecond);

// Both stores and their copies. Goal: less than 5 ms.
void SaveYears34(benchmark::State& state) {
    FullClass34 full;
    GSAGFI& screen = full.screen(1, 0);
    for (auto _ : state)
        screen.Command1_Click(0);
}
BENCHMARK(SaveYears34)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zeugnis::test
