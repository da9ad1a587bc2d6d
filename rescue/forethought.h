#pragma once

#include "platform/text.h"

#include <string>
#include <vector>

namespace zeugnis {

class Control;
class Screen;

/// What the windows look at before the hand's action is delivered, so that no routine runs into
/// what a teacher could not have known.
namespace rescue {

/// Whether an action on this control may write what its screen holds.
bool mayWrite(const Control& control);

/// Whether a click here makes a program read data files: a screen opens, or a document.
bool opens(const Control& control);

/// Whether the start page reads this data file when it comes; `file` as findings name it.
bool isReadAtStart(const std::string& file);

/// The texts of a screen that hold double quotes: these would end them in their file and shift what
/// comes behind. "Ahlers, Tom: Arbeitsverhalten"
std::vector<Text> textsWithQuotes(const Screen& screen);

/// Puts „ and “ in the place of the quotes, as a hand would: chooses the child and the section,
/// clicks into the box, selects all, pastes, and goes back to where it was. What could not be
/// reached keeps its quotes.
void mendQuotes(Screen& screen);

/// German: what a click here would do to a class that is full; empty otherwise.
Text tooManyPupils(const Control& control);

} // namespace rescue
} // namespace zeugnis
