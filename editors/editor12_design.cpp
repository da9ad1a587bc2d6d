// The tables of the screen: its files, which box shows which cell, its hints; what stands on it
// before it loads, and which routine answers which event.

#include "common/editor_common.h"
#include "common/screen_names.h"
#include "editors/editor12.h"
#include "files/school_data.h"
#include "files/section_stores.h"

namespace zeugnis {
namespace {

enum Datei {
    Interessen,
    Sprechen,
    Lesen,
    Schreiben,
    Mathe,
    Bemerkungen,
    Versetzung,
    Zwischen,
    Dateienzahl
};

constexpr auto Dateien = std::to_array<Moduldatei>(
    {moduldateien::Interessen12, moduldateien::Sprechen, moduldateien::Lesen,
     moduldateien::Schreiben, moduldateien::Mathe, moduldateien::Bemerkungen12,
     moduldateien::Versetzung12, moduldateien::Zwischentexte});
static_assert(Dateien.size() == Dateienzahl);

bool imJahr2(const Bausteineditor& editor) { return IstZahl(editor.Jahrgangsziffer, 2); }
bool nichtImJahr2(const Bausteineditor& editor) { return !imJahr2(editor); }

// A phrase that the program puts in front stands in one red box.
constexpr Feldreihe rot(int textfeld, int box, int zeile,
                        bool (*gilt)(const Bausteineditor&) = nullptr) {
    return {textfeld, box, 1, Zwischen, 1, zeile, true, gilt};
}

constexpr auto Feldertafel = std::to_array<Feldreihe>({
    {1, 0, 1, Interessen, 1, 0, true},
    {1, 1, 15, Interessen, 1, 1},
    {2, 0, 4, Sprechen, 1},
    {2, 4, 4, Sprechen, 2},
    {2, 8, 4, Sprechen, 3},
    {3, 0, 7, Lesen, 1},
    {3, 7, 7, Lesen, 2},
    {3, 14, 7, Lesen, 3},
    {3, 21, 4, Lesen, 4},
    {3, 25, 4, Lesen, 5},
    {3, 29, 4, Lesen, 6},
    {4, 0, 4, Schreiben, 1},
    {4, 4, 4, Schreiben, 2},
    {4, 8, 4, Schreiben, 3},
    {4, 13, 4, Schreiben, 4},
    {4, 18, 6, Schreiben, 5},
    {4, 25, 6, Schreiben, 6},
    {5, 1, 5, Mathe, 1},
    {5, 7, 2, Mathe, 7},
    {5, 9, 5, Mathe, 2},
    {5, 15, 6, Mathe, 3},
    {5, 22, 4, Mathe, 4},
    {5, 26, 1, Mathe, 5},
    {5, 28, 5, Mathe, 6},
    // The last rows of columns 8 to 11 lie on red boxes, which are shown last and win; on taking
    // back these cells receive the phrase.
    {6, 1, 4, Mathe, 8},
    {6, 5, 4, Mathe, 9},
    {6, 9, 4, Mathe, 10},
    {6, 13, 4, Mathe, 11},
    {6, 17, 4, Mathe, 12},
    {7, 1, 3, Mathe, 13},
    {7, 5, 3, Mathe, 14},
    {7, 9, 3, Mathe, 15},
    {7, 13, 4, Mathe, 16},
    {7, 18, 4, Mathe, 17},
    {7, 23, 4, Mathe, 18},
    {8, 0, 1, Bemerkungen, 1},
    {8, 2, 8, Bemerkungen, 2},
    {8, 10, 8, Bemerkungen, 3},
    {8, 18, 4, Versetzung},
    rot(4, 31, 0),
    rot(4, 12, 1),
    rot(4, 17, 2),
    rot(4, 24, 21),
    rot(5, 0, 3),
    rot(5, 6, 4),
    rot(5, 14, 5, imJahr2),
    rot(5, 14, 21, nichtImJahr2),
    rot(5, 21, 6),
    rot(5, 27, 7),
    rot(6, 0, 8),
    rot(6, 4, 9),
    rot(6, 8, 10),
    rot(6, 12, 11),
    rot(6, 16, 12),
    rot(7, 0, 13),
    rot(7, 4, 14),
    rot(7, 8, 15),
    rot(7, 12, 16),
    rot(7, 17, 17),
    rot(7, 22, 18),
    rot(8, 1, 19),
});

constexpr auto ZuKopieren = std::to_array<TextView>(
    {u"Interessen12.Txt", u"Sprechen1.Txt", u"Sprechen2.Txt", u"Lesen1.Txt", u"Lesen2.Txt",
     u"Schreiben1.Txt", u"Schreiben2.Txt", u"Mathe1.Txt", u"Mathe2.Txt", u"Bemerkungen1.Txt",
     u"Bemerkungen2.Txt", u"Versetzung1.Txt", u"Versetzung2.Txt", u"Zwischentexte.Txt"});

struct Seite {
    TextView Taste;
    TextView Rahmen;
    bool MitRotem = true;
    bool MitBlauem = false;
};
constexpr std::array<Seite, GSAenderung12::Seitenzahl> Seiten = std::to_array<Seite>({
    {u"Interessen", u"Interessen, Fähigkeiten, Fertigkeiten", false},
    {u"Deutsch Sprechen und Zuhören", Kompetenzbereiche[0], false},
    {u"Deutsch Lesen Texte", Kompetenzbereiche[1], false},
    {u"Deutsch Schreiben Texte", Kompetenzbereiche[2]},
    {u"Mathe Zahlen Operationen", Kompetenzbereiche[3]},
    {u"Mathe Größen Messen", Kompetenzbereiche[4]},
    {u"Mathe  Raum Form", Kompetenzbereiche[5]},
    {u"Bemerkungen", u"Bemerkungen und Versetzung", true, true},
});

constexpr TextView HinweisVorname =
    u"Der Vorname wird hier vom Programm automatisch davorgesetzt. Auch der Punkt am Ende wird vom "
    u"Programm gesetzt. Kommata bitte nur in der Mitte des Textes einfügen.";
constexpr TextView HinweisPunkt = u"Der Punkt am Ende wird vom Programm gesetzt. Kommata bitte nur "
                                  u"in der Mitte des Textes einfügen.";
constexpr TextView HinweisRot =
    u"Der rote Text ist zwar veränderbar, wird aber automatisch davorgesetzt.";
constexpr TextView HinweisBlau =
    u"In den blau hinterlegten Feldern ist eine Mehrfachauswahl möglich.";
constexpr TextView HinweisPlatzhalter = u"Nutzen Sie für die Platzhalter die Textvorgaben !";

Text hinweis(TextView erste, const Seite& seite) {
    Text zeilen = Text(erste) + Text(Zeilenende);
    if (seite.MitRotem)
        zeilen += Text(HinweisRot) + Text(Zeilenende);
    if (seite.MitBlauem)
        zeilen += Text(HinweisBlau) + Text(Zeilenende);
    return zeilen + Text(HinweisPlatzhalter);
}

} // namespace

GSAenderung12::GSAenderung12(Programm& programm)
    : Bausteineditor(
          programm, bildschirme::GSAenderung12, u"Änderung der Texte 1 und 2",
          {.Dateien = Dateien,
           .Felder = Feldertafel,
           .StandardZuKopieren = ZuKopieren,
           .SpeichernFrage =
               u"Sie überschreiben jetzt die aktuellen Formulierungen mit dem hier in allen "
               u"Bereichen sichtbaren Text. Im Programm für das 1. und 2. Schuljahr stehen dann "
               u"nur die neuen Formulierungen zur Verfügung. Wollen Sie das wirklich ?",
           .EndeFrage = u"Sie haben eventuelle Änderungen noch nicht gespeichert. Wollen Sie jetzt "
                        u"noch speichern ?"}) {
    EntwurfSetzen();
    HandlerVerbinden();
}

Frame& GSAenderung12::rahmen(int seite) {
    const std::array<Frame*, Seitenzahl> alle = std::to_array<Frame*>(
        {&Frame1, &Frame2, &Frame3, &Frame4, &Frame5, &Frame6, &Frame7, &Frame8});
    return *alle.at(static_cast<size_t>(seite));
}

const ControlArray<TextBox>& GSAenderung12::textfeld(int nummer) const {
    const std::array<const ControlArray<TextBox>*, Seitenzahl> alle =
        std::to_array<const ControlArray<TextBox>*>(
            {&Text1, &Text2, &Text3, &Text4, &Text5, &Text6, &Text7, &Text8});
    return *alle.at(static_cast<size_t>(nummer - 1));
}

void GSAenderung12::HinweisNachLaden() { Label3.Caption = hinweis(HinweisVorname, {}); }

void GSAenderung12::HinweisZeigen(int taste) {
    Label3.Caption = hinweis(HinweisPunkt, Seiten.at(static_cast<size_t>(taste - ErsteSeite)));
}

void GSAenderung12::EntwurfSetzen() {
    Label1.Caption = u"Eingabefenster zur Änderung der Textbausteine";
    Label2(0).Caption = u"  In der ersten Zeile stehen Bemerkungen zum Schwimm- und "
                        u"Sportabzeichen. -  Sie sind programmgesteuert und nicht veränderbar.";
    Label2(1).Caption = u"  In der zweiten Zeile stehen Bemerkungen zur Teilnahme an "
                        u"Arbeitsgemeinschaften. - Sie sind programmgesteuert und nicht "
                        u"veränderbar.";
    Label3.Caption = u"Hinweise zur Änderung";
    Label4.Caption = u"Wählen Sie bitte erst die gewünschten Textbausteine und danach den "
                     u"Kompetenzbereich !";
    for (int seite = 0; seite < Seitenzahl; ++seite) {
        const Seite& eine = Seiten.at(static_cast<size_t>(seite));
        rahmen(seite).Caption = eine.Rahmen;
        rahmen(seite).Visible = false;
        Command1(ErsteSeite + seite).Caption = eine.Taste;
        Command1(ErsteSeite + seite).Enabled = false;
    }
    Text1(0).Enabled = false;
    Text1(0).Locked = true;
    Text1(0).BackColor = FarbeVorgegeben;
    for (int i = 2; i <= 9; ++i)
        Text8(i).BackColor = FarbeMehrfachwahl;
    Text29.each([](TextBox& feld) { feld.Locked = true; });
    Command2(0).Caption = u"Textvorgaben für Platzhalter anzeigen";
    Command2(1).Caption = u"Textvorgaben für Platzhalter verbergen";
    Command2.each([](Button& taste) { taste.Enabled = false; });
    Command3(0).Caption = u"Standardtextbausteine laden";
    Command3(1).Caption = u"AktuelleTextbausteine laden";
    Command5.Caption = u"Alles als aktuelle Textbausteine speichern";
    Command5.Enabled = false;
    Command6.Caption = u"Beenden";
}

void GSAenderung12::HandlerVerbinden() {
    using Diese = GSAenderung12;
    Label1.onDblClick = [this] { Label1_DblClick(); };
    Command1.on(&Control::onClick, this, &Diese::Command1_Click);
    Command2.on(&Control::onClick, this, &Diese::Command2_Click);
    Command3.on(&Control::onClick, this, &Diese::Command3_Click);
    Command5.onClick = [this] { Command5_Click(); };
    Command6.onClick = [this] { Command6_Click(); };
    Command8.onClick = [this] { Command8_Click(); };
    FelderVerbinden(1, Seitenzahl);
}

} // namespace zeugnis
