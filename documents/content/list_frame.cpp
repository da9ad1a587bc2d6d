#include "documents/content/list_frame.h"

#include "documents/content/wording.h"
#include "platform/failure.h"

#include <algorithm>

namespace zeugnis::dokumente {
namespace {

constexpr Twips Linienabstand = 480;

bool hatKinder(const Namensliste& liste) {
    for (int platz = 0; platz < liste.Schuelerzahl; ++platz)
        if (const Schueler& kind = liste.Kinder[platz];
            !printable(kind.Nachname).empty() || !printable(kind.Vorname).empty())
            return true;
    return false;
}

} // namespace

Stammdaten ListendatenLesen(Arbeitsverzeichnis& verzeichnis) {
    Stammdaten stamm = StammdatenLesen(verzeichnis);
    if (!hatKinder(stamm.Liste))
        throw Laufzeitfehler(Fehlerart::InvalidCall,
                             u"In der Namensliste steht noch kein Kind. Es wurde nichts "
                             u"geschrieben.");
    return stamm;
}

Text Klassentitel(TextView art, const Text& klasse) { return Text(art) + u" der Klasse " + klasse; }

Text Zeitraum(const Stammdaten& stamm) {
    return u"Schuljahr " + oderStrich(stamm.Schule.Schuljahr) + u", " + stamm.Halbjahr +
           u". Halbjahr";
}

std::vector<Block> Listenkopf(const Stammdaten& stamm, const Text& titel) {
    return {paragraph(StyleId::Listentitel, titel),
            paragraph(StyleId::Listenangabe,
                      verbunden(printable(stamm.Schule.Schulname), u" · ", Zeitraum(stamm)))};
}

Cell Zelle(StyleId stil, Text text) { return {.paragraphs = {paragraph(stil, std::move(text))}}; }

Document Einzelliste(Text titel, std::vector<Block> bloecke) {
    Section seiten{.footer = titel, .blocks = std::move(bloecke)};
    return {.title = std::move(titel), .sections = {std::move(seiten)}};
}

Table Schreiblinien(int anzahl) {
    return {.columns = {1},
            .rows = std::vector<Row>(static_cast<size_t>(anzahl), Row(1)),
            .ruled = true,
            .rowHeight = Linienabstand};
}

} // namespace zeugnis::dokumente
