#pragma once

#include "documents/content/class_data.h"
#include "documents/model/document.h"

/// What stands on a report around its texts.
namespace zeugnis::dokumente {

/// First and last name, or a dash.
Text Kindname(const Schueler& kind);

/// "Zeugnis", or in the first half-year "Halbjahreszeugnis".
TextView Zeugnistitel(const Stammdaten& stamm);

/// The school with its picture, the title of the sheet, school year and half-year.
std::vector<Block> Schulkopf(const Stammdaten& stamm, TextView titel);

/// The same with whose sheet it is.
std::vector<Block> Zeugniskopf(const Stammdaten& stamm, const Schueler& kind, TextView titel);

/// Conference, what the layout adds, place and date, signatures, seal, and the parents' line. No
/// page break divides it. `nichtVersetzt` adds the sentence on legal remedies.
std::vector<Block> Zeugnisschluss(const Stammdaten& stamm, bool nichtVersetzt);

/// Place and date of issue.
Text OrtUndDatum(const Schuldaten& schule);

/// Two lines side by side for class teacher and head, with their names if the layout wants them,
/// and something between them.
Row Unterschriften(const Stammdaten& stamm, Cell mitte);

} // namespace zeugnis::dokumente
