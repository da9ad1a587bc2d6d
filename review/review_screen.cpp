#include "review/review_screen.h"

#include "common/screen_names.h"
#include "common/word_launch.h"
#include "controls/program.h"
#include "files/file_catalogue.h"
#include "files/pupil_records.h"

#include <algorithm>
#include <array>
#include <span>

namespace zeugnis {
namespace {

constexpr Farbwert FarbeNaechsterSchritt = 0x80FF80;
constexpr Farbwert FarbeEnde = 0x0000FF;
constexpr int GeleseneBasisfelder = 8;
constexpr size_t Linienlaenge = 65;

constexpr int Interessen = 2;
constexpr int FoerderAG = 10;

constexpr TextView InteressenUnten = u"Interessen und Fertigkeiten";
constexpr TextView InteressenOben = u"Besondere Interessen";

struct Abschnitt {
    int Box;
    TextView Ueberschrift; ///< without its colon; empty where it goes by year
};
// In the order of the text.
constexpr std::array<Abschnitt, GsAnzeige::Abschnittszahl> Abschnitte = std::to_array<Abschnitt>({
    {0, u"Arbeitsverhalten"},
    {1, u"Sozialverhalten"},
    {Interessen, {}},
    {3, Kompetenzbereiche[0]},
    {4, Kompetenzbereiche[1]},
    {5, Kompetenzbereiche[2]},
    {6, Kompetenzbereiche[3]},
    {7, Kompetenzbereiche[4]},
    {8, Kompetenzbereiche[5]},
    {FoerderAG, u"Förder und Arbeitsgemeinschaften"},
    {9, u"Bemerkungen"},
});

// Which box the texts of a store belong to, in the order of its fields.
constexpr std::array<int, AbschnitteAVSV> BoxenAVSV = std::to_array({0, 1});
constexpr std::array<int, Abschnitte12> Boxen12 = std::to_array({Interessen, 3, 4, 5, 6, 7, 8, 9});
constexpr std::array<int, Abschnitte34> Boxen34 = std::to_array({FoerderAG, Interessen, 9});

Text mitDoppelpunkt(TextView ueberschrift) { return Text(ueberschrift) + u":"; }

Text trennlinie() { return Text(Linienlaenge, u'_'); }

} // namespace

std::vector<Text> GsAnzeige::Ueberschriften() {
    std::vector<Text> alle = {mitDoppelpunkt(InteressenUnten), mitDoppelpunkt(InteressenOben)};
    for (const Abschnitt& abschnitt : Abschnitte)
        if (!abschnitt.Ueberschrift.empty())
            alle.push_back(mitDoppelpunkt(abschnitt.Ueberschrift));
    return alle;
}

GsAnzeige::GsAnzeige(Programm& programm)
    : Screen(programm, bildschirme::GsAnzeige, u"Anzeige der bisherigen Texte") {
    EntwurfSetzen();
    Check1.on(&Control::onClick, this, &GsAnzeige::Check1_Click);
    Command1.on(&Control::onClick, this, &GsAnzeige::Command1_Click);
    Command8.onClick = [this] { Command8_Click(); };
}

void GsAnzeige::EntwurfSetzen() {
    Label1.Caption = u"Wählen Sie unten die anzuzeigenden Inhalte aus!";
    for (const Abschnitt& abschnitt : Abschnitte)
        Check1(abschnitt.Box).Caption = abschnitt.Ueberschrift;
    Check1(Interessen).Caption = InteressenUnten;
    Check1(FoerderAG).Caption = u"Förder und AG";
    Text1.Locked = true;
    Command1(0).Caption = u"Text laden";
    Command1(0).ToolTip = u"Den Text für ausgewählte Zeugnisteile laden";
    Command1(1).Caption = u"Text in Word übertragen";
    Command1(1).ToolTip = u"Ausgewählten Text ausdrucken";
    Command1(2).Caption = u"Ende";
    Command1(2).ToolTip = u"Zurück zum Startmenü";
    Command1(0).Enabled = Command1(1).Enabled = false;
}

void GsAnzeige::AnzeigeLaden() {
    Command1(2).BackColor = FarbeEnde;
    TexteLesen();
    Label2.Caption = u"Bisherige Eintragungen für die Klasse " + Liste.Klasse + u" im Schuljahr " +
                     Schule.Schuljahr + u"  " + Schule.Halbjahr + u". Halbjahr";
    Text1.setText(u"Nach der Auswahl und dem Anklicken der Taste 'Text laden' erscheinen hier die "
                  u"bisherigen, mit dem Programm erarbeiteten Einträge.\r\nSie können hier nicht "
                  u"überarbeitet werden.\r\n\r\nDer Text lässt sich mit der Taste\r\n\r\n"
                  u"           'Text in Word übertragen'\r\n\r\nin ein Worddokument einfügen und "
                  u"kann dann ausgedruckt werden.");
}

void GsAnzeige::TexteLesen() {
    Arbeitsverzeichnis& verzeichnis = programm().directory();
    {
        const Ordnerwechsel in(verzeichnis, dateien::Daten);
        Schule = BasisdatenLesen(verzeichnis, GeleseneBasisfelder);
    }
    Liste = NamenLaden(verzeichnis);
    Jahrgang = numberFromText(Liste.Klasse.substr(0, 1), u"Das erste Zeichen der Klasse");

    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    const auto lesen = [&](const Speicherdatei& datei, std::span<const int> boxen) {
        JeSchuelerLesen(verzeichnis, datei,
                        [&](RecordReader& reader, int platz, const Schuelerkopf&) {
                            for (const int box : boxen)
                                Texte[box][platz] = reader.text();
                        });
    };
    lesen(speicherdateien::AVSVTexte, BoxenAVSV);
    if (istUnten())
        lesen(speicherdateien::Texte12, Boxen12);
    else
        lesen(speicherdateien::Texte34, Boxen34);
    Check1(FoerderAG).Visible = !istUnten();
    if (istUnten())
        return;
    for (int box = 3; box <= 8; ++box)
        Check1(box).Visible = false;
    Check1(Interessen).Caption = mitDoppelpunkt(InteressenOben);
}

bool GsAnzeige::etwasGewaehlt() const {
    return std::any_of(Gewaehlt.begin(), Gewaehlt.end(), [](bool einer) { return einer; });
}

void GsAnzeige::Check1_Click(int Index) {
    Gewaehlt[Index] = Check1(Index).value();
    if (!etwasGewaehlt())
        return;
    Command1(0).Enabled = true;
    Command1(0).BackColor = FarbeNaechsterSchritt;
}

void GsAnzeige::Command1_Click(int Index) {
    if (Index == 0) {
        TextLaden();
    } else if (Index == 1) {
        TextInZwischenablage();
        WordStarten(programm(), Text(word::Anzeigetext));
    } else {
        programm().unload(name());
    }
}

void GsAnzeige::TextLaden() {
    KopfSetzen(KlassenTextBilden());
    Command1(0).Enabled = false;
    Command1(0).BackColor = Frame1.BackColor;
    if (!etwasGewaehlt())
        return;
    Command1(1).Enabled = true;
    Command1(1).BackColor = FarbeNaechsterSchritt;
}

Text GsAnzeige::KlassenTextBilden() const {
    const Text ende(Zeilenende);
    Text klasse;
    for (int platz = 0; platz < Liste.Schuelerzahl; ++platz) {
        const Schueler& kind = Liste.Kinder[platz];
        klasse += kind.Nachname + u", " + kind.Vorname + ende;
        for (const Abschnitt& abschnitt : Abschnitte) {
            if (!Gewaehlt[abschnitt.Box])
                continue;
            if (abschnitt.Box != 0)
                klasse += ende;
            klasse += mitDoppelpunkt(abschnitt.Box != Interessen ? abschnitt.Ueberschrift
                                     : istUnten()                ? InteressenUnten
                                                                 : InteressenOben);
            klasse += ende;
            klasse += Texte[abschnitt.Box][platz];
            klasse += ende;
        }
        klasse += trennlinie() + ende;
    }
    return klasse;
}

void GsAnzeige::KopfSetzen(const Text& klassentext) {
    Text1.setText(Schule.Schulname + u"  " + Schule.Schulzusatz + u"\r\nKlasse: " + Liste.Klasse +
                  u"   Schuljahr: " + Schule.Schuljahr + u"  " + Schule.Halbjahr +
                  u". Halbjahr\r\nBisherige Einträge im Zeugnisprogramm\r\n" + trennlinie() +
                  Text(Zeilenende) + klassentext + u"\r\n\r\n\r\n");
}

void GsAnzeige::TextInZwischenablage() {
    Clipboard& ablage = programm().machine().clipboard;
    ablage.clear();
    ablage.setText(Text1.text());
}

void GsAnzeige::Command8_Click() { WordStarten(programm(), word::Hilfe(5)); }

} // namespace zeugnis
