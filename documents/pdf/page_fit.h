#pragma once

#include "documents/model/document.h"

namespace zeugnis::dokumente {

/// The document with all that depends on how its lines fall made plain for both writers. Where it
/// is in doubt whether a word stays on its line, its letters are set closer. Of a
/// paragraph whose end is kept, the last lines become a paragraph of their own, parted where a
/// line ends anyhow; a table that fills the page gets its rows. Needs a QGuiApplication.
Document fittedToPages(Document document);

} // namespace zeugnis::dokumente
