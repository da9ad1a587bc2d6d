#include "program/unfinished_screen.h"

namespace zeugnis {

UnfinishedScreen::UnfinishedScreen(Programm& programm, TextView name)
    : Screen(programm, name, name) {
    Label1.Caption = u"Dieser Teil des Programms ist noch nicht fertig. Schließen Sie dieses "
                     u"Fenster, um zur Startseite zurückzukehren.";
}

} // namespace zeugnis
