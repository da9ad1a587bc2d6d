#pragma once

#include "platform/text.h"

#include <filesystem>
#include <functional>
#include <vector>

namespace zeugnis::safety {

/// What a start has found of units that were interrupted.
struct Recovery {
    /// German sentences on what has been taken back, for the teacher to know.
    std::vector<Text> takenBack;
    /// German sentences on what could not be: the files may be half old and half new, so the
    /// program had better not read them.
    std::vector<Text> obstacles;

    [[nodiscard]] bool complete() const { return obstacles.empty(); }
};

/// Takes back what was interrupted, so that every set of files is as before its save. To be called
/// before anything is read. Units of a program that is running are left alone.
Recovery takeBackInterrupted(const std::filesystem::path& programFolder);

/// The same for those units alone that changed no file but such as `wanted` takes: for a program
/// that starts beside another, where files may not be lockable.
Recovery takeBackInterrupted(const std::filesystem::path& programFolder,
                             const std::function<bool(std::string_view name)>& wanted);

} // namespace zeugnis::safety
