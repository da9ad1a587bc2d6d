#include "documents/app/document_files.h"

#include "documents/app/document_keys.h"
#include "documents/pdf/pdf_writer.h"
#include "documents/rtf/rtf_writer.h"
#include "platform/failure.h"
#include "platform/whole_file.h"

#include <system_error>

namespace zeugnis::dokumente {
namespace fs = std::filesystem;
namespace {

bool vorhanden(const fs::path& pfad) {
    std::error_code ignored;
    return fs::is_regular_file(pfad, ignored);
}

bool juenger(const fs::path& pfad, const fs::path& als) {
    std::error_code ignored;
    return fs::last_write_time(pfad, ignored) > fs::last_write_time(als, ignored);
}

Text stammVon(const Text& name) {
    const size_t punkt = name.rfind(u'.');
    const size_t ordner = name.find_last_of(u"\\/");
    const bool hatEndung = punkt != Text::npos && (ordner == Text::npos || punkt > ordner);
    return hatEndung ? name.substr(0, punkt) : name;
}

Dokumentdateien dateienZu(const Arbeitsverzeichnis& verzeichnis, const Text& stamm) {
    return {.Name = verzeichnis.anzeigename(stamm + u".doc"),
            .Doc = verzeichnis.pfad(stamm + u".doc"),
            .Pdf = verzeichnis.pfad(stamm + u".pdf")};
}

Dokumentdateien schreiben(Arbeitsverzeichnis& verzeichnis, const Schluessel& schluessel) {
    const Text stamm = schluessel.Stamm(verzeichnis);
    return DokumentSchreiben(verzeichnis, schluessel.Inhalt(verzeichnis), stamm);
}

[[noreturn]] void fehlt(const Text& name, TextView warum) {
    throw Laufzeitfehler(Fehlerart::FileNotFound, u"Das Dokument „" + name + u"“ " + Text(warum));
}

} // namespace

Dokumentdateien DokumentSchreiben(const Arbeitsverzeichnis& verzeichnis, const Document& dokument,
                                  const Text& stamm) {
    const LaidDocument gesetzt = layOut(dokument);
    const std::string rtf = rtfFromDocument(dokument, gesetzt.pagesPerSection());
    const std::string pdf = pdfFromLayout(gesetzt);
    writeWholeFile(verzeichnis, stamm + u".doc", rtf);
    writeWholeFile(verzeichnis, stamm + u".pdf", pdf);
    return dateienZu(verzeichnis, stamm);
}

Dokumentdateien DokumentBereitstellen(Arbeitsverzeichnis& verzeichnis, const Aufruf& aufruf) {
    if (!aufruf.Makro.empty()) {
        const Schluessel* schluessel = SchluesselFinden(aufruf.Dokument, aufruf.Makro);
        if (schluessel == nullptr)
            fehlt(aufruf.Dokument, u"kann dieses Programm noch nicht schreiben.");
        return schreiben(verzeichnis, *schluessel);
    }
    Dokumentdateien dateien = dateienZu(verzeichnis, stammVon(aufruf.Dokument));
    if (vorhanden(dateien.Doc) || vorhanden(dateien.Pdf))
        return dateien;
    const Schluessel* schluessel = SchluesselDesErgebnisses(verzeichnis, aufruf.Dokument);
    if (schluessel == nullptr)
        fehlt(dateien.Name, u"gibt es nicht oder noch nicht.");
    return schreiben(verzeichnis, *schluessel);
}

Anzeige AnzeigeFinden(const Dokumentdateien& dateien, const Umwandler& umwandeln) {
    const bool hatPdf = vorhanden(dateien.Pdf);
    if (hatPdf && (!vorhanden(dateien.Doc) || !juenger(dateien.Doc, dateien.Pdf)))
        return {.Dateien = dateien, .Pdf = dateien.Pdf, .Hinweis = {}};
    if (std::optional<fs::path> frisch = umwandeln(dateien.Doc))
        return {.Dateien = dateien,
                .Pdf = *frisch,
                .Hinweis = u"Das Dokument wurde in einer Textverarbeitung geändert. Sie sehen den "
                           u"geänderten Stand."};
    if (!hatPdf)
        fehlt(dateien.Name, u"kann hier nicht gezeigt werden: Die PDF-Datei daneben fehlt. Öffnen "
                            u"Sie es in einer Textverarbeitung.");
    return {.Dateien = dateien,
            .Pdf = dateien.Pdf,
            .Hinweis = u"Das Dokument wurde in einer Textverarbeitung geändert. Hier sehen Sie den "
                       u"Stand davor. Den neuen Stand zeigt und druckt die Textverarbeitung."};
}

} // namespace zeugnis::dokumente
