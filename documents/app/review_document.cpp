#include "documents/app/review_document.h"

#include "documents/content/review_text.h"
#include "platform/failure.h"

#include <system_error>

namespace zeugnis::dokumente {
namespace fs = std::filesystem;
namespace {

constexpr TextView Makro = u"Anzeigetext";
constexpr TextView Dokument = u"Anzeigetext.doc";

// LibreOffice and Word mark a document that is open by a file beside it.
bool istVermerk(const fs::path& datei) {
    const std::u16string name = datei.filename().u16string();
    return name.starts_with(u".~lock.") || name.starts_with(u"~$");
}

} // namespace

bool IstAnzeigetext(const Aufruf& aufruf) {
    const size_t ordner = aufruf.Dokument.find_last_of(u"\\/");
    const TextView name = TextView(aufruf.Dokument).substr(ordner == Text::npos ? 0 : ordner + 1);
    return sameIgnoringCase(aufruf.Makro, Makro) && sameIgnoringCase(name, Dokument);
}

void AnzeigetextVerweigern() {
    throw Laufzeitfehler(Fehlerart::InvalidCall,
                         u"Der Text für „Anzeigetext.doc“ kommt aus der Zwischenablage; mit "
                         u"--no-window gibt es keine.");
}

Dokumentdateien AnzeigetextSchreiben(const fs::path& ordner, TextView text,
                                     const std::stop_token& abbruch) {
    return DokumentSchreiben(Arbeitsverzeichnis(ordner), AnzeigetextBilden(text), Text(Makro),
                             abbruch);
}

Text AnzeigetextHinweis() {
    return u"Diese Zusammenstellung wird nicht aufbewahrt. Wenn Sie sie behalten möchten, "
           u"speichern "
           u"Sie sie als PDF oder in der Textverarbeitung unter einem eigenen Namen.";
}

bool WirdBearbeitet(const Dokumentdateien& dateien) {
    std::error_code ignored;
    if (IstBearbeitet(dateien))
        return true;
    for (const fs::directory_entry& eintrag :
         fs::directory_iterator(dateien.Doc.parent_path(), ignored))
        if (istVermerk(eintrag.path()))
            return true;
    return false;
}

} // namespace zeugnis::dokumente
