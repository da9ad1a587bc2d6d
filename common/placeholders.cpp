#include "common/placeholders.h"

#include <algorithm>
#include <array>

namespace zeugnis {

struct Platzhalter {
    TextView Name;
    TextView Maennlich;
    TextView Weiblich;
    Text Einsetzwerte::*Wert = nullptr; ///< where set, the value of both
};

namespace {

constexpr Platzhalter SieEr{u"<sie/er>", u"er", u"sie"};
constexpr Platzhalter ErSie{u"<Er/Sie>", u"Er", u"Sie"};
constexpr Platzhalter IhrIhm{u"<ihr/ihm>", u"ihm", u"ihr"};
constexpr Platzhalter IhmIhr{u"<Ihm/Ihr>", u"Ihm", u"Ihr"};
constexpr Platzhalter IhrSein{u"<ihr/sein>", u"sein", u"ihr"};
constexpr Platzhalter SeinIhr{u"<Sein/Ihr>", u"Sein", u"Ihr"};
constexpr Platzhalter EndungIn{u"<in>", u"", u"in"};
constexpr Platzhalter Vorname{u"<Vorname>", {}, {}, &Einsetzwerte::Vorname};
constexpr Platzhalter Schuljahr{u"<Schuljahr>", {}, {}, &Einsetzwerte::Schuljahr};
constexpr Platzhalter Nextschj{u"<Nextschj>", {}, {}, &Einsetzwerte::NaechstesSchuljahr};
constexpr Platzhalter Konferenz{u"<Konferenz>", {}, {}, &Einsetzwerte::Konferenzdatum};

constexpr std::array BekanntArbeitsverhalten = {SieEr, IhrIhm, IhrSein, ErSie, Vorname, EndungIn};
constexpr std::array BekanntJahrgaenge = {SieEr,   ErSie,    IhrIhm,    IhmIhr,   IhrSein,  SeinIhr,
                                          Vorname, EndungIn, Schuljahr, Nextschj, Konferenz};

struct Bereinigung {
    TextView Gesucht;
    TextView Ersatz;
};
constexpr std::array Bereinigungen = {Bereinigung{u"..", u"."}, Bereinigung{u"  ", u" "},
                                      Bereinigung{u" .", u"."}};
constexpr int Bereinigungsdurchgaenge = 3;

TextView wertVon(const Platzhalter& platzhalter, const Einsetzwerte& werte) {
    if (platzhalter.Wert != nullptr)
        return werte.*platzhalter.Wert;
    return werte.Geschlecht == u"m" ? platzhalter.Maennlich : platzhalter.Weiblich;
}

void ersetzeErsten(Text& text, const Platzhalter& platzhalter, const Einsetzwerte& werte) {
    if (const size_t stelle = text.find(platzhalter.Name); stelle != Text::npos)
        text.replace(stelle, platzhalter.Name.size(), wertVon(platzhalter, werte));
}

// The pair and the two characters behind it give way to the replacement.
void bereinigeErsten(Text& text, const Bereinigung& bereinigung) {
    constexpr size_t Verlust = 4;
    if (const size_t stelle = text.find(bereinigung.Gesucht); stelle != Text::npos)
        text.replace(stelle, Verlust, bereinigung.Ersatz);
}

} // namespace

const Textregeln TextregelnArbeitsverhalten{3, BekanntArbeitsverhalten, false};
const Textregeln TextregelnJahrgaenge{10, BekanntJahrgaenge, false};
const Textregeln TextregelnEditoren{0, {}, true};

Text PlatzhalterErsetzen(Text text, const Einsetzwerte& werte, const Textregeln& regeln) {
    for (int durchgang = 0; durchgang < regeln.Durchgaenge; ++durchgang)
        for (const Platzhalter& platzhalter : regeln.Bekannte)
            ersetzeErsten(text, platzhalter, werte);
    for (int durchgang = 0; durchgang < Bereinigungsdurchgaenge; ++durchgang)
        for (const Bereinigung& bereinigung : Bereinigungen)
            bereinigeErsten(text, bereinigung);
    return text;
}

Text EinfuegungEinsetzen(const Text& text, size_t stelle, const Text& einfuegung,
                         const Textregeln& regeln) {
    const Text links = text.substr(0, std::min(stelle, text.size()));
    const Text rechts = text.substr(links.size());
    const TextView trenner = regeln.EndungAnhaengen && einfuegung == EndungIn.Name ? u"" : u" ";
    Text neu = trimmed(links) + Text(trenner) + einfuegung;
    if (!rechts.empty())
        neu += u" " + trimmed(rechts);
    return neu;
}

} // namespace zeugnis
