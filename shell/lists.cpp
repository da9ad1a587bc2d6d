#include "shell/lists.h"

#include "common/screen_names.h"
#include "common/word_launch.h"
#include "controls/program.h"

#include <array>

namespace zeugnis {
namespace {

struct Taste {
    TextView Beschriftung;
    TextView Befehl;
};
constexpr std::array<Taste, 6> Listentasten =
    std::to_array<Taste>({{u"Zeugnisanlagen", word::Zeugnisanlagen},
                          {u"Klassenliste", word::Klassenliste},
                          {u"Strichliste", word::Strichliste},
                          {u"Bildbenennungs-Liste", word::Bilderliste},
                          {u"Leere Zeugnisse", word::LeereZeugnisse},
                          {u"Beenden", {}}});

} // namespace

Listen::Listen(Programm& programm)
    : Screen(programm, bildschirme::Listen,
             u"Listenerstellung- Dieses Fenster ist hier verschiebbar!!") {
    Label1.Caption =
        u"Sie können hier mit dem Programm Winword automatisch verschiedene Listen erstellen, die "
        u"eingegebene Daten des Programmes nutzen. Sie können sie bei Bedarf in Winword "
        u"ausdrucken.";
    Command1.each([](Button& taste) {
        taste.Caption = Listentasten[static_cast<size_t>(*taste.index())].Beschriftung;
    });
    Command1.on(&Control::onClick, this, &Listen::Command1_Click);
}

void Listen::Command1_Click(int Index) {
    const Taste& taste = Listentasten[static_cast<size_t>(Index)];
    if (taste.Befehl.empty())
        programm().unload(name());
    else
        WordStarten(programm(), Text(taste.Befehl));
}

} // namespace zeugnis
