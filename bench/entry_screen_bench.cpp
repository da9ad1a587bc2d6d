// What a teacher waits for on the entry screen, with a full class of 33.

#include "behaviour/avsv_composition.h"
#include "behaviour/avsv_entry_screen.h"
#include "common/placeholders.h"
#include "common/screen_names.h"
#include "controls/program.h"
#include "platform/plain_machine.h"
#include "program/all_screens.h"
#include "tests/support/test_installation.h"

#include <benchmark/benchmark.h>

namespace zeugnis::test {
namespace {

class NoDialogs : public Dialogs {
  public:
    Antwort message(const Meldung& /*meldung*/) override { return Antwort::Nein; }
    std::optional<Text> input(const Text& /*title*/, const Text& /*prompt*/) override { return {}; }
};

class NoLauncher : public Launcher {
  public:
    void start(const Text& /*commandLine*/, const std::filesystem::path& /*folder*/) override {}
};

std::vector<Kind> fullClass() {
    std::vector<Kind> children;
    for (int i = 1; i <= 33; ++i)
        children.push_back({u"Hohenstein-Wiedemann " + textFromNumber(i), u"Maximilian Leopold",
                            i % 2 == 0 ? u"w" : u"m"});
    return children;
}

Zeilentabelle longLines() {
    Zeilentabelle lines;
    for (auto& category : lines)
        for (Text& line : category)
            line = u"plant <ihr/sein>e Arbeit mit großer Freude, und <sie/er> übernimmt dabei gern "
                   u"Aufgaben für andere Kinder";
    return lines;
}

const Einsetzwerte Werte{u"Maximilian Leopold", u"m", {}, {}, {}};

Text fullText(const Zeilentabelle& lines) {
    Zeilenwahl choices;
    choices.fill(5);
    return PlatzhalterErsetzen(AVSatzBauen(Werte.Vorname, Werte.Geschlecht, choices, lines), Werte,
                               TextregelnArbeitsverhalten);
}

// Goal: less than 20 µs.
void ComposeAndExpand(benchmark::State& state) {
    const Zeilentabelle lines = longLines();
    for (auto _ : state)
        benchmark::DoNotOptimize(fullText(lines));
}
BENCHMARK(ComposeAndExpand);

// The entry screen of a class whose children all have both texts.
struct FullClass {
    TestInstallation installation{fullClass()};
    NoDialogs dialogs;
    PlainClipboard clipboard;
    FixedCalendar calendar{u"15.03.2027"};
    JpegMarkPictures pictures;
    NoLauncher launcher;
    Programm programm{{dialogs, clipboard, calendar, pictures, launcher}, installation.path()};

    FullClass() {
        BildschirmeAnmelden(programm);
        GsArbeitsverhalten& opened = screen();
        const Text text = fullText(longLines());
        for (int i = 0; i < opened.Liste.Schuelerzahl; ++i)
            opened.Speicher.AV.Texte[i] = opened.Speicher.SV.Texte[i] = text;
        opened.Command4_Click();
        programm.unload(bildschirme::GsArbeitsverhalten);
    }

    GsArbeitsverhalten& screen() {
        return dynamic_cast<GsArbeitsverhalten&>(programm.load(bildschirme::GsArbeitsverhalten));
    }
};

// Goal: less than 3 ms.
void LoadAllFiles(benchmark::State& state) {
    FullClass full;
    for (auto _ : state) {
        benchmark::DoNotOptimize(full.screen().Liste.Schuelerzahl);
        full.programm.unload(bildschirme::GsArbeitsverhalten);
    }
}
BENCHMARK(LoadAllFiles)->Unit(benchmark::kMillisecond);

// Goal: less than 5 ms.
void SaveWithCopies(benchmark::State& state) {
    FullClass full;
    GsArbeitsverhalten& screen = full.screen();
    for (auto _ : state)
        screen.Command4_Click();
}
BENCHMARK(SaveWithCopies)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zeugnis::test
