#pragma once

#include "platform/text.h"

#include <span>

/// The text of the first page, support lessons and working groups, before the expansion of
/// placeholders.
namespace zeugnis::jahrgang34 {

/// Joins the items that are not empty: "Lesen, Rechnen und Sport". At most eight items. `letzte` is
/// the place of the last one; a run without any keeps the value of the run before, which must not
/// lie outside 0 to 10 (index-out-of-range).
Text ListeVerbinden(std::span<const Text> teile, int& letzte);

/// Empty without a list.
Text FoerderSatzBilden(const Text& anfang, const Text& liste, const Text& schluss);

/// The support sentence and, on a line of its own, the sentence on working groups. The latter gets
/// a full stop each time; the clean-up takes what is too much out of the text, not out of it.
Text FoerderAGVerbinden(const Text& foerderSatz, Text& agSatz);

} // namespace zeugnis::jahrgang34
