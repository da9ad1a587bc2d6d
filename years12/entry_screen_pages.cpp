// What the pages show: inscriptions, colours, marks and locks.

#include "years12/entry_screen.h"

namespace zeugnis {

using namespace jahrgang12;

namespace {

constexpr int Option21 = gruppeNamens(u"Option21");
constexpr int Option23 = gruppeNamens(u"Option23");
constexpr int Option25 = gruppeNamens(u"Option25");
constexpr int LabelVorname = 3;

bool wirdGetrimmt(const Gruppe& eine) { return eine.Quelle == Datei::Bemerkungen; }

} // namespace

void Kompetenzen::BeschriftungenSetzen() {
    for (int g = 0; g < Gruppenzahl; ++g)
        options(g).each([&, &eine = gruppe(g)](OptionButton& knopf) {
            const int zeile = *knopf.index() - eine.ErsterKnopf;
            const Text& text = Bausteine[eine.Quelle](eine.Spalte, zeile);
            knopf.Caption = wirdGetrimmt(eine) ? trimmed(text) : text;
        });
    const Bausteintabelle& bemerkungen = Bausteine[Datei::Bemerkungen];
    Check2(1).Caption = trimmed(bemerkungen(1, 0));
    Check3.each([&](CheckBox& fach) { fach.Caption = trimmed(bemerkungen(2, *fach.index())); });
}

void Kompetenzen::ZwischentexteSetzen() {
    if (aktSeite == SeiteInteressen)
        label(LabelVorname).Caption = kind().Vorname;
    for (const Seitenlabel& eines : Seitenlabels) {
        const bool fuerBeide = eines.ZeileJahr1 == eines.ZeileJahr2;
        const int zeile = istJahr(1) ? eines.ZeileJahr1 : eines.ZeileJahr2;
        if (eines.Seite != aktSeite || zeile < 0 || !(fuerBeide || istJahr(1) || istJahr(2)))
            continue;
        const Text& text = Bausteine[Datei::Zwischentexte](1, zeile);
        label(eines.Nummer).Caption = eines.Nummer == LabelFaecher ? trimmed(text) : text;
    }
}

void Kompetenzen::MarkierungLoeschen() {
    const auto neutral = [](Control& control) { control.BackColor = farbe(farben::Neutral); };
    for (const auto& knoepfe : m_options)
        knoepfe.each(neutral);
    Check2.each(neutral);
    Check3.each(neutral);
    for (const Seitenlabel& eines : Seitenlabels)
        neutral(label(eines.Nummer));
}

void Kompetenzen::WahlMarkieren() {
    const auto markieren = [](Control& control) { control.BackColor = farbe(farben::Markiert); };
    for (int g = 0; g < Gruppenzahl; ++g) {
        if (gruppe(g).Seite != aktSeite || eingaben().Teiltext[g].empty())
            continue;
        markieren(options(g)(eingaben().Wahl[g]));
        if (gruppe(g).Oeffnung != 0)
            markieren(label(gruppe(g).Oeffnung));
    }
    if (aktSeite == SeiteBemerkungen)
        BemerkungenMarkieren();
}

void Kompetenzen::BemerkungenMarkieren() {
    const Farbwert marke = farbe(farben::Markiert);
    Label& faecher = label(LabelFaecher);
    Check2.each([&](CheckBox& kasten) {
        if (!eingaben().Bemerkungskasten[*kasten.index()].Teiltext.empty())
            kasten.BackColor = marke;
    });
    Check3.each([&](CheckBox& fach) {
        if (!eingaben().Fachkasten[*fach.index()].Teiltext.empty())
            fach.BackColor = faecher.BackColor = marke;
    });
    if (faecher.BackColor == marke && istHalbjahr(2))
        options(Option23)(0).BackColor = faecher.BackColor;
    if (istHalbjahr(1))
        options(Option23).each([](OptionButton& knopf) { knopf.setValue(false); });
}

void Kompetenzen::SeiteZeigen() {
    const auto verbergen = [](Control& control) { control.Visible = false; };
    Frame1.each(verbergen);
    Text1.each(verbergen);
    const Bereich& seite = bereich(aktSeite);
    Frame1(aktSeite).Visible = true;
    for (int feld = seite.ErstesFeld; feld <= seite.LetztesFeld; ++feld) {
        Text1(feld).Visible = true;
        Text1(feld).Enabled = feld == aktSeite;
    }
    if (istJahr(1)) {
        verbergen(label(gruppe(Option25).Oeffnung));
        options(Option25).each(verbergen);
    }
    if (istHalbjahr(1))
        options(Option21).each(verbergen);
    if (istHalbjahr(2)) {
        options(Option23).each([](OptionButton& knopf) { knopf.Visible = *knopf.index() == 0; });
        options(Option23)(0).Enabled = false;
    }
}

void Kompetenzen::SeiteFaerben() {
    Command1.each([](Button& taste) { taste.BackColor = farbe(farben::AndereSeite); });
    const Bereich& seite = bereich(aktSeite);
    Command1(aktSeite).BackColor = Frame1(aktSeite).BackColor = farbe(seite.Farbe);
    for (int feld = seite.ErstesFeld; feld <= seite.LetztesFeld; ++feld) {
        const int eigene = bereich(feld).Farbe;
        Text1(feld).BackColor = farbe(eigene);
        // The two areas that share a colour with others get it on any page of their subject.
        if (eigene != feld)
            Frame1(feld).BackColor = farbe(eigene);
    }
}

void Kompetenzen::SperreZeigen() {
    if (!IstSperre(sperre()))
        return;
    const bool gesperrt = sperre() == 1;
    Picture2.Visible = gesperrt;
    Frame1(aktSeite).Enabled = !gesperrt;
}

void Kompetenzen::TexteAnzeigen() {
    for (int b = 0; b < Bereichszahl; ++b)
        Text1(b).setText(Speicher.Bereichstext[b][aktSchueler]);
    Gespeichert = false;
}

} // namespace zeugnis
