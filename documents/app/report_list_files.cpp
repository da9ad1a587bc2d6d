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
    if (neu || !fs::exists(verzeichnis.pfad(Listenstamm(stand.Stamm) + u".doc"), ignored))
        ListendokumentSchreiben(verzeichnis, stand);
    return stand;
}

Dokumentdateien ListendokumentSchreiben(const Arbeitsverzeichnis& verzeichnis,
                                        const Listenstand& stand) {
    return DokumentSchreiben(verzeichnis, Listendokument(stand), Listenstamm(stand.Stamm));
}

bool IstBearbeitet(const Arbeitsverzeichnis& verzeichnis, const Listenstand& stand) {
    const Text stamm = Listenstamm(stand.Stamm);
    std::error_code failed;
    const auto doc = fs::last_write_time(verzeichnis.pfad(stamm + u".doc"), failed);
    if (failed)
        return false;
    const auto pdf = fs::last_write_time(verzeichnis.pfad(stamm + u".pdf"), failed);
    return !failed && doc > pdf;
}

} // namespace zeugnis::dokumente
