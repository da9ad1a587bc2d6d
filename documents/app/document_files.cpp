#include "documents/app/document_files.h"

#include "documents/app/document_keys.h"
#include "documents/content/dated_copy.h"
#include "documents/pdf/page_fit.h"
#include "documents/pdf/pdf_outline.h"
#include "documents/pdf/pdf_writer.h"
#include "documents/rtf/rtf_writer.h"
#include "platform/failure.h"
#include "platform/plain_machine.h"
#include "platform/raw_file.h"
#include "platform/whole_file.h"
#include "safety/seal.h"

#include <fstream>
#include <system_error>

namespace zeugnis::dokumente {
namespace fs = std::filesystem;
namespace {

bool vorhanden(const fs::path& pfad) {
    std::error_code ignored;
    return fs::is_regular_file(pfad, ignored);
}

Text stammVon(const Text& name) {
    const size_t punkt = name.rfind(u'.');
    const size_t ordner = name.find_last_of(u"\\/");
    const bool hatEndung = punkt != Text::npos && (ordner == Text::npos || punkt > ordner);
    return hatEndung ? name.substr(0, punkt) : name;
}

Dokumentdateien schreiben(Arbeitsverzeichnis& verzeichnis, const Schluessel& schluessel,
                          const std::stop_token& abbruch) {
    const Text stamm = schluessel.Stamm(verzeichnis);
    return DokumentSchreiben(verzeichnis, schluessel.Inhalt(verzeichnis), stamm, abbruch);
}

void abbruchPruefen(const std::stop_token& abbruch) {
    if (abbruch.stop_requested())
        throw Laufzeitfehler(Fehlerart::InvalidCall,
                             u"Das Schreiben wurde abgebrochen. Alle Dateien sind, wie sie waren.");
}

std::string bytesVon(const fs::path& pfad) { return raw::read(pfad).bytes; }

// Puts a written file back as it was, unless what comes after it succeeds too.
class Ruecknahme {
  public:
    Ruecknahme(fs::path pfad, std::optional<std::string> vorher)
        : m_pfad(std::move(pfad)), m_vorher(std::move(vorher)) {}
    ~Ruecknahme() {
        std::error_code ignored;
        if (m_gelungen)
            return;
        if (!m_vorher)
            fs::remove(m_pfad, ignored);
        else
            std::ofstream(m_pfad, std::ios::binary) << *m_vorher;
    }
    Ruecknahme(const Ruecknahme&) = delete;
    Ruecknahme& operator=(const Ruecknahme&) = delete;

    void gelungen() { m_gelungen = true; }

