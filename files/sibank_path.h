#pragma once

#include "platform/working_directory.h"

#include <array>

namespace zeugnis {

/// The path to the data of the school administration program, kept for the document macros only.
/// All three work in the working directory.
Text SibankpfadLesen(const Arbeitsverzeichnis& verzeichnis);
void SibankpfadSchreiben(const Arbeitsverzeichnis& verzeichnis, const Text& pfad);

/// The two paths that come with the installation. Fails with end-of-file if there are fewer.
std::array<Text, 2> StandardpfadeLesen(const Arbeitsverzeichnis& verzeichnis);

} // namespace zeugnis
