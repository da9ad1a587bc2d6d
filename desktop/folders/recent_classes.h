#pragma once

#include <filesystem>
#include <vector>

namespace zeugnis::recentclasses {

/// The class folders that were opened last, the newest first. Some may be out of reach now.
std::vector<std::filesystem::path> list();

/// Puts a folder on top.
void remember(const std::filesystem::path& folder);

void forget(const std::filesystem::path& folder);

} // namespace zeugnis::recentclasses
