#include "documents/app/document_keys.h"

#include "documents/content/school_report.h"

#include <algorithm>
#include <array>

namespace zeugnis::dokumente {
namespace {

constexpr std::array<Schluessel, 1> AlleSchluessel = {{
    {.Dokument = u"ZeugnisseSchreiben.doc",
     .Makro = u"ZeugnisseSchreiben",
     .Stamm =
         [](Arbeitsverzeichnis& verzeichnis) {
             return Klassenstamm(StammdatenLesen(verzeichnis), u"Zeugnisse");
         },
     .Inhalt =
         [](Arbeitsverzeichnis& verzeichnis) {
             return ZeugnisseBilden(ZeugnisdatenLesen(verzeichnis));
         }},
}};

template <typename Passt>
const Schluessel* ersterDer(Passt passt) {
    const auto* const gefunden = std::find_if(AlleSchluessel.begin(), AlleSchluessel.end(), passt);
    return gefunden == AlleSchluessel.end() ? nullptr : gefunden;
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

} // namespace zeugnis::dokumente
