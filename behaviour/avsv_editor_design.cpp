// What stands on the screen before it loads, its hints, and which routine answers which event.

#include "behaviour/avsv_editor.h"
#include "common/editor_common.h"
#include "common/screen_names.h"
#include "common/text_input.h"

namespace zeugnis {
namespace {

constexpr TextView NurInDerMitte = u"Kommata bitte nur in der Mitte des Textes einfügen.";
constexpr TextView LetzteZeile =
    u"Text kann bis zur roten Linie eingegeben werden. Längerer Text wird zwar übernommen und "
    u"angezeigt, ist aber schlecht lesbar.";

struct Hinweis {
    TextView Anfang;
    bool Kommata; ///< whether the sentence on commas follows
    TextView Danach = {};
};

constexpr Hinweis Vorname{u"In allen Zeilen wird vom Programm automatisch der Vorname eingefügt. "
                          u"Auch der Punkt am Ende wird vom Programm gesetzt. ",
                          true};
constexpr Hinweis Verbunden{
    u"Wenn vorher kein Text steht, wird vom Programm der Vorname eingefügt. Auch der Punkt am Ende "
    u"wird gesetzt. ",
    true,
    u"Wenn die Kategorie davor nicht leer ist, werden bei deren Wahl 1 bis 4 die Zeilen 1 bis 5 "
    u"mit 'und' verbunden, die Zeilen 6 bis 9 mit 'aber'. Bei Wahl 5 bis 9 in der ersten Kategorie "
    u"werden die Zeilen 1 bis 5 mit 'aber' verbunden, die Zeilen 6 bis 9 mit 'und'."};
constexpr TextView SonstVorname =
    u"Wenn die Kategorien davor leer sind, wird am Anfang der Vorname automatisch eingesetzt.";
constexpr Hinweis FuerwortAV{
    u"In allen Zeilen wird vom Programm automatisch 'Er' oder 'Sie' am Anfang eingefügt, bei den "
    u"Zeilen 5 und 9 'Ihm' oder 'Ihr'. Auch der Punkt am Ende wird automatisch gesetzt. ",
    true, SonstVorname};
constexpr Hinweis FuerwortSV{
    u"In allen Zeilen wird vom Programm automatisch 'Er' oder 'Sie' am Anfang eingefügt. Auch der "
    u"Punkt am Ende wird automatisch gesetzt. ",
    true, SonstVorname};
constexpr Hinweis GanzerSatz{u"Der Punkt am Ende wird automatisch gesetzt. ", true};
constexpr Hinweis VornameAmAnfang{u"Am Anfang wird vom Programm der Vorname eingefügt. Der Punkt "
                                  u"am Ende wird automatisch gesetzt. ",
                                  true};
constexpr Hinweis Erlass{u"Der Punkt am Ende wird vom Programm gesetzt.", false,
                         u"Die obigen Formulierungen sind durch Zeugniserlass vorgegeben. "
                         u"Änderungen sollten nur nach sorgfältiger Prüfung vorgenommen werden!"};

// By category.
constexpr std::array<const Hinweis*, KategorienAV> HinweiseAV = std::to_array<const Hinweis*>(
    {&Vorname, &Verbunden, &FuerwortAV, &GanzerSatz, &GanzerSatz, &VornameAmAnfang, &Erlass});
constexpr std::array<const Hinweis*, KategorienSV> HinweiseSV = std::to_array<const Hinweis*>(
    {&Vorname, &Verbunden, &FuerwortSV, &GanzerSatz, &GanzerSatz, &Erlass});

Text zeilenVon(const Hinweis& hinweis) {
    Text zeilen(hinweis.Anfang);
    if (hinweis.Kommata)
        zeilen += NurInDerMitte;
    zeilen += Zeilenende;
    if (!hinweis.Danach.empty())
        zeilen += Text(hinweis.Danach) + Text(Zeilenende);
    return zeilen + Text(LetzteZeile);
}

} // namespace

GSAVSVAenderung::GSAVSVAenderung(Programm& programm)
    : Screen(programm, bildschirme::GSAVSVAenderung,
             u"Änderung der Texte zum Arbeits- und Sozialverhalten") {
    EntwurfSetzen();
    HandlerVerbinden();
}

void GSAVSVAenderung::HinweisZeigen() {
    const auto stelle = static_cast<size_t>(kategorie());
    Label3.Caption =
        zeilenVon(Bereich == Abschnitt::SV ? *HinweiseSV.at(stelle) : *HinweiseAV.at(stelle));
}

void GSAVSVAenderung::EntwurfSetzen() {
    Label1.Caption = u"Eingabefenster zur Änderung der Formulierungen";
    Label2.Caption = u"Kategorie:";
    Label3.Caption = u"Hinweise zur Änderung der Textbausteine";
    Label3.ToolTip = u"Wichtige Hinweise zur Änderung der Textbausteine";
    Label4.Caption = u"Farbwahl";
    Text1.setText(u"Hier steht der Text für die gewählte Kategorie");
    Text1.ToolTip = u"Name der Kategorie";
    Label5.each([](Label& nummer) { nummer.Caption = textFromNumber(*nummer.index()); });
    Text2.each([](TextBox& feld) {
        feld.setText(u"Hier steht Text" + textFromNumber(*feld.index() + 1));
    });
    Text2(0).Locked = true;
    Text2(0).ToolTip = u"Hier sind keine Änderungen möglich!";
    Command7.each([](Button& taste) { taste.Caption = u"Farbwahl"; });
    Command1(0).Caption = u"Standardformulierungen laden";
    Command1(1).Caption = u"Aktuelle Formulierungen laden";
    Command2.Caption = u"Arbeitsverhalten";
    Command3.Caption = u"Sozialverhalten";
    Command4.each([](Button& taste) {
        taste.Caption = u"Kategorien-Anwahl";
        taste.ToolTip = u"Texte anwählen";
    });
    Command5.Caption = u"Alles als aktuelle Formulierungen speichern";
    Command6.Caption = u"Beenden";
    Command8(0).Caption = u"Geschlechtsspezifische Platzhalter anzeigen";
    Command8(1).Caption = u"Geschlechtsspezifische Platzhalter verbergen";
    Command8(1).Enabled = false;
}

void GSAVSVAenderung::HandlerVerbinden() {
    using Diese = GSAVSVAenderung;
    Label1.onDblClick = [this] { Label1_DblClick(); };
    Command1.on(&Control::onClick, this, &Diese::Command1_Click);
    Command2.onClick = [this] { Command2_Click(); };
    Command3.onClick = [this] { Command3_Click(); };
    Command4.on(&Control::onClick, this, &Diese::Command4_Click);
    Command5.onClick = [this] { Command5_Click(); };
    Command6.onClick = [this] { Command6_Click(); };
    Command7.on(&Control::onClick, this, &Diese::Command7_Click);
    Command8.on(&Control::onClick, this, &Diese::Command8_Click);
    AnfuehrungszeichenFernhalten(Text1);
    Text2.each([this](TextBox& feld) {
        AnfuehrungszeichenFernhalten(feld, [this] { Gespeichert = false; });
    });
    Text2.on(&Control::onDblClick, this, &Diese::Text2_DblClick);
}

} // namespace zeugnis
