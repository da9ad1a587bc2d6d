#pragma once

#include "platform/text.h"

#include <filesystem>
#include <optional>
#include <span>

namespace zeugnis {

/// What is delivered beside the programs in `programme`: where a class begins. None if nothing
/// lies there, as with a program that was only built.
std::optional<std::filesystem::path> VorlageBei(const std::filesystem::path& programme);

/// Where the way leads from the start of the program.
struct Startweg {
    std::filesystem::path Ordner; ///< the class to open; empty: the teacher chooses
    Text Hinweis;                 ///< why there is something to choose, if that needs a sentence
};

/// "--auswahl" always lets choose, the name of a class folder or of a file in it opens that class,
/// and without either it is the working directory, as long as that can be a class or there is
/// nothing to choose from.
Startweg StartwegFinden(std::span<const Text> argumente, const std::filesystem::path& arbeitsordner,
                        bool hatVorlage);

} // namespace zeugnis
