#include "shell/entry_common.h"

#include "controls/program.h"
#include "shell/file_catalogue.h"
#include "shell/screen_names.h"

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
        programm.zeigen(bildschirme::Einfuegungen);
    } else {
        if (beide.Entladen)
            programm.entladen(bildschirme::Einfuegungen);
        else
            programm.verbergen(bildschirme::Einfuegungen);
        programm.machine().clipboard.clear();
    }
}

void SchuelerBildLaden(PictureBox& bild, const Text& datei) {
    const Ordnerwechsel in(bild.screen().programm().verzeichnis(), dateien::Bild);
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
