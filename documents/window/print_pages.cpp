#include "documents/window/print_pages.h"

#include "documents/window/pdf_pages.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>

namespace zeugnis::dokumente {
namespace {

struct Seiten {
    int first;
    int last;
};

Seiten gewaehlteSeiten(const QPrinter& printer, int currentPage, int count) {
    switch (printer.printRange()) {
    case QPrinter::CurrentPage:
        return {currentPage, currentPage};
    case QPrinter::PageRange:
        return {qBound(1, printer.fromPage(), count) - 1, qBound(1, printer.toPage(), count) - 1};
    default:
        return {0, count - 1};
    }
}

} // namespace

bool seitenDrucken(PdfPages& pages, const QString& name, int currentPage, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setFullPage(true);
    printer.setDocName(name);
    QPrintDialog dialog(&printer, parent);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintCurrentPage |
                      QAbstractPrintDialog::PrintCollateCopies);
    dialog.setMinMax(1, pages.count());
    dialog.setFromTo(1, pages.count());
    dialog.setPrintRange(QAbstractPrintDialog::AllPages);
    if (dialog.exec() != QDialog::Accepted)
        return true;

    const auto [first, last] = gewaehlteSeiten(printer, currentPage, pages.count());
    QProgressDialog progress(QStringLiteral("Die Seiten werden gedruckt …"),
                             QStringLiteral("Abbrechen"), first, last + 1, parent);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(500);
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    for (int page = first; page <= last; ++page) {
        progress.setValue(page);
        if (progress.wasCanceled()) {
            printer.abort();
            break;
        }
        if (page > first)
            printer.newPage();
        pages.print(painter, page, printer.resolution());
    }
    progress.setValue(last + 1);
    return painter.end();
}

} // namespace zeugnis::dokumente
