#include "tests/layout/document_windows.h"

#include "documents/app/report_files.h"
#include "documents/app/report_list_files.h"
#include "documents/content/report_marks.h"
#include "documents/window/layout_dialog.h"
#include "documents/window/report_list_window.h"
#include "documents/window/report_window.h"
#include "tests/desktop/settle_layouts.h"
#include "tests/layout/long_texts.h"

#include <QAbstractItemView>
#include <QPushButton>

#include <memory>

namespace zeugnis::test {
namespace {

using namespace dokumente;

using Window = std::unique_ptr<QWidget>;

Window reportList(Arbeitsverzeichnis& folder) {
    return std::make_unique<ReportListWindow>(folder, ListeBereitstellen(folder, true),
                                              [](const Dokumentdateien&) {});
}

Dokumentdateien written(Arbeitsverzeichnis& folder, const Aufruf& what) {
    return DokumentBereitstellen(folder, what);
}

Anzeige asWritten(const Dokumentdateien& files) {
    return {.Dateien = files,
            .Pdf = files.Pdf,
            .Hinweis = u"Das Dokument wurde in einer Textverarbeitung geändert. Hier steht der "
                       u"Stand davor, weil keine gefunden wurde, die es umwandeln kann."};
}

Window list(Arbeitsverzeichnis& folder) {
    const Dokumentdateien files =
        written(folder, {.Dokument = u"KlListe.doc", .Makro = u"Klassenliste"});
    return std::make_unique<PreviewWindow>([files] { return asWritten(files); });
}

Window reports(Arbeitsverzeichnis& folder) {
    const Dokumentdateien files =
        written(folder, {.Dokument = u"ZeugnisseSchreiben.doc", .Makro = u"ZeugnisseSchreiben"});
    auto window = std::make_unique<ReportWindow>(
        folder, [files] { return asWritten(files); }, [] {}, [] {});
    window->showChecks({.Pruefen =
                            [folder] {
                                Arbeitsverzeichnis mine = folder;
                                return OffeneBefunde(mine);
                            },
                        .Gesehen = [](const Befund&) {},
                        .Lernen = [](const Befund&) {}});
    return window;
}

Window layoutOfReports(Arbeitsverzeichnis& folder) {
    std::filesystem::path pdf =
        written(folder, {.Dokument = u"ZeugnisseSchreiben.doc", .Makro = u"ZeugnisseSchreiben"})
            .Pdf;
    return std::make_unique<LayoutDialog>(ZeugnisaufbauLesen(folder), Kopfbilder(folder),
                                          [pdf](const Zeugnisaufbau&) { return pdf; });
}

struct DocumentStop {
    const char* name;
    const char* klasse;
    Window (*open)(Arbeitsverzeichnis& folder);
};

const DocumentStop Stops[] = {
    {"notenliste", "3a", reportList},  {"versaeumnisliste", "2b", reportList},
    {"klassenliste", "3a", list},      {"zeugnisse", "3a", reports},
    {"aufbau", "3a", layoutOfReports},
};

// None of these windows has a page that scrolls.
std::vector<const QWidget*> buttonsAndLists(const QWidget& window) {
    std::vector<const QWidget*> all;
    for (const auto* button : window.findChildren<QPushButton*>())
        all.push_back(button);
    for (const auto* view : window.findChildren<QAbstractItemView*>())
        if (view->window() == &window)
            all.push_back(view);
    return all;
}

} // namespace

void forEveryDocumentWindow(const Content& content, const std::function<void(const Sight&)>& look,
                            const std::string& part) {
    for (const DocumentStop& stop : Stops) {
        const std::string name = std::string(stop.klasse) + '-' + stop.name;
        if (name.find(part) == std::string::npos)
            continue;
        const ClassFolder installation(stop.klasse, content.longTexts);
        Arbeitsverzeichnis folder(installation.path());
        const Window window = stop.open(folder);
        window->show();
        settleLayouts();
        look({*window, name, buttonsAndLists(*window)});
    }
}

} // namespace zeugnis::test
