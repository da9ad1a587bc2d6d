#pragma once

#include "platform/text.h"

#include <vector>

namespace zeugnis::dokumente {

/// What the program is asked to do.
struct Aufruf {
    Text Dokument;
    Text Makro; ///< what follows "/m"; empty if the document is only to be opened
    bool OhneFenster = false;
};

/// The arguments behind the program's name. A document name with blanks may come in several
/// pieces: it was split on its way. Fails with invalid-call, and says how it is done.
Aufruf AufrufLesen(const std::vector<Text>& argumente);

} // namespace zeugnis::dokumente
