// Strikes every save of the program with every fault at every call that touches the installation,
// starts again, and looks whether the files are those from before or those from after the save.
//
//   zeugnis-faults [STEP [STEP BEHIND A SECOND FAULT]]
//
// takes every STEP-th call only, and every so many-th pair of a kill and a fault of the recovery
// (0: none). Prints a table and ends with 1 if anything was mixed or lost.

#include "safety/guard.h"
#include "safety/paths.h"
#include "safety/recovery.h"
#include "tests/safety/faults/fault_calls.h"
#include "tests/safety/faults/saves.h"
#include "tests/support/model_driver.h"
#include "tests/support/test_installation.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace zeugnis::test::faults {
namespace {
namespace fs = std::filesystem;

using Files = std::map<fs::path, std::string>;

constexpr int Incomplete = 3;
constexpr int ToldAsFailed = 4;
constexpr int Done = 0;

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream bytes;
    bytes << stream.rdbuf();
    return bytes.str();
}

bool isOfTheNet(const fs::path& relative) { return *relative.begin() == "Notsicherung"; }

Files filesOf(const fs::path& folder) {
    Files files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const fs::path relative = entry.path().lexically_relative(folder);
        if (entry.is_regular_file() && !isOfTheNet(relative))
            files[relative] = contentOf(entry.path());
    }
    return files;
}

struct Counts {
    int calls = 0;
    int runs = 0;
    int asBefore = 0;
    int asAfter = 0;
    int mixed = 0;
    int lost = 0; ///< told as saved, but as before
    int twice = 0;
    int twiceMixed = 0;

    void operator+=(const Counts& other) {
        calls += other.calls;
        runs += other.runs;
        asBefore += other.asBefore;
        asAfter += other.asAfter;
        mixed += other.mixed;
        lost += other.lost;
        twice += other.twice;
        twiceMixed += other.twiceMixed;
    }
    [[nodiscard]] bool good() const { return mixed + lost + twiceMixed == 0 && asAfter > 0; }
};

class Trial {
  public:
    explicit Trial(const Save& save)
        : m_save(save),
          m_guard((prepare(), m_folder.path()),
                  [] { return *safety::momentFrom("2027-03-15 08:00:00"); }),
          m_driver(m_out, m_folder.path(), &m_guard) {
        m_ready = m_driver.play(m_save.before) == 0;
        fs::remove_all(net());
        m_before = filesOf(m_folder.path());
    }

    Counts run(int step, int stepTwice) {
        Counts counts;
        counts.calls = callsOf([&] { return play(); });
        m_after = filesOf(m_folder.path());
        if (!m_ready || m_after == m_before) {
            std::cerr << m_save.name << ": nothing is written\n" << m_out.str();
            return counts;
        }
        for (int kind = 0; kind < Kinds; ++kind)
            for (int at = 1 + kind % step; at <= counts.calls; at += step)
                strikeSave(static_cast<Kind>(kind), at, counts);
        // The power fails when the save is told as done.
        for (const Kind kind : {Kind::PowerCut, Kind::TornCut})
            strikeSave(kind, 0, counts);
        if (stepTwice > 0)
            strikeTwice(counts, stepTwice);
        return counts;
    }

  private:
    [[nodiscard]] fs::path net() const { return m_folder.path() / "Notsicherung"; }

    void prepare() const {
        const fs::path fixtures = fs::path(ZEUGNIS_SOURCE_FOLDER) / "tests/fixtures";
        fs::copy(fixtures / m_save.installation, m_folder.path(), fs::copy_options::recursive);
        const fs::path data = m_folder.path() / "Daten";
        fs::create_directories(data / "Standard");
        for (const fs::path module : m_save.standards)
            if (fs::exists(data / module))
                fs::copy(data / module,
                         data / "Standard" /
                             (module.stem().string() + "Standard" + module.extension().string()));
        // A copy of an earlier day, for what deletes copies.
        std::ofstream(data / "Sicherheit" / "AVSVspeicher01.03.2027.txt") << "1,\"3a\"\r\n";
    }

    void reset() const {
        const fs::path folder = m_folder.path();
        fs::remove_all(net());
        const Files held = filesOf(folder);
        for (const auto& [name, content] : held)
            if (!m_before.contains(name))
                fs::remove(folder / name);
        for (const auto& [name, content] : m_before)
            if (const auto found = held.find(name); found == held.end() || found->second != content)
                std::ofstream(folder / name, std::ios::binary) << content;
    }

