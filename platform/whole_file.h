#pragma once

#include "platform/working_directory.h"

#include <string>

namespace zeugnis {

/// Whether there is such a file; a folder is none.
bool hasFile(const Arbeitsverzeichnis& directory, TextView name);

/// The bytes of a file. Fails with file-not-found, path-not-found or access-denied.
std::string readWholeFile(const Arbeitsverzeichnis& directory, TextView name);

/// Writes `bytes` over the file's content, then cuts the file to their length and has them put on
/// the disk; there is no temporary file, and emptying is never the first thing that happens. If
/// that fails the former content is put back as far as possible and a file that was new is removed
/// again; the failure, disk-full or access-denied, says which.
void writeWholeFile(const Arbeitsverzeichnis& directory, TextView name, std::string_view bytes);

/// Copies a file over another. Fails as the two operations above.
void copyWholeFile(const Arbeitsverzeichnis& directory, TextView from, TextView to);

/// Deletes the files of the working directory whose names end so, whatever the case. What cannot
/// be deleted stays, without a failure.
void deleteFilesEndingIn(const Arbeitsverzeichnis& directory, TextView ending);

} // namespace zeugnis
