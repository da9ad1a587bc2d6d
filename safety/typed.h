#pragma once

#include "safety/moment.h"
#include "safety/paths.h"

#include <chrono>
#include <map>

namespace zeugnis::safety {

inline constexpr std::chrono::days TypedKept{30};

/// Something that was typed, chosen or locked, told by the field of the file that it would go to.
struct Typed {
    std::string file;  ///< "Daten/AVSVspeicher.txt"
    Text pupil;        ///< "Ahlers, Tom"; empty in files without pupils
    size_t number = 0; ///< the record from 1, in files without pupils
    size_t field = 0;  ///< from 0, the running number included
    Text value;        ///< the text, or the number in digits

    bool operator==(const Typed&) const = default;
};

/// Those that the files do not hold, in their order.
std::vector<Typed> notInFiles(const std::filesystem::path& programFolder,
                              const std::vector<Typed>& all);

/// What an earlier run has left.
struct Offer {
    std::string run;
    Moment when{}; ///< set down for the last time
    Text screen;
    Typed typed;
    Text fieldName; ///< "Arbeitsverhalten"
    Text inFile;    ///< what the file holds there now
};

/// Keeps what no file holds yet: one file for each run, replaced as a whole and on the disk
/// when the call returns. Everything here works on Notsicherung only.
class TypedStore {
  public:
    explicit TypedStore(const std::filesystem::path& programFolder, Clock clock = now);

    /// All that a screen holds and no file does; an empty list takes it out: it has been saved.
    /// Gives 0 or the number of an error.
    int set(const Text& screen, const std::vector<Typed>& all);

    /// The teacher has said No to saving it: it goes to the former states, under `action`, as far
    /// as the files have a place for it, and is not offered again.
    int discard(const Text& screen, const Text& action);

    /// What earlier runs have left and the files do not hold, the newest run first. Gives
    /// up what is older than 30 days; a file that is damaged is set aside.
    std::vector<Offer> offers();

    /// It was taken or refused.
    int settle(const Offer& offer);

  private:
    using Screens = std::map<Text, std::vector<Typed>>;

    [[nodiscard]] std::filesystem::path fileOf(const std::string& run) const;
    [[nodiscard]] int write(const std::string& run, Moment when, const Screens& screens) const;

    Paths m_paths;
    Clock m_clock;
    std::string m_run;
    Screens m_screens;
};

} // namespace zeugnis::safety
