#include "common/word_launch.h"

#include "controls/program.h"

namespace zeugnis {

void WordStarten(Programm& programm, const Text& befehl) {
    programm.machine().launcher.start(befehl, programm.directory().current());
}

namespace word {

Text Klassendokument(const Text& klasse, TextView art, int jahrgang, const Text& halbjahr) {
    return u"Winword.exe " + klasse + Text(art) + textFromNumber(jahrgang) + halbjahr + u".doc";
}

Text Hilfe(int nummer) { return u"Winword.exe Texte\\Hilfe" + textFromNumber(nummer) + u".doc"; }

} // namespace word
} // namespace zeugnis
