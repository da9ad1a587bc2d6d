#pragma once

#include <filesystem>

class QWidget;

namespace zeugnis {

class Control;

/// Before the question behind which all texts of the class are blanked: tells what happens and what
/// to do, and keeps the finished state under a name if the teacher wants it. False if she would
/// rather go back. Says nothing where no text can be lost.
bool mayBlankTexts(const Control& control, const std::filesystem::path& programFolder,
                   QWidget* owner);

} // namespace zeugnis
