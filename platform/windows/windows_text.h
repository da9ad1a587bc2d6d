#pragma once

#include "platform/text.h"

#include <string>

// What it defines stays in this folder.
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace zeugnis {

/// Both are UTF-16.
inline std::wstring wideFromText(TextView text) { return {text.begin(), text.end()}; }
inline Text textFromWide(std::wstring_view wide) { return {wide.begin(), wide.end()}; }

} // namespace zeugnis
