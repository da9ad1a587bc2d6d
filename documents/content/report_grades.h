#pragma once

#include "documents/content/report_layout.h"
#include "documents/model/document.h"

/// Absences and grades as they stand on a report.
namespace zeugnis::dokumente {

/// "Versäumte Unterrichtstage: 5, davon unentschuldigt: 0"; dashes for what is not filled in.
Paragraph Versaeumnisse(const Eintrag& eintrag);

/// Two subjects with their grades, "gut (2)" or a dash, in each row. No page break divides it, nor
/// parts it from what follows.
Table Notentabelle(const Eintrag& eintrag, const Zeugnisaufbau& aufbau);

/// "1 = sehr gut, …" in small type, and what a dash means if there is one.
Paragraph Notenschluessel(bool mitStrich);

/// Whether a subject has no grade.
bool HatNotenluecke(const Eintrag& eintrag);

} // namespace zeugnis::dokumente
