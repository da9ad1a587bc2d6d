#pragma once

class QString;
class QWidget;

namespace zeugnis::dokumente {

class PdfPages;

/// Asks for printer and pages, and prints them. Shows how far it is, and can be stopped. False if
/// the printer could not be started. `name` is what the printer's queue shows, and a file name if
/// it prints to a file.
bool seitenDrucken(PdfPages& pages, const QString& name, int currentPage, QWidget* parent);

} // namespace zeugnis::dokumente
