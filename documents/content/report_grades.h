#pragma once

#include "documents/content/report_columns.h"
#include "documents/model/document.h"

/// Absences and grades as they stand on a report.
namespace zeugnis::dokumente {

/// "Versäumte Unterrichtstage: 5, davon unentschuldigt: 0"; dashes for what is not filled in.
Paragraph Versaeumnisse(const Eintrag& eintrag);

/// Two columns of subjects with their grades, "gut (2)" or a dash: one row, so that no page break
/// divides it.
Table Notentabelle(const Eintrag& eintrag);

/// "1 = sehr gut, …" in small type; stays with what follows.
Paragraph Notenschluessel();

} // namespace zeugnis::dokumente
