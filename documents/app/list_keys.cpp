#include "documents/app/list_keys.h"

#include "documents/app/pupil_picture.h"
#include "documents/content/blank_report.h"
#include "documents/content/class_lists.h"
#include "documents/content/conference_sheet.h"
#include "documents/content/list_frame.h"
#include "documents/content/picture_list.h"

#include <array>

namespace zeugnis::dokumente {
namespace {

// What the files are called between class and year.
constexpr char16_t Zeugnisanlagen[] = u"Zeugnisanlagen";
constexpr char16_t Klassenliste[] = u"Klassenliste";
constexpr char16_t Strichliste[] = u"Strichliste";
constexpr char16_t Bilderliste[] = u"Bilderliste";
constexpr char16_t Leerformular[] = u"Leerformular";
constexpr char16_t Konferenzblatt[] = u"Konferenzblatt";

template <const auto& Art>
Text stamm(Arbeitsverzeichnis& verzeichnis) {
    return Klassenstamm(StammdatenLesen(verzeichnis), Art);
}

template <Document (*Bilden)(const Stammdaten&)>
Document ausListendaten(Arbeitsverzeichnis& verzeichnis) {
    return Bilden(ListendatenLesen(verzeichnis));
}

constexpr std::array<Schluessel, 6> AlleListen = {{
    {.Dokument = u"ZeugnisseAnlagen.doc",
     .Makro = u"ZeugnisseAnlagen",
     .Stamm = stamm<Zeugnisanlagen>,
     .Inhalt = ausListendaten<ZeugnisanlagenBilden>},
    {.Dokument = u"KlListe.doc",
     .Makro = u"Klassenliste",
     .Stamm = stamm<Klassenliste>,
     .Inhalt = ausListendaten<KlassenlisteBilden>},
    {.Dokument = u"StListe.doc",
     .Makro = u"Strichliste",
     .Stamm = stamm<Strichliste>,
     .Inhalt = ausListendaten<StrichlisteBilden>},
    {.Dokument = u"BldListe.doc",
     .Makro = u"Bilderliste",
     .Stamm = stamm<Bilderliste>,
     .Inhalt =
         [](Arbeitsverzeichnis& verzeichnis) {
             return BilderlisteBilden(verzeichnis, [&](const Text& datei) {
                 return KinderbildLesen(verzeichnis, datei);
             });
         }},
    {.Dokument = u"Leerformular.doc",
     .Makro = u"Leerformular",
     .Stamm = stamm<Leerformular>,
     .Inhalt =
         [](Arbeitsverzeichnis& verzeichnis) {
             Stammdaten stamm = StammdatenLesen(verzeichnis);
             stamm.Kopfbild = KopfbildLesen(verzeichnis, stamm.Aufbau.Kopfbild);
             return LeerformularBilden(stamm);
         }},
    {.Dokument = u"Konferenzblatt.doc",
     .Makro = u"Konferenzblatt",
     .Stamm = stamm<Konferenzblatt>,
     .Inhalt =
         [](Arbeitsverzeichnis& verzeichnis) {
             return KonferenzblattBilden(KonferenzdatenLesen(verzeichnis));
         }},
}};

} // namespace

std::span<const Schluessel> Listenschluessel() { return AlleListen; }

} // namespace zeugnis::dokumente
