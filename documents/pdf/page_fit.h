#pragma once

#include "documents/pdf/pdf_writer.h"

namespace zeugnis::dokumente {

/// The document with all that depends on how its lines fall made plain for both writers. Where it
/// is in doubt whether a word stays on its line, its letters are set closer. Of a
/// paragraph whose end is kept, the last lines become a paragraph of their own, parted where a
/// line ends anyhow; a table that fills the page gets its rows. Needs a QGuiApplication.
Document fittedToPages(Document document);

/// How many lines of running text have to go for a section to take no more than so many pages; 0 if
/// it takes no more.
int linesTooMany(const LaidSection& section, Twips pageHeight, int pages);

} // namespace zeugnis::dokumente
