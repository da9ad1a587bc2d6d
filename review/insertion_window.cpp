#include "review/insertion_window.h"

#include "common/screen_names.h"
#include "common/text_input.h"
#include "controls/program.h"
#include "files/insertion_files.h"
#include "platform/code_page.h"

#include <array>
#include <span>
#include <utility>

namespace zeugnis {
namespace {

constexpr int FuerEditorAVSV = 4;
constexpr int FuerEditorJahrgang = 5;
constexpr TextView Trennstrich = u"\r\n___________________________";
constexpr TextView LeereListe = u"Es sind keine Eintragungen vorhanden";
constexpr int ErsetzteAnfuehrungszeichen = 10;

// An entry of a placeholder list: the row and the blanks that align its explanation.
struct Eintrag {
    int Zeile;
    int Leerzeichen;
};

// The entries behind the head (row 0 with 12 blanks) and the line of underscores.
constexpr Eintrag Kopf{0, 12};
constexpr Eintrag KurzeListe[] = {{1, 8}, {2, 11}, {4, 11}, {6, 11}, {8, 20}};
constexpr Eintrag VolleListe[] = {{1, 8},  {2, 11}, {3, 13}, {4, 11}, {5, 12}, {6, 11},
                                  {7, 10}, {8, 20}, {9, 8},  {10, 9}, {11, 6}};
constexpr int ErsterEintrag = 2;

TextView dateiFuer(int aktivForm) {
    return aktivForm == 0 ? dateien::Einfuegungen1 : dateien::Einfuegungen2;
}

} // namespace

Einfuegungen::Einfuegungen(Programm& programm)
    : Screen(programm, bildschirme::Einfuegungen,
             u"Einfügetexte - Dieses Fenster ist hier verschiebbar!!") {
    Check1.Caption = u"Fenster immer im Vordergrund";
    List1.onClick = [this] { List1_Click(); };
    Check1.onClick = [this] { Check1_Click(); };
    Command1.on(&Control::onClick, this, &Einfuegungen::Command1_Click);
}

void Einfuegungen::load() {
    const Ordnerwechsel in(programm().directory(), dateien::Daten);
    PlatzhalterLesen();
    Check1.setValue(true);
    AktivForm = AktivFormLesen(programm().directory());
    if (dientEingabe())
        TexteLesen();
    else if (AktivForm == FuerEditorAVSV || AktivForm == FuerEditorJahrgang)
        PlatzhalterZeigen();
    Label1.Caption = u"Wählen Sie den gewünschten Eintrag unten aus und doppelklicken Sie auf die "
                     u"Einfügestelle!";
    Command1(0).Caption = u"Markierten Eintrag löschen";
    Command1(1).Caption = u"Alle Einträge löschen";
    Command1(2).Caption = u"Neuen Text eingeben";
}

bool Einfuegungen::KopfzeileBeendet() const {
    return mitKopfzeile() && AktivForm == FuerEditorJahrgang;
}

void Einfuegungen::PlatzhalterLesen() {
    readNumberedRecords(programm().directory(), dateien::Platzhalter, PlatzhalterTexte.size(),
                        [&](RecordReader& reader, int zeile, int) {
                            Platzhaltersatz satz = PlatzhaltersatzLesen(reader);
                            PlatzhalterTexte[zeile] = std::move(satz.Platzhalter);
                            PlatzhalterHinweise[zeile] = std::move(satz.Hinweis);
                        });
}

void Einfuegungen::TexteLesen() {
    for (const Text& text : EinfuegetexteLesen(programm().directory(), dateiFuer(AktivForm)))
        List1.addItem(text);
    Command1.each([](Button& taste) { taste.Visible = true; });
}

void Einfuegungen::PlatzhalterZeigen() {
    const auto zeigen = [this](const Eintrag& eintrag) {
        List1.addItem(PlatzhalterTexte[eintrag.Zeile] +
                      Text(static_cast<size_t>(eintrag.Leerzeichen), u' ') +
                      PlatzhalterHinweise[eintrag.Zeile] + Text(Zeilenende));
    };
    const std::span<const Eintrag> eintraege =
        AktivForm == FuerEditorAVSV ? std::span<const Eintrag>(KurzeListe) : VolleListe;
    zeigen(Kopf);
    List1.addItem(Text(Trennstrich));
    for (const Eintrag& eintrag : eintraege)
        zeigen(eintrag);
    Command1.each([](Button& taste) { taste.Visible = false; });
}

void Einfuegungen::Check1_Click() { AlwaysOnTop = Check1.value(); }

void Einfuegungen::List1_Click() {
    Clipboard& ablage = programm().machine().clipboard;
    const int index = List1.listIndex();
    if (dientEingabe()) {
        ablage.clear();
        ablage.setText(List1.entries()[static_cast<size_t>(index)]);
    } else if (AktivForm == FuerEditorAVSV) {
        ablage.clear();
        const int eintrag = index - ErsterEintrag;
        if (eintrag >= 0 && eintrag < static_cast<int>(std::size(KurzeListe)))
            ablage.setText(PlatzhalterTexte[KurzeListe[eintrag].Zeile]);
    } else if (AktivForm == FuerEditorJahrgang) {
        // The line of underscores gives row 0, and the head has no row.
        ablage.clear();
        ablage.setText(PlatzhalterTexte[index - 1]);
    }
}

void Einfuegungen::Command1_Click(int Index) {
    programm().machine().clipboard.clear();
    if (Index == 0)
        MarkiertenLoeschen();
    else if (Index == 1)
        AlleLoeschen();
    else
        NeuenEingeben();
}

void Einfuegungen::MarkiertenLoeschen() {
    List1.removeItem(List1.listIndex());
    ListeSchreiben();
}

void Einfuegungen::AlleLoeschen() {
    List1.clear();
    const Ordnerwechsel in(programm().directory(), dateien::Daten);
    EinfuegetexteSchreiben(programm().directory(), dateiFuer(AktivForm),
                           std::array{Text(LeereListe)});
}

void Einfuegungen::NeuenEingeben() {
    const std::optional<Text> eingabe = programm().machine().dialogs.input(
        u"Einfügetext",
        u"Geben Sie bitte den Text ein!\r\nAls Platzhalter können Sie hier <Vorname>, <Er/Sie>, "
        u"<sie/er>, <Ihm/Ihr>, <ihr/ihm>, <Sein/Ihr>, <ihr/sein>, die Endung <in>, <Schuljahr>, "
        u"<Nextschj> oder <Konferenz> benutzen.");
    if (!eingabe || eingabe->empty())
        return;
    List1.addItem(
        AnfuehrungszeichenErsetzen(nearestInWindows1252(*eingabe), ErsetzteAnfuehrungszeichen));
    ListeSchreiben();
}

void Einfuegungen::ListeSchreiben() {
    const Ordnerwechsel in(programm().directory(), dateien::Daten);
    EinfuegetexteSchreiben(programm().directory(), dateiFuer(AktivForm), List1.entries());
}

} // namespace zeugnis
