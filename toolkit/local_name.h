#pragma once

#include <QString>

#include <filesystem>

namespace zeugnis {

/// The name under which the programs of this user find each other because of a file or folder;
/// `purpose` (ASCII) tells what for, so that no two servers share a name.
QString localName(const char* purpose, const std::filesystem::path& about);

} // namespace zeugnis
