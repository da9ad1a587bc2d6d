#pragma once

#include "platform/text.h"

namespace zeugnis {

/// "0.9.0", as CMakeLists.txt says.
TextView Programmversion();

} // namespace zeugnis
