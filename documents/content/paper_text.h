#pragma once

#include "platform/text.h"

namespace zeugnis::dokumente {

/// A text from the files as it stands on paper: printable, without empty lines, with typographic
/// quotes and apostrophes for straight ones, and without a line end behind an ordinal number.
Text AufPapier(TextView text);

} // namespace zeugnis::dokumente
