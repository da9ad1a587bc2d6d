#pragma once

#include "safety/bring_back.h"
#include "safety/differences.h"
#include "safety/states.h"

namespace zeugnis {

class Programm;

namespace rescue {

/// What the window of former states shows and does: the actions, newest first; how everything was
/// right before the chosen one, beside how it is now; and the ways back.
class FormerStates {
  public:
    FormerStates(Programm& programm, safety::Guard& guard,
                 const std::filesystem::path& programFolder);

    /// Anew from the disk; nothing is chosen.
    void read();

    [[nodiscard]] const std::vector<safety::State>& states() const { return m_states; }
    void choose(size_t state);

    /// Of the chosen state, child by child, then what belongs to no child. Work files, dated
    /// copies, and the locks and choices that come with a text are left out.
    [[nodiscard]] const std::vector<safety::Difference>& differences() const {
        return m_differences;
    }

    /// German: why nothing can be brought back now; empty if it can.
    [[nodiscard]] Text obstacle() const;
    /// Whether this one can come back by itself; a whole record cannot.
    [[nodiscard]] static bool canComeAlone(const safety::Difference& difference);

    /// False if the files have changed meanwhile, or there is nothing to bring back. What has come
    /// back can be taken back in turn: it is a state of its own. Afterwards nothing is chosen.
    bool bringBackText(size_t difference);
    bool bringBackPupil(const Text& pupil);
    bool bringBackAll();

  private:
    template <typename Way>
    bool bring(Way way);

    Programm& m_programm;
    safety::Guard& m_guard;
    std::filesystem::path m_folder;
    std::vector<safety::State> m_states;
    std::vector<safety::Former> m_formers; ///< of the chosen state
    std::vector<safety::Difference> m_differences;
};

/// "Arbeitsverhalten von Ahlers, Tom"; for a whole record what kind of entry it is.
Text headingOf(const safety::Difference& difference);

} // namespace rescue
} // namespace zeugnis
