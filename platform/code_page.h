#pragma once

#include "platform/text.h"

namespace zeugnis {

/// Windows-1252, the code page of all data files. The five bytes that it leaves unassigned stand
/// for themselves (U+0081, U+008D, U+008F, U+0090, U+009D), so that a file comes back unchanged.
Text decodeWindows1252(std::string_view bytes);

/// Characters outside the code page become "?"; none can get in through a text box.
std::string encodeWindows1252(TextView text);

/// The text as the code page can hold it: each character outside it is turned into its nearest
/// form (ł to l, ő to o) or dropped where there is none.
Text nearestInWindows1252(TextView text);

} // namespace zeugnis
