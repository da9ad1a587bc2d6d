#include "common/text_input.h"

#include "common/placeholders.h"
#include "controls/program.h"
#include "controls/screen.h"
#include "controls/text_box.h"

#include <algorithm>
#include <utility>

namespace zeugnis {
namespace {

void hinweisen(Programm& programm, TextView text) {
    programm.machine().dialogs.message({.text = Text(text),
                                        .tasten = Tasten::Ok,
                                        .symbol = Symbol::Ausrufezeichen,
                                        .titel = u"Hinweis"});
}

} // namespace

void AnfuehrungszeichenTaste(Programm& programm, char16_t& taste) {
    if (taste != u'"')
        return;
    taste = u'\'';
    hinweisen(programm,
              u"Doppelte Anführungszeichen werden zur Programmsteuerung benötigt. Nutzen Sie die "
              u"einfachen Anführungszeichen und diese bei Bedarf doppelt!");
}

void AnfuehrungszeichenAenderung(Programm& programm, TextBox& feld) {
    if (feld.text().find(u'"') == Text::npos)
        return;
    Text text = feld.text();
    std::replace(text.begin(), text.end(), u'"', u'\'');
    feld.setText(text);
    hinweisen(programm,
              u"Anführungszeichen, die Sie einfügen wollen, werden zur Programmsteuerung benötigt. "
              u"Sie werden in einfache Zeichen umgewandelt. Benutzen Sie diese doppelt, wenn sie "
              u"unbedingt benötigt werden.");
}

void AnfuehrungszeichenFernhalten(TextBox& feld, std::function<void()> danach) {
    feld.onKeyPress = [&feld](char16_t& taste) {
        AnfuehrungszeichenTaste(feld.screen().programm(), taste);
    };
    feld.onChange = [&feld, danach = std::move(danach)] {
        AnfuehrungszeichenAenderung(feld.screen().programm(), feld);
        if (danach)
            danach();
    };
}

Text AnfuehrungszeichenErsetzen(Text text, int anzahl) {
    for (int i = 0; i < anzahl; ++i) {
        const size_t stelle = text.find(u'"');
        if (stelle == Text::npos)
            break;
        text[stelle] = u'\'';
    }
    return text;
}

Text MitEinfuegung(Programm& programm, const TextBox& feld, const Textregeln& regeln) {
    const Text einfuegung = programm.machine().clipboard.text();
    if (einfuegung.empty())
        return feld.text();
    return EinfuegungEinsetzen(feld.text(), feld.selectionEnd(), einfuegung, regeln);
}

} // namespace zeugnis
