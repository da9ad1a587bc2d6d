#include "files/report_columns.h"

#include <algorithm>

namespace zeugnis {
namespace {

constexpr int TageHoechstens = 200;

constexpr Spalte fach(TextView name, TextView kopf, TextView kuerzel) {
    return {.Name = name,
            .Kopf = kopf,
            .Kuerzel = kuerzel,
            .Mindestens = 1,
            .Hoechstens = SchlechtesteNote};
}

constexpr std::array<Spalte, Spaltenzahl> AlleSpalten = {{
    {.Name = u"Versäumte Unterrichtstage",
     .Kopf = u"Versäumt\n(Tage)",
     .Kuerzel = u"Tage",
     .Mindestens = 0,
     .Hoechstens = TageHoechstens},
    {.Name = u"davon unentschuldigt",
     .Kopf = u"davon\nunentsch.",
     .Kuerzel = u"ue.",
     .Mindestens = 0,
     .Hoechstens = TageHoechstens},
    fach(u"Deutsch", u"Deutsch", u"De"),
    fach(u"Mathematik", u"Mathe-\nmatik", u"Ma"),
    fach(u"Sachunterricht", u"Sach-\nunterr.", u"Sach"),
    fach(u"Englisch", u"Englisch", u"En"),
    fach(Religionsspalte, u"Religion /\nW. u. N.", u"Rel"),
    fach(u"Musik", u"Musik", u"Mu"),
    fach(u"Kunst", u"Kunst", u"Ku"),
    fach(u"Textiles Gestalten", u"Textiles\nGestalten", u"TG"),
    fach(u"Gestaltendes Werken", u"Gestalt.\nWerken", u"GW"),
    fach(u"Sport", u"Sport", u"Sp"),
}};

constexpr std::array<TextView, SchlechtesteNote> Notenworte = {
    u"sehr gut", u"gut", u"befriedigend", u"ausreichend", u"mangelhaft", u"ungenügend",
};

constexpr size_t ZiffernHoechstens = 3;

bool istZahl(TextView text) {
    return !text.empty() && text.size() <= ZiffernHoechstens &&
           std::all_of(text.begin(), text.end(),
                       [](char16_t zeichen) { return zeichen >= u'0' && zeichen <= u'9'; });
}

Text nichtMoeglich(const Spalte& spalte, TextView text) {
    const Text satz = Text(spalte.Name) + u": „" + Text(text) + u"“ geht hier nicht. Möglich sind ";
    const Text grenzen =
        textFromNumber(spalte.Mindestens) + u" bis " + textFromNumber(spalte.Hoechstens);
    return satz + (spalte.Hoechstens == SchlechtesteNote ? u"die Noten " : u"ganze Tage von ") +
           grenzen + u" oder ein leeres Feld.";
}

} // namespace

std::span<const Spalte> SpaltenFuer(int jahrgang) {
    const std::span<const Spalte> alle = AlleSpalten;
    return HatNoten(jahrgang) ? alle : alle.first(ErstesFach);
}

TextView Notenwort(int note) {
    return note >= 1 && note <= SchlechtesteNote ? Notenworte.at(static_cast<size_t>(note - 1))
                                                 : TextView();
}

TextView Listenname(int jahrgang) {
    return HatNoten(jahrgang) ? TextView(u"Zeugnisliste") : TextView(u"Versäumnisliste");
}

bool Eintrag::istLeer() const { return *this == Eintrag(); }

bool Eintrag::hatNoten() const {
    return std::any_of(Werte.begin() + ErstesFach, Werte.end(),
                       [](int wert) { return wert != LeereZelle; });
}

std::variant<int, Text> ZelleLesen(const Spalte& spalte, TextView text) {
    const Text sauber = trimmed(text);
    if (sauber.empty() || sauber == u"-" || sauber == u"–")
        return LeereZelle;
    if (!istZahl(sauber))
        return nichtMoeglich(spalte, sauber);
    const int wert = numberFromText(sauber, spalte.Name);
    if (wert < spalte.Mindestens || wert > spalte.Hoechstens)
        return nichtMoeglich(spalte, sauber);
    return wert;
}

TextView EintragPruefen(const Eintrag& eintrag) {
    const int tage = eintrag.Werte[SpalteTage];
    const int unentschuldigt = eintrag.Werte[SpalteUnentschuldigt];
    if (unentschuldigt == LeereZelle || unentschuldigt <= tage)
        return {};
    return tage == LeereZelle
               ? TextView(u"Unentschuldigte Tage gibt es nur, wenn auch versäumte Tage eingetragen "
                          u"sind.")
               : TextView(u"Es können nicht mehr Tage unentschuldigt sein, als versäumt wurden.");
}

Text Zellentext(int wert) { return wert == LeereZelle ? Text() : textFromNumber(wert); }

} // namespace zeugnis
