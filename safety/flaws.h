#pragma once

#include "safety/damage.h"

namespace zeugnis::safety {

/// What the class list says, as far as other files must agree with it.
struct ClassSize {
    Text year;                ///< first character of the class
    std::vector<Text> pupils; ///< "Ahlers, Tom"
};

struct Flaw {
    Damage kind;
    size_t record = 0; ///< from 1; 0: the whole file
    Text pupil{};
    Text field{};
    size_t records = 0; ///< that there are
    bool mark = false;  ///< Encoding: it begins with a byte order mark
};

/// The first thing that is wrong with a content by itself. Nothing for files of no known form.
std::optional<Flaw> flawOf(const std::string& name, const std::string& content,
                           const ClassSize& size);

ClassSize classSizeOf(const std::string& names);

/// The content in Windows-1252 if it is in UTF-8.
std::optional<std::string> fromUtf8(std::string_view content);

/// A finding's two sentences.
void describe(Finding& finding, const Flaw& flaw, size_t pupils);

} // namespace zeugnis::safety
