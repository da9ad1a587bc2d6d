#include "common/editor_common.h"

#include "common/placeholders.h"
#include "common/text_input.h"
#include "controls/program.h"
#include "controls/text_box.h"
#include "files/file_catalogue.h"
#include "files/module_files.h"
#include "platform/whole_file.h"

namespace zeugnis {
namespace {

constexpr TextView Standardpasswort = u"Kuckuckstal";

} // namespace

const Tabelle<Farbwert, Editorfarben>& FarbtafelEditoren() {
    static const Tabelle<Farbwert, Editorfarben> Farbtafel(
        {0xFFFFFF, 0x80FF80, 0xC0FFC0, 0xC0E0FF, 0xC0C0FF, 0xC0C0C0, 0x0000FF, 0x00FFFF});
    return Farbtafel;
}

bool FortfahrenFragen(Programm& programm) {
    return programm.machine().dialogs.message(
               {.text = u"Wenn Sie die Textbausteine ändern wollen, beachten Sie die Hinweise am "
                        u"Ende der Seite.\r\n Nutzen Sie für geschlechtsspezifische Einfügungen "
                        u"die Vorgaben!\r\nWollen Sie fortfahren ?",
                .tasten = Tasten::JaNein,
                .symbol = Symbol::Ausrufezeichen,
                .standard = Antwort::Nein}) == Antwort::Ja;
}

bool SicherheitshalberFragen(Programm& programm, TextView frage) {
    return programm.machine().dialogs.message({.text = Text(frage),
                                               .tasten = Tasten::JaNein,
                                               .symbol = Symbol::Frage,
                                               .standard = Antwort::Nein}) == Antwort::Ja;
}

void StandardUeberschreibenFragen(Programm& programm, Text& passwort) {
    Dialogs& dialoge = programm.machine().dialogs;
    const Antwort antwort = dialoge.message(
        {.text = u"Die Standardformulierungen werden unwiederbringlich gelöscht und durch die "
                 u"aktuellen Formulierungen ersetzt. Wollen Sie das?",
         .tasten = Tasten::JaNeinAbbrechen,
         .symbol = Symbol::Frage});
    if (antwort == Antwort::Ja)
        passwort =
            dialoge.input(Text(Programmtitel), u"Geben Sie das Passwort ein!").value_or(Text());
}

void StandardUeberschreiben(Programm& programm, const Text& passwort,
                            std::span<const TextView> namen) {
    if (passwort != Standardpasswort)
        return;
    const Ordnerwechsel in(programm.directory(), dateien::Daten);
    for (const TextView datei : namen)
        copyWholeFile(programm.directory(), datei, Text(dateien::Standard) + Standardname(datei));
}

void EinfuegungInsFeld(TextBox& feld) {
    if (!feld.Locked)
        feld.setText(MitEinfuegung(feld.screen().programm(), feld, TextregelnEditoren));
}

} // namespace zeugnis
