#pragma once

#include "platform/text.h"

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

/// Where the safety net lies: Notsicherung, beside Daten.
namespace zeugnis::safety {

struct Paths {
    explicit Paths(const std::filesystem::path& programFolder);

    std::filesystem::path program; ///< the installation
    std::filesystem::path root;    ///< Notsicherung
    std::filesystem::path states;  ///< units under way and former states
    std::filesystem::path latest;  ///< what was last written, file by file
    std::filesystem::path typed;   ///< what no file holds yet

    /// A file of the installation by its name from there, with "/". Empty if it lies elsewhere.
    [[nodiscard]] std::optional<std::string> nameOf(const std::filesystem::path& file) const;

    /// The way back. Empty for a name that leads out of the installation.
    [[nodiscard]] std::optional<std::filesystem::path> fileOf(std::string_view name) const;
};

inline constexpr std::string_view UnderWay = ".vorgang";
inline constexpr std::string_view FormerState = ".stand";
inline constexpr std::string_view Damaged = ".beschaedigt";

/// Makes a folder of the net, and Notsicherung if need be, and has both on the disk. Gives 0 or the
/// number of an error.
int makeFolder(const Paths& paths, const std::filesystem::path& folder);

/// "Daten\Namen.Txt" for "Daten/Namen.Txt"
Text shownName(std::string_view name);

/// Files of a folder whose names end so, sorted by name. `failed` tells why it could not be
/// searched to the end; a folder that is not there has none.
std::vector<std::filesystem::path> filesEndingIn(const std::filesystem::path& folder,
                                                 std::string_view ending, std::error_code& failed);
std::vector<std::filesystem::path> filesEndingIn(const std::filesystem::path& folder,
                                                 std::string_view ending);

} // namespace zeugnis::safety
