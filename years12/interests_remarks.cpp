#include "years12/interests_remarks.h"

#include "files/school_data.h"

namespace zeugnis::jahrgang12 {

Text InteressensatzBilden(const Text& vorname, int wahl, const Text& beschriftung) {
    return wahl == 0 ? Text() : vorname + u" " + beschriftung + u".";
}

Text BemerkungenVerbinden(const Bemerkungsteile& teile, TextView halbjahr, Text& trenner8) {
    const bool zweites = IstZahl(halbjahr, 2);
    if (zweites && !teile.Versetzung.empty())
        trenner8 = Zeilenende;
    Text liste = enumerated(teile.Faecher);
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
