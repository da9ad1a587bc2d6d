#include "years12/interests_remarks.h"

#include "masterdata/school_data.h"

#include <algorithm>

namespace zeugnis::jahrgang12 {
namespace {

// "Deutsch, Mathematik und Sachunterricht"
Text faecherliste(const std::array<Text, 8>& faecher) {
    const auto anzahl = std::count_if(faecher.begin(), faecher.end(),
                                      [](const Text& fach) { return !fach.empty(); });
    Text liste;
    int offen = static_cast<int>(anzahl);
    for (const Text& fach : faecher) {
        if (fach.empty())
            continue;
        --offen;
        liste += fach + (offen == 0 ? u"" : offen == 1 ? u" und " : u", ");
    }
    return liste;
}

} // namespace

Text InteressensatzBilden(const Text& vorname, int wahl, const Text& beschriftung) {
    return wahl == 0 ? Text() : vorname + u" " + beschriftung + u".";
}

Text InteressenVerbinden(const Text& interessensatz, const Text& sporttext) {
    const bool beide = !interessensatz.empty() && !sporttext.empty();
    return interessensatz + Text(beide ? Zeilenende : TextView()) + sporttext;
}

Text BemerkungenVerbinden(const Bemerkungsteile& teile, TextView halbjahr, Text& trenner8) {
    const bool zweites = IstZahl(halbjahr, 2);
    if (zweites && !teile.Versetzung.empty())
        trenner8 = Zeilenende;
    Text liste = faecherliste(teile.Faecher);
    if (!liste.empty()) {
        if (IstZahl(halbjahr, 1))
            liste = teile.Einleitung + u" " + liste + u" " + teile.GewaehlterSchluss;
        else if (zweites)
            liste = teile.Einleitung + u" " + liste + u" " + teile.FesterSchluss + trenner8;
    }
    const Text vorn = teile.AGSatz + teile.FesteBemerkung;
    return vorn + Text(vorn.empty() ? TextView() : Zeilenende) + liste + teile.Versetzung;
}

} // namespace zeugnis::jahrgang12
