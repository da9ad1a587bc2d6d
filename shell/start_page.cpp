#include "shell/start_page.h"

#include "common/screen_names.h"
#include "common/word_launch.h"
#include "controls/program.h"
#include "files/file_catalogue.h"
#include "files/insertion_files.h"
#include "files/pupil_list.h"
#include "platform/failure.h"
#include "platform/record_reader.h"
#include "platform/record_writer.h"

#include <array>
#include <span>

namespace zeugnis {
namespace {

constexpr TextView TurnstundeHinweis = u"Klicken, um Turnstunde zu starten. Doppelklick: Ende";

constexpr std::array Inhaltsbildschirme = {
    bildschirme::GsArbeitsverhalten, bildschirme::GSAVSVAenderung, bildschirme::Kompetenzen,
    bildschirme::GsAnzeige,          bildschirme::GSAGFI,          bildschirme::GSAenderung12,
    bildschirme::GSAenderung34,      bildschirme::GsBasis};

// What a main button opens. Where two screens stand, the first is for years 1 and 2.
struct Ziel {
    TextView Unten;
    TextView Oben;
    bool MitEinfuegungen;

    [[nodiscard]] bool bleibtGeladen(TextView bildschirm) const {
        return bildschirm == Unten || bildschirm == Oben;
    }
};
constexpr std::array<Ziel, 7> Ziele = std::to_array<Ziel>({
    {bildschirme::GsArbeitsverhalten, bildschirme::GsArbeitsverhalten, true},
    {bildschirme::Kompetenzen, bildschirme::Kompetenzen, true},
    {bildschirme::GSAGFI, bildschirme::GSAGFI, true},
    {bildschirme::GsAnzeige, bildschirme::GsAnzeige, false},
    {bildschirme::GSAVSVAenderung, bildschirme::GSAVSVAenderung, false},
    {bildschirme::GSAenderung12, bildschirme::GSAenderung34, true},
    {bildschirme::GsBasis, bildschirme::GsBasis, false},
});
constexpr int ErsterEditor = 5; // from here on a press does not unload its own screen
constexpr int Programmende = 7;

struct Beschriftung {
    TextView Caption;
    TextView ToolTip;
};
constexpr std::array<Beschriftung, 8> Hauptknoepfe = std::to_array<Beschriftung>({
    {u"Arbeits- und Sozialverhalten erstellen", u"Texte für jeden Schüler erstellen"},
    {u"Interessen, Kompetenzen und Bemerkungen erstellen", u"Texte für jeden Schüler erstellen "},
    {u"Förderteilnahme, AG, Interessen und Bemerkungen erstellen",
     u"Texte für jeden Schüler erstellen"},
    {u"Bisherige Texte auf Bildschirm oder Drucker ausgeben",
     u"Bisher eingegebene Texte ansehen oder ausdrucken"},
    {u"Textbausteine zum Arbeits- und Sozialverhalten ändern",
     u"Textvorgaben selbst ändern und anpassen"},
    {u"", u"Textvorgaben selbst ändern und anpassen"},
    {u"Stammdaten prüfen und ggf. ändern", u"Basisdaten des Gesamtprogrammes eingeben oder ändern"},
    {u"Programm beenden", u"Das Programm schließen"},
});

} // namespace

GsStart::GsStart(Programm& programm) : Screen(programm, bildschirme::GsStart, u"Startseite") {
    EntwurfSetzen();
    HandlerVerbinden();
}

void GsStart::EntwurfSetzen() {
    Command1.each([](Button& taste) {
        const Beschriftung& texte = Hauptknoepfe[static_cast<size_t>(*taste.index())];
        taste.Caption = texte.Caption;
        taste.ToolTip = texte.ToolTip;
    });
    Command2.Caption = u"Die Hilfsprogramme der Werkzeugkiste aufrufen";
    Command2.ToolTip =
        u"Hilfsprogramme zur Änderung von Grundeinstellungen und Textbausteinen starten";
    Command3.Caption = u"zurück zum Start";
    Command3.ToolTip = u"Hier geht es zurück zum Hauptmenü";
    Command4.Caption = u"Zeugnisse mit  WinWord®  schreiben";
    Command4.ToolTip = u"Die Zeugnisse werden mit den bisherigen Eingaben erstellt";
    Command5.Caption = u"Zeugnisliste aufrufen";
    Command5.ToolTip = u"Liste ausdrucken oder in die Liste eintragen";
    Command6.Caption = u"Erstellte Zeugnisse bearbeiten und drucken";
    Command6.ToolTip = u"Zeugnisse zum Ändern oder Drucken aufrufen";
    Command7.Caption = u"Listen und Formulare erstellen und drucken";
    Command7.ToolTip = u"Diverse Listen und Formulare erstellen und drucken";
    Label1(0).Caption = u"Klasse";
    Label1(1).Caption = u"Schuljahr";
    Label1(2).Caption = u"Halbjahr";
    Label2.Caption = u"Was wollen Sie tun? Klicken Sie auf die zutreffende Taste!";
    Label3.Caption =
        u"    WinWord® ist ein eingetragenes Waren- zeichen der Microsoft Corporation, "
        u"Redmond";
    Label4.Caption = u"Klassenleitung:";
    Label6.Caption = u"Zeugnisprogramm der Tannenhofschule Werlingen";
    Picture1.ToolTip = TurnstundeHinweis;
    Timer1.Interval = 500;
    Timer1.Enabled = false;

    for (const int werkzeug : {4, 5, 6})
        Command1(werkzeug).Visible = false;
    Command3.Visible = false;
}

void GsStart::HandlerVerbinden() {
    Command1.on(&Control::onClick, this, &GsStart::Command1_Click);
    Command2.onClick = [this] { Command2_Click(); };
    Command3.onClick = [this] { Command3_Click(); };
    Command4.onClick = [this] { Command4_Click(); };
    Command5.onClick = [this] { Command5_Click(); };
    Command6.onClick = [this] { Command6_Click(); };
    Command7.onClick = [this] { Command7_Click(); };
    Command8.onClick = [this] { Command8_Click(); };
    Command9.on(&Control::onClick, this, &GsStart::Command9_Click);
    Picture1.onClick = [this] { Picture1_Click(); };
    Picture1.onDblClick = [this] { Picture1_DblClick(); };
    Timer1.onTimer = [this] { Timer1_Timer(); };
}

void GsStart::StartseiteLaden() {
    // The design picture; it stays empty if it cannot be shown.
    try {
        const Ordnerwechsel in(programm().directory(), dateien::Bild);
        Picture1.load(Text(dateien::Kopfbild1));
    } catch (const Laufzeitfehler&) { // NOLINT(bugprone-empty-catch)
    }

    DatenLaden();
    LehrerbildLaden();
    Label1(0).Caption += u" " + Klasse;
    Label1(1).Caption += u" " + Schule.Schuljahr;
    Label1(2).Caption = Schule.Halbjahr + u". " + Label1(2).Caption;
    Jahrgang = numberFromText(Klasse.substr(0, 1), u"Das erste Zeichen der Klasse");
    HalbjahrBerichtigen();
    Bildname = dateien::Kopfbild1;
    Label5.Caption = Schule.Klassenleitung;
    if (Jahrgang > 2) {
        Command1(1).Enabled = false;
        Command1(5).Caption = u"Textbausteine für Förder und AG, Interessen und Bemerkungen ändern";
    } else {
        Command1(2).Enabled = false;
        Command1(5).Caption = u"Textbausteine für Interessen, Kompetenzen und Bemerkungen ändern";
        Command5.Caption = u"Versäumnisliste aufrufen";
    }
}

void GsStart::DatenLaden() {
    Arbeitsverzeichnis& verzeichnis = programm().directory();
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    Schule = BasisdatenLesen(verzeichnis, BasisdatenFelder);
    Klasse = KlasseLesen(verzeichnis);
}

void GsStart::LehrerbildLaden() {
    Arbeitsverzeichnis& verzeichnis = programm().directory();
    Bildname = Schule.Klassenleitung + u".jpg";
    try {
        verzeichnis.change(dateien::Bild);
        Picture2.load(Bildname);
    } catch (const Laufzeitfehler&) {
        Bildname = dateien::Lehrerbild;
        Picture2.load(Bildname);
    }
    verzeichnis.change(u"..\\");
}

void GsStart::BildWechseln() {
    {
        const Ordnerwechsel in(programm().directory(), dateien::Bild);
        Picture1.load(Bildname);
    }
    if (Bildname == dateien::Kopfbild1)
        Bildname = dateien::Kopfbild2;
    else if (Bildname == dateien::Kopfbild2)
        Bildname = dateien::Kopfbild1;
}

// Year 1 has no report for the first half-year. The correction goes to the program folder; only
// the names built from it in this run use it.
void GsStart::HalbjahrBerichtigen() {
    const int halbjahr = numberFromText(Schule.Halbjahr, u"Das Halbjahr in Basisdaten.txt");
    if (halbjahr != 1 || Jahrgang != 1)
        return;
    Schule.Halbjahr = u"2";
    BasisdatenSchreiben(programm().directory(), Schule);
}

void GsStart::Command1_Click(int Index) {
    AktiverKnopf = Index;
    AktivFormSchreiben(programm().directory(), Index);
    if (Index == Programmende) {
        programm().unload(bildschirme::Listen);
        programm().end();
        return;
    }
    const Ziel& ziel = Ziele[static_cast<size_t>(Index)];
    for (const TextView bildschirm : Inhaltsbildschirme)
        if (Index < ErsterEditor || !ziel.bleibtGeladen(bildschirm))
            programm().unload(bildschirm);
    programm().show(Jahrgang < 3 ? ziel.Unten : ziel.Oben);
    if (ziel.MitEinfuegungen)
        programm().load(bildschirme::Einfuegungen);
}

void GsStart::AnsichtZeigen(bool werkzeugkiste) {
    for (Control* control : std::initializer_list<Control*>{
             &Command2, &Command4, &Command5, &Command6, &Command7, &Label3, &Label2, &Label4,
             &Label5, &Picture2, &Command1(0), &Command1(1), &Command1(2), &Command1(3)})
        control->Visible = !werkzeugkiste;
    Command9.each([&](Button& taste) { taste.Visible = !werkzeugkiste; });
    Label1.each([&](Label& label) { label.Visible = !werkzeugkiste; });
    for (Control* control :
         std::initializer_list<Control*>{&Command1(4), &Command1(5), &Command1(6), &Command3})
        control->Visible = werkzeugkiste;
    Bildname = dateien::Kopfbild1;
    Picture1.ToolTip = werkzeugkiste ? TextView() : TurnstundeHinweis;
    Picture1.Enabled = !werkzeugkiste;
}

void GsStart::Command2_Click() {
    AnsichtZeigen(true);
    Timer1.Enabled = false;
    BildWechseln();
}

void GsStart::Command3_Click() {
    AnsichtZeigen(false);
    BildWechseln();
    LehrerbildLaden();
}

void GsStart::Command4_Click() {
    const Antwort antwort = programm().machine().dialogs.message(
        {.text = u"Die Zeugnisse werden mit dem Programm 'Word' neu erstellt. Eventuelle "
                 u"Änderungen die Sie bereits in den endgültigen Zeugnissen vorgenommen haben, "
                 u"gehen damit verloren. Die Eintragungen mit diesem Programm bleiben erhalten. "
                 u"Wollen Sie das?",
         .tasten = Tasten::JaNein});
    if (antwort != Antwort::Nein)
        WordStarten(programm(), Text(word::ZeugnisseSchreiben));
}

void GsStart::Command5_Click() {
    WordStarten(programm(),
                word::Klassendokument(Klasse, u"Zeugnisliste", Jahrgang, Schule.Halbjahr));
}

void GsStart::Command6_Click() {
    programm().machine().dialogs.message(
        {.text = u"Vergessen Sie nicht, die Änderungen in Word zu speichern, bevor Sie Winword "
                 u"wieder verlassen. Die Änderungen gehen sonst verloren !"});
    WordStarten(programm(), word::Klassendokument(Klasse, u"Zeugnisse", Jahrgang, Schule.Halbjahr));
}

void GsStart::Command7_Click() { programm().show(bildschirme::Listen); }

void GsStart::Command8_Click() { WordStarten(programm(), word::Hilfe(1)); }

void GsStart::Command9_Click(int Index) { WordStarten(programm(), word::Hilfe(10 + Index)); }

void GsStart::Picture1_Click() { Timer1.Enabled = true; }

void GsStart::Picture1_DblClick() { Timer1.Enabled = false; }

void GsStart::Timer1_Timer() { BildWechseln(); }

} // namespace zeugnis
