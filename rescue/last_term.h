#pragma once

#include "platform/text.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace zeugnis {

class Control;
struct Schueler;

namespace rescue {

/// The texts of the half-year before the one that the master data tell, as they stood before they
/// were blanked: from the former states.
class LastTerm {
  public:
    /// Reads the former states, the newest first, until it has found them.
    explicit LastTerm(const std::filesystem::path& programFolder);

    [[nodiscard]] bool isKnown() const { return !m_stores.empty(); }
    /// "2a, 1. Halbjahr 2025/2026"
    [[nodiscard]] const Text& name() const { return m_name; }

    struct Section {
        std::string file;
        size_t number = 0; ///< of the text in its store, from 0
        Text heading;
        Text text;
    };
    /// The sections of a child that have a text. It is known by its name.
    [[nodiscard]] std::vector<Section> of(const Schueler& child) const;

  private:
    Text m_name;
    std::map<std::string, Text> m_stores; ///< content by name
};

/// The half-year and class of an installation: "2a, 1. Halbjahr 2025/2026".
Text termOf(const std::filesystem::path& programFolder);

/// Whether a click here leads to the question behind which all texts of the class are blanked, and
/// there are texts to lose. `atOnce`: with its Yes, not with the save.
struct Blanking {
    bool happens = false;
    bool atOnce = false;
};
Blanking blanksTexts(const Control& control, const std::filesystem::path& programFolder);

/// Keeps all data files under a name, for good. Gives 0 or the number of an error. `into` is the
/// folder itself, or that in which the class goes on.
int keepState(const std::filesystem::path& programFolder, const std::filesystem::path& into,
              const Text& name);

} // namespace rescue
} // namespace zeugnis
