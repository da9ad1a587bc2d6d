#pragma once

#include "common/placeholders.h"
#include "controls/control_array.h"
#include "files/pupil_list.h"
#include "files/school_data.h"

namespace zeugnis {

class Programm;

/// What the entry screens do alike, each with its own controls and colours.

/// The buttons that show (0) and hide (1) the insertion window: only one of them stands open.
struct Einfuegetasten {
    const ControlArray<Button>& Tasten;
    Farbwert Aktiv;
    Farbwert Ruhend;
    bool Entladen = false; ///< the window goes with all its state, instead of being hidden
};

/// After a click into a text: the window may be shown, unless it is.
void EinfuegungenAnbieten(const Einfuegetasten& beide);

/// After a click on one of the buttons: shows the window, or puts it away and empties the
/// clipboard.
void EinfuegungenSchalten(Programm& programm, const Einfuegetasten& beide, int index);

/// Unloads a screen and the insertion window, which serves one screen at a time. The caller must
/// not go on working on the screen.
void MitEinfuegungenVerlassen(const Screen& bildschirm);

/// Loads a picture of the folder Bild, or the standard one where it cannot be shown.
void SchuelerBildLaden(PictureBox& bild, const Text& datei);

/// What the report screens of the year groups put in place of placeholders.
Einsetzwerte EinsetzwerteVon(const Schueler& kind, const Schuldaten& schule);

} // namespace zeugnis
