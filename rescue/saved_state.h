#pragma once

#include "safety/typed.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <vector>

namespace zeugnis {

class Screen;

namespace rescue {

/// Whether the texts of one open screen stand in its files, for a window to say so. It goes by what
/// a save would write and by the files themselves, whoever has written them.
class SavedState {
  public:
    /// `screen` must outlive it.
    SavedState(const Screen& screen, std::filesystem::path programFolder,
               safety::Clock clock = safety::now);

    /// To be called after each action. Reads files only when they have been written.
    void look();

    /// A text differs from what the files hold. What a screen comes up with, and what a save has
    /// cleaned of blanks, does not.
    [[nodiscard]] bool isChanged() const { return m_changed; }
    /// When the files were last written with all of it, since the screen came up.
    [[nodiscard]] std::optional<safety::Moment> savedAt() const { return m_saved; }

  private:
    using Written = std::map<std::string, std::int64_t>;

    [[nodiscard]] Written writtenAt(const std::vector<safety::Typed>& held) const;
    [[nodiscard]] bool isInFiles(const std::vector<safety::Typed>& held) const;

    const Screen& m_screen;
    std::filesystem::path m_folder;
    safety::Clock m_clock;
    std::vector<safety::Typed> m_settled; ///< what the screen held when its files held it too
    Written m_written;
    bool m_lacking = false; ///< the files were written by others, and hold something else
    bool m_changed = false;
    std::optional<safety::Moment> m_saved;
};

} // namespace rescue
} // namespace zeugnis
