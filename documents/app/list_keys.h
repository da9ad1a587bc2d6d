#pragma once

#include "documents/app/document_keys.h"

#include <span>

namespace zeugnis::dokumente {

/// The keys of the lists and forms.
std::span<const Schluessel> Listenschluessel();

} // namespace zeugnis::dokumente
