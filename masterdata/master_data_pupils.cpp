// What the master data screen does with the class list and the working groups.

#include "common/text_input.h"
#include "controls/program.h"
#include "masterdata/master_data_screen.h"
#include "masterdata/store_reset.h"
#include "platform/code_page.h"

namespace zeugnis {
namespace {

constexpr int LetztesSchulfeld = 9; // releasing the pupils leaves the class teacher's name locked
constexpr int ErsetzteAnfuehrungszeichen = 11;
constexpr std::array<TextView, 2> Geschlechter = std::to_array<TextView>({u"m", u"w"});

template <typename T>
size_t platz(const T& control) {
    return static_cast<size_t>(*control.index());
}

} // namespace

void GsBasis::NamenLaden() {
    Liste.NamenLaden(programm().directory());
    for (int i = 1; i <= Liste.Schuelerzahl; ++i)
        Combo1.addItem(Liste.NummerText[i]);
}

void GsBasis::ErstenWaehlen() {
    if (!Combo1.entries().empty())
        Combo1.setListIndex(0);
}

void GsBasis::Combo1_Click() {
    AktuellerSchueler = Combo1.listIndex();
    SchuelerZeigen();
}

void GsBasis::SchuelerZeigen() {
    Text2.each(
        [this](TextBox& feld) { feld.setText(schueler().*Schuelerfelder.at(platz(feld)).Wert); });
    Option1.each([this](OptionButton& option) {
        if (schueler().Geschlecht == Geschlechter.at(platz(option)))
            option.setValue(true);
    });
    Text3.each([this](TextBox& feld) { feld.setText(schueler().AG.at(platz(feld))); });
}

void GsBasis::SchuelerUebernehmen() {
    Text2.each(
        [this](TextBox& feld) { schueler().*Schuelerfelder.at(platz(feld)).Wert = feld.text(); });
    Option1.each([this](OptionButton& option) {
        if (option.value())
            schueler().Geschlecht = Geschlechter.at(platz(option));
    });
    Text3.each([this](TextBox& feld) { schueler().AG.at(platz(feld)) = feld.text(); });
}

void GsBasis::Option1_Click(int Index) {
    schueler().Geschlecht = Geschlechter.at(static_cast<size_t>(Index));
}

void GsBasis::Command5_Click() {
    SchuelerdatenFreigeben();
    if (LetzteAntwort != Antwort::Nein)
        SchuelerBearbeiten();
}

void GsBasis::SchuelerdatenFreigeben() {
    const Antwort antwort =
        fragen(u"Wenn Sie Änderungen an den Schülerdaten vornehmen, werden alle Listen und "
               u"Eingaben für die Schüler neu angelegt, da es sonst zu Fehlfunktionen des "
               u"Programmes kommt. Wollen Sie mit dem Programm neu anfangen?");
    if (antwort != Antwort::Ja)
        return;
    for (int i = 0; i <= LetztesSchulfeld; ++i)
        Text1(i).Enabled = i != SibankFeld;
    SpeicherLoeschen = true;
}

void GsBasis::SchuelerBearbeiten() {
    Command4.each([](Button& taste) { taste.Visible = true; });
    Command6.Visible = true;
    Command5.Visible = false;
    const auto freigeben = [](Control& control) { control.Enabled = true; };
    Text2.each(freigeben);
    Text3.each(freigeben);
    Option1.each(freigeben);
    List1.Enabled = true;
    Command2.each(freigeben);
    Text1(SibankFeld).Enabled = false;
    SpeichernAnbieten();
}

void GsBasis::Command4_Click(int Index) {
    constexpr std::array Aufgaben = {&GsBasis::ListeNeuBeginnen, &GsBasis::SchuelerLoeschen,
                                     &GsBasis::SchuelerHinzufuegen};
    (this->*Aufgaben.at(static_cast<size_t>(Index)))();
}

void GsBasis::ListeNeuBeginnen() {
    Combo1.clear();
    ListeNeuAnlegen();
    SpeicherLeeren(programm().directory(), Liste);
    setFocus(Text2(1));
}

void GsBasis::ListeNeuAnlegen() {
    Liste.LeereListeSchreiben(programm().directory());
    NamenLaden();
    AktuellerSchueler = 0;
    SchuelerZeigen();
    ErstenWaehlen();
}

void GsBasis::SchuelerLoeschen() {
    Combo1.removeItem(Combo1.listIndex());
    Liste.SchuelerEntfernen(AktuellerSchueler);
    Combo1.clear();
    Liste.NummernBilden();
    for (int i = 1; i <= Liste.Schuelerzahl; ++i)
        Combo1.addItem(Liste.NummerText[i]);
    SchuelerZeigen();
    BasisSpeichern();
    SpeicherLeeren(programm().directory(), Liste);
    if (Liste.Schuelerzahl == 0)
        ListeNeuAnlegen();
    ErstenWaehlen();
}

void GsBasis::SchuelerHinzufuegen() {
    if (Liste.SchuelerAnfuegen()) {
        Combo1.addItem(Liste.NummerText[Liste.Schuelerzahl]);
        Combo1.setListIndex(static_cast<int>(Combo1.entries().size()) - 1);
    } else {
        programm().machine().dialogs.message(
            {.text = u"Die Zahl der Schüler darf maximal 33 betragen!"});
    }
    setFocus(Text2(1));
    BasisSpeichern();
    SpeicherLeeren(programm().directory(), Liste);
}

void GsBasis::SchuelerSortieren() {
    for (int i = 0; i < Liste.Schuelerzahl; ++i)
        List2.addItem(Sortierzeile(Liste.Kinder[i]));
    Liste.OrdnungUebernehmen(programm().directory(), List2.entries());
    Combo1.clear();
    NamenLaden();
    ErstenWaehlen();
    List2.clear();
}

void GsBasis::Command2_Click(int Index) {
    if (Index == 1) {
        List1.clear();
        return;
    }
    const Text eingabe = programm()
                             .machine()
                             .dialogs.input(u"AG-Eingabe", u"Geben Sie bitte den Namen der AG ein!")
                             .value_or(Text());
    List1.addItem(
        AnfuehrungszeichenErsetzen(nearestInWindows1252(eingabe), ErsetzteAnfuehrungszeichen));
}

void GsBasis::List1_Click() {
    GewaehlteAG = List1.entries().at(static_cast<size_t>(List1.listIndex()));
}

void GsBasis::Text3_DblClick(int Index) {
    Text3(Index).setText(GewaehlteAG);
    Gespeichert = false;
    MaskeUebernehmen();
}

} // namespace zeugnis
