#include "common/entry_common.h"

#include "common/screen_names.h"
#include "controls/program.h"
#include "files/file_catalogue.h"

namespace zeugnis {

void EinfuegungenAnbieten(const Einfuegetasten& beide) {
    Button& zeigen = beide.Tasten(0);
    const bool sichtbar = beide.Tasten(1).Enabled;
    zeigen.Enabled = !sichtbar;
    if (!sichtbar)
        zeigen.BackColor = beide.Aktiv;
}

void EinfuegungenSchalten(Programm& programm, const Einfuegetasten& beide, int index) {
    Button& gedrueckt = beide.Tasten(index);
    gedrueckt.BackColor = beide.Ruhend;
    gedrueckt.Enabled = false;
    Button& andere = beide.Tasten(1 - index);
    andere.BackColor = beide.Aktiv;
    andere.Enabled = true;
    if (index == 0) {
        programm.show(bildschirme::Einfuegungen);
    } else {
        if (beide.Entladen)
            programm.unload(bildschirme::Einfuegungen);
        else
            programm.hide(bildschirme::Einfuegungen);
        programm.machine().clipboard.clear();
    }
}

void MitEinfuegungenVerlassen(const Screen& bildschirm) {
    Programm& programm = bildschirm.programm();
    programm.unload(bildschirm.name());
    programm.unload(bildschirme::Einfuegungen);
}

void SchuelerBildLaden(PictureBox& bild, const Text& datei) {
    const Ordnerwechsel in(bild.screen().programm().directory(), dateien::Bild);
    try {
        bild.load(datei);
    } catch (const Laufzeitfehler&) {
        bild.load(Text(dateien::Smili));
    }
}

Einsetzwerte EinsetzwerteVon(const Schueler& kind, const Schuldaten& schule) {
    return {kind.Vorname, kind.Geschlecht, schule.Schuljahr, schule.NaechstesSchuljahr,
            schule.Konferenzdatum};
}

} // namespace zeugnis