    // Runs in a process of its own. The exit code, or -1 if it was killed.
    template <typename Work>
    int apart(Work work) const {
        const pid_t child = fork();
        if (child == 0)
            _exit(work());
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    int play() { return m_driver.play(m_save.save); }

    template <typename Work>
    int callsOf(Work work) const {
        int pipeEnds[2]; // NOLINT(*-c-arrays)
        if (pipe(pipeEnds) != 0)
            return 0;
        apart([&] {
            arm(m_folder.path(), Kind::Eio, 0);
            work();
            const int count = disarm();
            return ::write(pipeEnds[1], &count, sizeof count) > 0 ? Done : 1;
        });
        ::close(pipeEnds[1]);
        int count = 0;
        if (::read(pipeEnds[0], &count, sizeof count) <= 0)
            count = 0;
        ::close(pipeEnds[0]);
        return count;
    }

    int playStruck(Kind kind, int at) {
        return apart([&] {
            bool kept = true;
            m_guard.onUnitEnd = [&](safety::Guard::Outcome outcome) {
                kept = outcome == safety::Guard::Outcome::Kept;
            };
            arm(m_folder.path(), kind, at);
            const int code = play();
            if (at == 0)
                cutPower(kind == Kind::TornCut);
            disarm();
            return code == Done && !kept ? ToldAsFailed : code;
        });
    }

    int startStruck(Kind kind, int at) const {
        return apart([&] {
            arm(m_folder.path(), kind, at);
            const bool complete = safety::takeBackInterrupted(m_folder.path()).complete();
            disarm();
            return complete ? Done : Incomplete;
        });
    }

    bool startCleanly() const {
        return startStruck(Kind::Eio, 0) == Done &&
               safety::filesEndingIn(net() / "Staende", safety::UnderWay).empty();
    }

    void strikeSave(Kind kind, int at, Counts& counts) {
        reset();
        const int code = playStruck(kind, at);
        const bool clean = startCleanly();
        const Files held = filesOf(m_folder.path());
        const bool toldAsSaved = code == Done || (code == -1 && at == 0);
        ++counts.runs;
        if (clean && isAsAfter(kind, held))
            ++counts.asAfter;
        else if (clean && held == m_before)
            ++(toldAsSaved ? counts.lost : counts.asBefore);
        else
            ++counts.mixed;
        if (!clean || (!isAsAfter(kind, held) && (held != m_before || toldAsSaved)))
            report(kind, at, held);
    }

    // A dated copy that cannot be deleted stays, and the routine goes on.
    [[nodiscard]] bool isAsAfter(Kind kind, const Files& held) const {
        Files expected = m_after;
        if (!endsProcess(kind))
            for (const auto& [name, content] : m_before)
                if (const auto found = held.find(name);
                    name.parent_path().filename() == "Sicherheit" && found != held.end() &&
                    found->second == content)
                    expected.try_emplace(name, content);
        return held == expected;
    }

    void report(Kind kind, int at, const Files& held) const {
        std::cerr << m_save.name << ": " << nameOf(kind) << " at call " << at << ":";
        for (const auto& [name, content] : m_after) {
            const auto found = held.find(name);
            if (found == held.end())
                std::cerr << " missing " << name;
            else if (const auto former = m_before.find(name);
                     former == m_before.end() || former->second != content)
                std::cerr << (found->second == content ? " new "
                              : former != m_before.end() && found->second == former->second
                                  ? " old "
                                  : " neither ")
                          << name;
        }
        for (const auto& [name, content] : held)
            if (!m_after.contains(name))
                std::cerr << " left " << name;
        std::cerr << '\n';
    }

    // The second fault strikes the recovery, the third start is left alone.
    void strikeTwice(Counts& counts, int step) {
        int turn = 0;
        for (const Kind first : {Kind::Kill, Kind::TornKill, Kind::TornCut})
            for (int at = 1; at <= counts.calls; ++at) {
                if (++turn % step != 0)
                    continue;
                reset();
                playStruck(first, at);
                const Files left = allFiles();
                const int calls = callsOf([&] {
                    return safety::takeBackInterrupted(m_folder.path()).complete() ? 0 : 1;
                });
                for (int second = 0; second < Kinds; ++second)
                    for (int again = 1; again <= calls; ++again) {
                        putBack(left);
                        startStruck(static_cast<Kind>(second), again);
                        const bool clean = startCleanly();
                        const Files held = filesOf(m_folder.path());
                        ++counts.twice;
                        if (!clean || (held != m_before && held != m_after)) {
                            ++counts.twiceMixed;
                            std::cerr << nameOf(first) << " at call " << at << ", then ";
                            report(static_cast<Kind>(second), again, held);
                        }
                    }
            }
    }

    [[nodiscard]] Files allFiles() const {
        Files files;
        for (const auto& entry : fs::recursive_directory_iterator(m_folder.path()))
            if (entry.is_regular_file())
                files[entry.path().lexically_relative(m_folder.path())] = contentOf(entry.path());
        return files;
    }

    void putBack(const Files& files) const {
        const Files held = allFiles();
        for (const auto& [name, content] : held)
            if (!files.contains(name))
                fs::remove(m_folder.path() / name);
        for (const auto& [name, content] : files)
            if (const auto found = held.find(name); found == held.end() || found->second != content)
                std::ofstream(m_folder.path() / name, std::ios::binary) << content;
    }

    TemporaryFolder m_folder;
    const Save& m_save;
    std::ostringstream m_out;
    safety::Guard m_guard;
    ModelDriver m_driver;
    bool m_ready = false;
    Files m_before;
    Files m_after;
};

void printRow(const char* name, const Counts& counts) {
    std::printf("| %s | %d | %d | %d | %d | %d | %d | %d | %d |\n", name, counts.calls, counts.runs,
                counts.asBefore, counts.asAfter, counts.mixed, counts.lost, counts.twice,
                counts.twiceMixed);
    std::fflush(stdout);
}

} // namespace
} // namespace zeugnis::test::faults

int main(int argc, char** argv) {
    using namespace zeugnis::test::faults;
    const int step = argc > 1 ? std::atoi(argv[1]) : 1;      // NOLINT(cert-err34-c)
    const int stepTwice = argc > 2 ? std::atoi(argv[2]) : 1; // NOLINT(cert-err34-c)
    std::puts(
        "| Save | calls | faults | as before | as after | mixed | lost | two faults | of them "
        "mixed |\n|---|---|---|---|---|---|---|---|---|");
    Counts total;
    bool good = true;
    for (const Save& save : allSaves()) {
        const Counts counts = Trial(save).run(std::max(step, 1), stepTwice);
        printRow(save.name, counts);
        good = good && counts.good();
        total += counts;
    }
    printRow("all", total);
    return good ? 0 : 1;
}
