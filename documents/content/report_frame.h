#pragma once

#include "documents/content/class_data.h"
#include "documents/model/document.h"

/// What stands on a report around its texts.
namespace zeugnis::dokumente {

/// First and last name, or a dash.
Text Kindname(const Schueler& kind);

/// School, the title of the sheet, school year and half-year.
std::vector<Block> Schulkopf(const Stammdaten& stamm, TextView titel);

/// The same with whose sheet it is.
std::vector<Block> Zeugniskopf(const Stammdaten& stamm, const Schueler& kind,
                               TextView titel = u"Zeugnis");

/// Conference, place and date, signatures, seal, and the parent's line: one row, so that no page
/// break divides it.
Table Zeugnisschluss(const Schuldaten& schule);

/// Place and date of issue.
Text OrtUndDatum(const Schuldaten& schule);

/// Keeps the last paragraph with what follows. Such a paragraph is not divided between pages, so
/// of a long one only the end is kept, as a paragraph of its own: what stands behind its last line
/// break, or else its last sentences.
void LetztenAbsatzHalten(std::vector<Block>& seite);

} // namespace zeugnis::dokumente
