#include "documents/app/document_keys.h"

#include "documents/app/list_keys.h"
#include "documents/app/report_files.h"
#include "documents/app/report_list_files.h"
#include "documents/content/school_report.h"
#include "platform/failure.h"
#include "platform/plain_machine.h"

#include <algorithm>
#include <array>

namespace zeugnis::dokumente {
namespace {

Text listenstamm(Arbeitsverzeichnis& verzeichnis) {
    return Listenstamm(StammdatenLesen(verzeichnis));
}

constexpr std::array<Schluessel, 3> AlleSchluessel = {{
    {.Dokument = u"ZeugnisseSchreiben.doc",
     .Makro = u"ZeugnisseSchreiben",
     .Stamm =
         [](Arbeitsverzeichnis& verzeichnis) {
             return Klassenstamm(StammdatenLesen(verzeichnis), u"Zeugnisse");
         },
     .Inhalt =
         [](Arbeitsverzeichnis& verzeichnis) {
             return ZeugnisseBilden(ZeugnisdatenMitBild(verzeichnis));
         },
     .Fenster = Fensterart::Zeugnisse},
    // In front of the one that begins the list anew: it is what the class document is opened with.
    {.Dokument = u"Zeugnisliste.doc",
     .Makro = u"Zeugnisliste",
     .Stamm = listenstamm,
     .Inhalt =
         [](Arbeitsverzeichnis& verzeichnis) {
             return Listendokument(ZeugnislisteOeffnen(verzeichnis, SystemCalendar().today()));
         },
     .Fenster = Fensterart::Zeugnisliste},
    {.Dokument = u"ZeugnislisteNeu.doc",
     .Makro = u"ZeugnislisteNeu",
     .Stamm = listenstamm,
     .Inhalt =
         [](Arbeitsverzeichnis& verzeichnis) {
             return Listendokument(ZeugnislisteNeuBeginnen(verzeichnis, SystemCalendar().today()));
         },
     .Fenster = Fensterart::ZeugnislisteNeu},
}};

template <typename Passt>
const Schluessel* ersterDer(Passt passt) {
    for (const std::span<const Schluessel> gruppe :
         {std::span<const Schluessel>(AlleSchluessel), Listenschluessel()})
        if (const auto gefunden = std::find_if(gruppe.begin(), gruppe.end(), passt);
            gefunden != gruppe.end())
            return &*gefunden;
    return nullptr;
}

} // namespace

const Schluessel* SchluesselFinden(TextView dokument, TextView makro) {
    return ersterDer([&](const Schluessel& einer) {
        return sameIgnoringCase(einer.Dokument, dokument) && sameIgnoringCase(einer.Makro, makro);
    });
}

const Schluessel* SchluesselDesErgebnisses(Arbeitsverzeichnis& verzeichnis, TextView datei) {
    return ersterDer([&](const Schluessel& einer) {
        return sameIgnoringCase(einer.Stamm(verzeichnis) + u".doc", datei);
    });
}

Fensterart FensterFuer(Arbeitsverzeichnis& verzeichnis, const Aufruf& aufruf) {
    const Schluessel* schluessel = nullptr;
    if (!aufruf.Makro.empty()) {
        schluessel = SchluesselFinden(aufruf.Dokument, aufruf.Makro);
    } else {
        try {
            schluessel = SchluesselDesErgebnisses(verzeichnis, aufruf.Dokument);
        } catch (const Laufzeitfehler&) {
            // A help text has to open whatever the master data are like.
            return Fensterart::Vorschau;
        }
    }
    return schluessel == nullptr ? Fensterart::Vorschau : schluessel->Fenster;
}

} // namespace zeugnis::dokumente
