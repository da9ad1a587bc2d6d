#include "documents/content/picture_list.h"

#include "documents/content/list_frame.h"
#include "documents/content/wording.h"
#include "files/file_catalogue.h"
#include "platform/failure.h"
#include "platform/record_reader.h"

#include <array>

namespace zeugnis::dokumente {
namespace {

constexpr Twips Zeilenhoehe = 360;

constexpr std::array<TextView, 4> Hinweise = {
    u"Die Bilder sollten eine Größe von 3,6 x 2,7 cm bei einer Auflösung von 72 dpi haben.",
    u"Sie müssen im jpg-Format (~.jpg) gespeichert sein. Dies entspricht dem "
    u"SibankPlus-Programm.",
    u"Für die einzelnen Bilder der Kinder müssen die nachstehenden Dateinamen gewählt werden, "
    u"damit sie richtig angezeigt werden können.",
    u"Wird kein Bild gefunden, so erscheint das Standardbild des 'Smili'.",
};
constexpr TextView Zwillinge =
    u"Bei gleichgeschlechtlichen Zwillingen mit gleichem Anfangsbuchstaben des Vornamens sind die "
    u"Bildbezeichnungen gleich und können nicht richtig geladen werden. Man kann dann nur ein Bild "
    u"unter der Bezeichnung eingeben, auf dem beide zu sehen sind.";
constexpr TextView OhneNamen =
    u"Wo ein Strich steht, hat das Zeugnisprogramm noch keinen Dateinamen gebildet. Das geschieht "
    u"bei „Basisdaten speichern“.";

struct Bildzeile {
    int Nummer = 0;
    Text Nachname;
    Text Vorname;
    Text BildDatei;
};

struct Bildliste {
    Text Klasse;
    std::vector<Bildzeile> Zeilen; ///< of the children with a family name
};

Bildliste bildlisteLesen(Arbeitsverzeichnis& verzeichnis) {
    Bildliste liste;
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    RecordReader reader(verzeichnis, dateien::Bildliststeuer);
    while (!reader.atEnd()) {
        Bildzeile zeile;
        zeile.Nummer = reader.integer();
        liste.Klasse = reader.text();
        zeile.Nachname = printable(reader.text());
        zeile.Vorname = printable(reader.text());
        zeile.BildDatei = reader.text();
        if (!zeile.Nachname.empty())
            liste.Zeilen.push_back(std::move(zeile));
    }
    if (liste.Zeilen.empty())
        throw Laufzeitfehler(Fehlerart::InvalidCall,
                             u"In der Liste der Bildnamen steht noch kein Kind. Sie entsteht bei "
                             u"„Basisdaten speichern“. Es wurde nichts geschrieben.");
    return liste;
}

Table hinweise(const Kinderbilder& bilder) {
    Cell texte;
    for (const TextView hinweis : Hinweise)
        texte.paragraphs.push_back(paragraph(StyleId::Fliesstext, Text(hinweis)));
    return {.columns = {8, 1},
            .rows = {
                {std::move(texte), Cell{.paragraphs = {}, .image = bilder(Text(dateien::Smili))}}}};
}

Row zeileAus(const Bildzeile& eintrag, const Kinderbilder& bilder) {
    Row zeile = {
        Zelle(StyleId::Listenzahl, textFromNumber(eintrag.Nummer)),
        {},
        Zelle(StyleId::Listenzeile, u"=  " + verbunden(eintrag.Nachname, u", ", eintrag.Vorname)),
        {}};
    if (eintrag.BildDatei.empty()) {
        zeile[1] = Zelle(StyleId::Listenzeile, u"–");
    } else {
        const Text datei = eintrag.BildDatei + u".jpg";
        zeile[1] = Zelle(StyleId::Listenzeile, printable(datei));
        zeile[3].image = bilder(datei);
    }
    return zeile;
}

} // namespace

Document BilderlisteBilden(Arbeitsverzeichnis& verzeichnis, const Kinderbilder& bilder) {
    const Bildliste liste = bildlisteLesen(verzeichnis);
    Table tabelle{.columns = {2, 18, 15, 4}, .rows = {}, .grid = true, .rowHeight = Zeilenhoehe};
    bool fehlt = false;
    for (const Bildzeile& zeile : liste.Zeilen) {
        tabelle.rows.push_back(zeileAus(zeile, bilder));
        fehlt = fehlt || zeile.BildDatei.empty();
    }
    const Text titel = u"Benennung von Bildern der Klasse " + liste.Klasse +
                       u" für die Speicherung im Unterordner 'Bild'";
    std::vector<Block> bloecke = {
        paragraph(StyleId::Listentitel, titel), hinweise(bilder),
        paragraph(StyleId::Listenangabe, u""),  std::move(tabelle),
        paragraph(StyleId::Fliesstext, u""),    paragraph(StyleId::Fliesstext, Text(Zwillinge))};
    if (fehlt)
        bloecke.emplace_back(paragraph(StyleId::Fliesstext, Text(OhneNamen)));
    Document dokument = Einzelliste(titel, std::move(bloecke));
    dokument.sections.front().footer = Klassentitel(u"Bildbenennungs-Liste", liste.Klasse);
    return dokument;
}

} // namespace zeugnis::dokumente