  private:
    fs::path m_pfad;
    std::optional<std::string> m_vorher; ///< nothing if there was no such file
    bool m_gelungen = false;
};

[[noreturn]] void fehlt(const Text& name, TextView warum) {
    throw Laufzeitfehler(Fehlerart::FileNotFound, u"Das Dokument „" + name + u"“ " + Text(warum));
}

} // namespace

Dokumentdateien DokumentdateienZu(const Arbeitsverzeichnis& verzeichnis, const Text& stamm) {
    return {.Name = verzeichnis.displayName(stamm + u".doc"),
            .Doc = verzeichnis.path(stamm + u".doc"),
            .Pdf = verzeichnis.path(stamm + u".pdf")};
}

// Not by the times of the files: copying and unpacking changes them.
bool IstBearbeitet(const Dokumentdateien& dateien) {
    std::error_code ignored;
    if (!vorhanden(dateien.Doc) || !vorhanden(dateien.Pdf))
        return false;
    if (const std::string pruefsumme = docChecksumIn(bytesVon(dateien.Pdf)); !pruefsumme.empty())
        return safety::checksumText(bytesVon(dateien.Doc)) != pruefsumme;
    // A .pdf from elsewhere tells nothing else.
    return fs::last_write_time(dateien.Doc, ignored) > fs::last_write_time(dateien.Pdf, ignored);
}

Dokumentdateien DokumentSchreiben(Arbeitsverzeichnis verzeichnis, const Document& inhalt,
                                  const Text& stamm, const std::stop_token& abbruch) {
    // Documents can be made anew at any time: no former states of them.
    verzeichnis.watchWrites(nullptr);
    const Document dokument = fittedToPages(inhalt);
    const LaidDocument gesetzt = layOut(dokument);
    abbruchPruefen(abbruch);
    const std::string rtf = rtfFromDocument(dokument, gesetzt.pagesPerSection());
    const std::string pdf = pdfFromLayout(gesetzt, safety::checksumText(rtf));
    abbruchPruefen(abbruch);
    Dokumentdateien dateien = DokumentdateienZu(verzeichnis, stamm);
    std::optional<std::string> vorher;
    if (vorhanden(dateien.Doc))
        vorher = readWholeFile(verzeichnis, stamm + u".doc");
    if (vorher && IstBearbeitet(dateien))
        dateien.Aufgehoben =
            KopieAnlegen(verzeichnis, stamm, u".doc", SystemCalendar().today(), *vorher);
    writeWholeFile(verzeichnis, stamm + u".doc", rtf);
    Ruecknahme doc(verzeichnis.path(stamm + u".doc"), std::move(vorher));
    writeWholeFile(verzeichnis, stamm + u".pdf", pdf);
    doc.gelungen();
    return dateien;
}

Dokumentdateien DokumentBereitstellen(Arbeitsverzeichnis& verzeichnis, const Aufruf& aufruf,
                                      const std::stop_token& abbruch) {
    if (!aufruf.Makro.empty()) {
        const Schluessel* schluessel = SchluesselFinden(aufruf.Dokument, aufruf.Makro);
        if (schluessel == nullptr)
            fehlt(aufruf.Dokument, u"kann dieses Programm nicht schreiben.");
        return schreiben(verzeichnis, *schluessel, abbruch);
    }
    Dokumentdateien dateien = DokumentdateienZu(verzeichnis, stammVon(aufruf.Dokument));
    if (vorhanden(dateien.Doc) || vorhanden(dateien.Pdf))
        return dateien;
    const Schluessel* schluessel = SchluesselDesErgebnisses(verzeichnis, aufruf.Dokument);
    if (schluessel == nullptr)
        fehlt(dateien.Name, u"gibt es nicht oder noch nicht.");
    return schreiben(verzeichnis, *schluessel, abbruch);
}

Anzeige AnzeigeFinden(const Dokumentdateien& dateien, const Umwandler& umwandeln,
                      const std::stop_token& abbruch) {
    const bool hatPdf = vorhanden(dateien.Pdf);
    if (hatPdf && !IstBearbeitet(dateien))
        return {.Dateien = dateien, .Pdf = dateien.Pdf, .Hinweis = {}};
    if (std::optional<fs::path> frisch = umwandeln(dateien.Doc))
        return {.Dateien = dateien,
                .Pdf = *frisch,
                .Hinweis = u"Das Dokument wurde in einer Textverarbeitung geändert. Sie sehen den "
                           u"geänderten Stand."};
    if (!hatPdf && abbruch.stop_requested())
        fehlt(dateien.Name, u"kann hier nicht gezeigt werden: Die Umwandlung wurde abgebrochen.");
    if (!hatPdf)
        fehlt(dateien.Name, u"kann hier nicht gezeigt werden: Die PDF-Datei daneben fehlt. Öffnen "
                            u"Sie es in einer Textverarbeitung.");
    const TextView warum = abbruch.stop_requested()
                               ? TextView(u"Die Umwandlung wurde abgebrochen")
                               : u"Das Dokument wurde in einer Textverarbeitung geändert";
    return {.Dateien = dateien,
            .Pdf = dateien.Pdf,
            .Hinweis = Text(warum) + u". Hier sehen Sie den Stand davor. Den neuen Stand zeigt und "
                                     u"druckt die Textverarbeitung."};
}

} // namespace zeugnis::dokumente
