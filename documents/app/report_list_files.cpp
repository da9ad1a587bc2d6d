#include "documents/app/report_list_files.h"

#include "documents/content/report_list_document.h"
#include "platform/plain_machine.h"

#include <system_error>

namespace zeugnis::dokumente {
namespace fs = std::filesystem;

Document Listendokument(const Listenstand& stand) {
    return ZeugnislisteBilden(stand.Stamm, stand.Liste.Eintraege);
}

Listenstand ListeBereitstellen(Arbeitsverzeichnis& verzeichnis, bool neu) {
    const Text heute = SystemCalendar().today();
    Listenstand stand =
        neu ? ZeugnislisteNeuBeginnen(verzeichnis, heute) : ZeugnislisteOeffnen(verzeichnis, heute);
    std::error_code ignored;
    if (neu || !fs::exists(verzeichnis.path(Listenstamm(stand.Stamm) + u".doc"), ignored))
        ListendokumentSchreiben(verzeichnis, stand);
    return stand;
}

Dokumentdateien ListendokumentSchreiben(const Arbeitsverzeichnis& verzeichnis,
                                        const Listenstand& stand) {
    return DokumentSchreiben(verzeichnis, Listendokument(stand), Listenstamm(stand.Stamm));
}

Dokumentdateien Listendateien(const Arbeitsverzeichnis& verzeichnis, const Listenstand& stand) {
    return DokumentdateienZu(verzeichnis, Listenstamm(stand.Stamm));
}

} // namespace zeugnis::dokumente
