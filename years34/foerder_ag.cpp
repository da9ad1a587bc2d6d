#include "years34/foerder_ag.h"

#include "platform/table.h"

namespace zeugnis::jahrgang34 {
namespace {

constexpr int Trennerplaetze = 11;
constexpr int LetzterVorUnd = 7;
constexpr TextView Komma = u", ";
constexpr TextView Und = u" und ";

} // namespace

Text ListeVerbinden(std::span<const Text> teile, int& letzte) {
    Tabelle<TextView, Trennerplaetze> trenner;
    int zaehler = 0;
    for (size_t i = 0; i < teile.size(); ++i) {
        if (teile[i].empty())
            continue;
        ++zaehler;
        letzte = static_cast<int>(i);
        trenner[letzte] = Komma;
    }
    trenner[letzte] = {};
    if (zaehler == 2) {
        trenner.fill({});
        trenner[letzte - 1] = Und;
    } else if (zaehler > 2) {
        int platz = LetzterVorUnd;
        while (trenner[platz] != Komma)
            --platz;
        trenner[platz] = Und;
    }
    Text liste;
    for (size_t i = 0; i < teile.size(); ++i) {
        liste += teile[i];
        if (i + 1 < teile.size())
            liste += trenner[static_cast<int>(i)];
    }
    return liste;
}

Text FoerderSatzBilden(const Text& anfang, const Text& liste, const Text& schluss) {
    return liste.empty() ? Text() : anfang + u" " + liste + u" " + schluss + u".";
}

Text FoerderAGVerbinden(const Text& foerderSatz, Text& agSatz) {
    if (!agSatz.empty())
        agSatz += u'.';
    return foerderSatz + Text(foerderSatz.empty() ? u"" : Zeilenende) + agSatz;
}

} // namespace zeugnis::jahrgang34
