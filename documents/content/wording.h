#pragma once

#include "platform/text.h"

namespace zeugnis::dokumente {

/// The printable form of a text from the files, or a dash where there is none.
Text oderStrich(const Text& text);

/// Both with something between them; if one is empty, only the other.
Text verbunden(const Text& links, TextView dazwischen, const Text& rechts);

} // namespace zeugnis::dokumente
