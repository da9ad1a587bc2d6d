#include "masterdata/master_data_screen.h"

#include "common/text_input.h"
#include "common/word_launch.h"
#include "controls/program.h"
#include "files/ag_list.h"
#include "files/file_catalogue.h"
#include "files/sibank_path.h"
#include "masterdata/store_reset.h"

namespace zeugnis {
namespace {

constexpr Farbwert Speicherrot = 0xFF;
constexpr int HalbjahrFeld = 4;

template <Text Schuldaten::*Feld>
Text& ausSchule(GsBasis& basis) {
    return basis.Schule.*Feld;
}

// What the key filter of a box lets through. With a memory, only until that holds one of these.
struct Tastenregel {
    int Feld;
    TextView Erlaubt;
    Text GsBasis::*Gedaechtnis;
    TextView Hinweis;
};
constexpr auto Tastenregeln = std::to_array<Tastenregel>({
    {3, u"2", &GsBasis::ErsteZifferSchuljahr,
     u"Geben Sie die Jahreszahl im Format 2005/2006 von vorn beginnend ein!"},
    {HalbjahrFeld, u"12", nullptr, u"Es sind nur die Ziffern 1 und 2 erlaubt!"},
    {5, u"1234", &GsBasis::ErsteZifferKlasse,
     u"Am Anfang dürfen nur die Ziffern 1, 2, 3 oder 4 stehen!"},
});

bool enthaelt(TextView erlaubt, const Text& zeichen) {
    return !zeichen.empty() && erlaubt.find(zeichen) != TextView::npos;
}

} // namespace

const std::array<Schulfeld, 11> Schulfelder = std::to_array<Schulfeld>({
    {u"Name:", ausSchule<&Schuldaten::Schulname>},
    {u"Zusatz:", ausSchule<&Schuldaten::Schulzusatz>},
    {u"Anschrift:", ausSchule<&Schuldaten::Schulanschrift>},
    {u"Schuljahr:", ausSchule<&Schuldaten::Schuljahr>},
    {u"Halbjahr:", ausSchule<&Schuldaten::Halbjahr>},
    {u"Klasse:", [](GsBasis& basis) -> Text& { return basis.Liste.Klasse; }},
    {u"Sibank-Pfad:", [](GsBasis& basis) -> Text& { return basis.SibankPfad; }},
    {u"Zeugnisausgabe-Datum:", ausSchule<&Schuldaten::Ausgabedatum>},
    {u"Zeugniskonferenz-Datum:", ausSchule<&Schuldaten::Konferenzdatum>},
    {u"Zeugnisausgabe-Ort:", ausSchule<&Schuldaten::Ausgabeort>},
    {u"Klassenleitung:", ausSchule<&Schuldaten::Klassenleitung>},
});

void GsBasis::BasisLaden() {
    {
        const Arbeitsverzeichnis& verzeichnis = programm().directory();
        const Ordnerwechsel in(programm().directory(), dateien::Daten);
        Schule = BasisdatenLesen(verzeichnis, BasisdatenFelder);
        SibankPfad = SibankpfadLesen(verzeichnis);
        for (const Text& eintrag : AGListeLesen(verzeichnis))
            List1.addItem(eintrag);
        Standardpfade = StandardpfadeLesen(verzeichnis);
    }
    NamenLaden();
    SchuldatenZeigen();
    Gespeichert = true;
    SpeicherLoeschen = false;
}

void GsBasis::SchuldatenZeigen() {
    Text1.each([this](TextBox& feld) {
        feld.setText(Schulfelder.at(static_cast<size_t>(*feld.index())).Wert(*this));
    });
    ErstenWaehlen();
}

void GsBasis::MaskeUebernehmen() {
    Text1.each([this](TextBox& feld) {
        Schulfelder.at(static_cast<size_t>(*feld.index())).Wert(*this) = feld.text();
    });
    SchuelerUebernehmen();
}

void GsBasis::Text1_KeyPress(int Index, char16_t& Taste) {
    for (const Tastenregel& regel : Tastenregeln) {
        Text* gedaechtnis = regel.Gedaechtnis == nullptr ? nullptr : &(this->*regel.Gedaechtnis);
        if (regel.Feld != Index ||
            (gedaechtnis != nullptr && enthaelt(regel.Erlaubt, *gedaechtnis)))
            continue;
        if (regel.Erlaubt.find(Taste) == TextView::npos) {
            Taste = 0;
            programm().machine().dialogs.message({.text = Text(regel.Hinweis)});
        }
        if (gedaechtnis != nullptr)
            *gedaechtnis = Text1(Index).text().substr(0, 1);
    }
    AnfuehrungszeichenTaste(programm(), Taste);
}

void GsBasis::Text_LostFocus() {
    Gespeichert = false;
    MaskeUebernehmen();
}

void GsBasis::SibankPfad_Click() {
    programm().machine().dialogs.message(
        {.text = u"Sie wollen den Pfad zur Sibank-Datei ändern. Geben Sie den richtigen Pfad ein "
                 u"und speichern Sie anschließend Ihre Änderung!",
         .symbol = Symbol::Stopp});
    SpeichernAnbieten();
    MaskeUebernehmen();
}

void GsBasis::SpeichernAnbieten() {
    Command1(0).Enabled = true;
    Command1(0).BackColor = Speicherrot;
}

Antwort GsBasis::fragen(TextView text) {
    LetzteAntwort =
        programm().machine().dialogs.message({.text = Text(text), .tasten = Tasten::JaNein});
    return LetzteAntwort;
}

void GsBasis::SchuldatenFreigeben() {
    const Antwort antwort =
        fragen(u"Wenn Sie Änderungen an den Schuldaten vornehmen, werden bei der Speicherung alle "
               u"Zeugnisinhalte der einzelnen Schüler gelöscht, da es sonst zu Fehlfunktionen des "
               u"Programmes kommt. Wollen Sie mit den Zeugniseingaben neu anfangen?");
    if (antwort != Antwort::Ja)
        return;
    Text1.each([](TextBox& feld) { feld.Enabled = true; });
    Text1(SibankFeld).Enabled = false;
    SpeichernAnbieten();
    Command3.Enabled = false;
    SpeicherLoeschen = true;
    // The question speaks of the save, yet the contents are gone with the Yes.
    SpeicherLeeren(programm().directory(), Liste);
}

void GsBasis::Command1_Click(int Index) {
    if (Index == 0) {
        AllesSpeichern();
        return;
    }
    if (!Gespeichert)
        SpeichernNachfragen();
    programm().end();
}

void GsBasis::AllesSpeichern() {
    HalbjahrBerichtigen();
    Liste.BildnamenBilden();
    if (SpeicherLoeschen)
        SpeicherLeeren(programm().directory(), Liste);
    BasisSpeichern();
    Gespeichert = true;
    ZeugnislisteStarten();
    SicherheitLeeren(programm().directory());
}

void GsBasis::HalbjahrBerichtigen() {
    if (!Liste.Klasse.starts_with(u'1') || Schule.Halbjahr != u"1")
        return;
    Text1(HalbjahrFeld).setText(u"2");
    Schule.Halbjahr = u"2";
    programm().machine().dialogs.message(
        {.text = u"Für das 1. Schuljahr können keine Zeugnisse für das 1. Halbjahr erstellt "
                 u"werden !!!",
         .symbol = Symbol::Ausrufezeichen,
         .titel = u"Hinweis"});
}

void GsBasis::BasisSpeichern() {
    Schule.NaechstesSchuljahr = NaechstesSchuljahrNach(Schule.Schuljahr);
    const Arbeitsverzeichnis& verzeichnis = programm().directory();
    const Ordnerwechsel in(programm().directory(), dateien::Daten);
    BasisdatenSchreiben(verzeichnis, Schule);
    SibankpfadSchreiben(verzeichnis, SibankPfad);
    Liste.NamenSchreiben(verzeichnis);
    AGListeSchreiben(verzeichnis, List1.entries());
    Liste.BildlisteSchreiben(verzeichnis);
}

void GsBasis::ZeugnislisteStarten() { WordStarten(programm(), Text(word::ZeugnislisteNeu)); }

void GsBasis::SpeichernNachfragen() {
    if (fragen(u"Sie haben Änderungen eventuell noch nicht gespeichert, wollen Sie das jetzt noch "
               u"tun?") == Antwort::Ja)
        BasisSpeichern();
}

bool GsBasis::Ungesichert() const {
    return !Gespeichert || SpeicherLoeschen || Text1(SibankFeld).text() != SibankPfad;
}

void GsBasis::Command7_Click(int Index) {
    const Text& pfad = Standardpfade.at(static_cast<size_t>(Index));
    Text1(SibankFeld).setText(pfad);
    SibankPfad = pfad;
    const Ordnerwechsel in(programm().directory(), dateien::Daten);
    SibankpfadSchreiben(programm().directory(), SibankPfad);
}

void GsBasis::Command8_Click() { WordStarten(programm(), word::Hilfe(9)); }

} // namespace zeugnis
