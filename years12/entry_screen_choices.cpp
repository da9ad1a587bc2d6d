// Choosing, composing and clearing.

#include "common/ag_sentence.h"
#include "common/entry_common.h"
#include "common/interests_text.h"
#include "years12/entry_screen.h"
#include "years12/interests_remarks.h"

namespace zeugnis {

using namespace jahrgang12;

namespace {

constexpr int Option1 = gruppeNamens(u"Option1");
constexpr int Option15 = gruppeNamens(u"Option15");
constexpr int Option21 = gruppeNamens(u"Option21");
constexpr int Option23 = gruppeNamens(u"Option23");
constexpr int Option35 = gruppeNamens(u"Option35");
constexpr int Option44 = gruppeNamens(u"Option44");
constexpr int Option45 = gruppeNamens(u"Option45");

// The rows of Sportusw.Txt that the boxes show.
constexpr int Sportzeilen[] = {0, 1, 4, 5};

// Counts as a click on each box that is ticked.
constexpr auto Abhaken = [](CheckBox& kasten) { kasten.setValue(false); };

} // namespace

void Kompetenzen::Option_Click(int nummer, int Index) {
    if (nummer == Option21 && !istHalbjahr(2))
        return;
    const Gruppe& eine = gruppe(nummer);
    Eingaben& wahl = eingaben();
    if (nummer == Option35)
        wahl.Teiltext[Option15].clear();
    const Text oeffnung = eine.Oeffnung == 0 ? Text() : label(eine.Oeffnung).Caption;
    wahl.Teiltext[nummer] =
        TeiltextBilden(nummer, options(nummer)(Index).Caption, oeffnung, wahl.Teiltext);
    wahl.Wahl[nummer] = Index;
    const bool textZuletzt = eine.Seite == SeiteBemerkungen;
    if (!textZuletzt)
        TextBilden(eine.Seite);
    MarkierungLoeschen();
    WahlMarkieren();
    if (textZuletzt)
        TextBilden(eine.Seite);
}

void Kompetenzen::Check1_Click(int) {
    Eingaben& wahl = eingaben();
    wahl.Sporttext.clear();
    for (int i = 0; i < wahl.Sporthaken.size(); ++i) {
        wahl.Sporthaken[i] = Check1(i).value() ? 1 : 0;
        if (Check1(i).value())
            wahl.Sporttext += Bausteine[Datei::Sport](1, Sportzeilen[i]) + u". ";
    }
    TextBilden(SeiteInteressen);
}

void Kompetenzen::Check2_Click(int Index) {
    KastenSetzen(Check2(Index), eingaben().Bemerkungskasten[Index], Index == 0 ? u". " : u".");
}

void Kompetenzen::Check3_Click(int Index) {
    KastenSetzen(Check3(Index), eingaben().Fachkasten[Index], {});
}

void Kompetenzen::KastenSetzen(const CheckBox& kasten, Kasten& eingabe, TextView nach) {
    eingabe.Haken = kasten.value() ? 1 : 0;
    eingabe.Teiltext = kasten.value() ? kasten.Caption + Text(nach) : Text();
    TextBilden(SeiteBemerkungen);
    MarkierungLoeschen();
    WahlMarkieren();
}

void Kompetenzen::TextBilden(int seite) {
    const Text text = seite == SeiteInteressen    ? interessen()
                      : seite == SeiteBemerkungen ? bemerkungen()
                                                  : TeiltexteVerbinden(seite, eingaben().Teiltext);
    Speicher.Bereichstext[seite][aktSchueler] = ersetzt(text);
    TexteAnzeigen();
}

Text Kompetenzen::interessen() {
    const int wahl = eingaben().Wahl[Option1];
    Text& satz = eingaben().Teiltext[Option1];
    satz = InteressensatzBilden(kind().Vorname, wahl, options(Option1)(wahl).Caption);
    return InteressenVerbinden(satz, eingaben().Sporttext);
}

Text Kompetenzen::bemerkungen() {
    const Eingaben& wahl = eingaben();
    Bemerkungsteile teile{.AGSatz = wahl.Bemerkungskasten[0].Teiltext,
                          .FesteBemerkung = wahl.Bemerkungskasten[1].Teiltext,
                          .Faecher = {},
                          .Einleitung = label(LabelFaecher).Caption,
                          .GewaehlterSchluss = wahl.Teiltext[Option23],
                          .FesterSchluss = options(Option23)(0).Caption,
                          .Versetzung = wahl.Teiltext[Option21]};
    for (int i = 0; i < wahl.Fachkasten.size(); ++i)
        teile.Faecher.at(static_cast<size_t>(i)) = wahl.Fachkasten[i].Teiltext;
    return BemerkungenVerbinden(teile, Bausteine.Schule.Halbjahr, Trenner8);
}

Text Kompetenzen::ersetzt(const Text& text) const {
    return PlatzhalterErsetzen(text, EinsetzwerteVon(kind(), Bausteine.Schule),
                               TextregelnJahrgaenge);
}

void Kompetenzen::AGSatzBilden() { Check2(0).Caption = AGSaetzeVon(kind()).Satz; }

void Kompetenzen::SeiteNeu() {
    for (int g = 0; g < Gruppenzahl; ++g)
        if (gruppe(g).Seite == aktSeite) {
            eingaben().Wahl[g] = 0;
            eingaben().Teiltext[g].clear();
        }
    if (aktSeite == SeiteInteressen) {
        Check1.each(Abhaken);
        eingaben().Sporttext.clear();
    }
    if (aktSeite == SeiteBemerkungen)
        BemerkungenNeu();
    Speicher.Bereichstext[aktSeite][aktSchueler].clear();
    Text1(aktSeite).setText({});
    if (aktSeite == SeiteInteressen)
        options(Option1)(0).setValue(true);
    sperre() = 0;
    SperreZeigen();
}

// Reaches two groups of other pages and the badges of page 0; that is how it is.
void Kompetenzen::BemerkungenNeu() {
    Eingaben& wahl = eingaben();
    wahl.Bemerkungskasten = {};
    wahl.Fachkasten = {};
    wahl.Sporthaken = {};
    wahl.Wahl[Option44] = wahl.Wahl[Option45] = 0;
    Trenner8.clear();
    for (const auto* kaesten : {&Check1, &Check2, &Check3})
        kaesten->each(Abhaken);
    for (const int nummer : {Option23, Option21})
        options(nummer).each([](OptionButton& knopf) { knopf.setValue(false); });
}

} // namespace zeugnis
