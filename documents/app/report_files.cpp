#include "documents/app/report_files.h"

#include "documents/app/pupil_picture.h"
#include "documents/content/report_frame.h"
#include "documents/pdf/page_fit.h"
#include "documents/pdf/pdf_writer.h"
#include "files/file_catalogue.h"
#include "platform/failure.h"
#include "platform/path_text.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <set>
#include <system_error>

namespace zeugnis::dokumente {
namespace fs = std::filesystem;
namespace {

constexpr TextView Probe = u"Probezeugnis.pdf";
constexpr TextView Verboten = u"<>:\"/\\|?*";

std::string pdfVon(const Document& dokument) {
    return pdfFromLayout(layOut(fittedToPages(dokument)));
}

bool istBild(const Text& datei) {
    return datei.size() > 4 && sameIgnoringCase(TextView(datei).substr(datei.size() - 4), u".jpg");
}

// What a file system takes as a name.
Text alsDateiname(Text name) {
    for (char16_t& zeichen : name)
        if (Verboten.find(zeichen) != TextView::npos)
            zeichen = u'-';
    return name;
}

// "Weiß, Zoé (3a).pdf"; of two with one name the second bears its number too.
Text dateinameFuer(const Stammdaten& stamm, int platz, std::set<Text>& vergeben) {
    const Schueler& kind = stamm.Liste.Kinder[platz];
    const Text nachname = printable(kind.Nachname);
    const Text vorname = printable(kind.Vorname);
    const Text beide =
        nachname.empty() || vorname.empty() ? nachname + vorname : nachname + u", " + vorname;
    const Text klasse = u" (" + stamm.Liste.Klasse + u")";
    Text name = alsDateiname(beide + klasse);
    if (beide.empty() || !vergeben.insert(name).second)
        name = alsDateiname(beide + klasse + u" " + textFromNumber(platz + 1));
    return name + u".pdf";
}

void abbruchPruefen(const std::stop_token& abbruch) {
    if (abbruch.stop_requested())
        throw Laufzeitfehler(Fehlerart::InvalidCall,
                             u"Das Schreiben wurde abgebrochen. Der Ordner ist unvollständig.");
}

} // namespace

Zeugnisdaten ZeugnisdatenMitBild(Arbeitsverzeichnis& verzeichnis, const OffeneTexte& offen) {
    Zeugnisdaten daten = ZeugnisdatenLesen(verzeichnis, offen);
    daten.Stamm.Kopfbild = KopfbildLesen(verzeichnis, daten.Stamm.Aufbau.Kopfbild);
    return daten;
}

fs::path ProbezeugnisSchreiben(Arbeitsverzeichnis& verzeichnis, const Zeugnisaufbau& aufbau,
                               const fs::path& ordner) {
    Zeugnisdaten daten = ZeugnisdatenLesen(verzeichnis);
    daten.Stamm.Aufbau = aufbau;
    daten.Stamm.Kopfbild = KopfbildLesen(verzeichnis, aufbau.Kopfbild);
    int platz = 0;
    for (int i = daten.Stamm.Liste.Schuelerzahl - 1; i >= 0; --i)
        if (IstNichtVersetzt(daten, i))
            platz = i;
    const Arbeitsverzeichnis ziel(ordner);
    writeWholeFile(ziel, Probe, pdfVon(ZeugnisBilden(daten, platz)));
    return ziel.path(Probe);
}

std::vector<Text> Kopfbilder(Arbeitsverzeichnis& verzeichnis) {
    const Namensliste liste = NamenLaden(verzeichnis);
    std::vector<Text> bilder;
    std::error_code ignored;
    for (const fs::directory_entry& eintrag :
         fs::directory_iterator(verzeichnis.path(dateien::Bild), ignored)) {
        const Text datei = textFromPath(eintrag.path().filename());
        bool vonKind = sameIgnoringCase(datei, dateien::Smili);
        for (int platz = 0; platz < liste.Schuelerzahl; ++platz)
            vonKind =
                vonKind || sameIgnoringCase(datei, BildnameVon(liste.Kinder[platz]) + u".jpg");
        if (istBild(datei) && !vonKind)
            bilder.push_back(datei);
    }
    std::sort(bilder.begin(), bilder.end());
    return bilder;
}

fs::path EinzelneZeugnisseSchreiben(Arbeitsverzeichnis& verzeichnis,
                                    const std::stop_token& abbruch) {
    const Zeugnisdaten daten = ZeugnisdatenMitBild(verzeichnis);
    const Text stamm = Klassenstamm(daten.Stamm, u"Zeugnisse");
    fs::path ordner = verzeichnis.current() / stamm;
    fs::create_directories(ordner);
    const Arbeitsverzeichnis ziel(ordner);
    std::set<Text> vergeben;
    for (int platz = 0; platz < daten.Stamm.Liste.Schuelerzahl; ++platz) {
        abbruchPruefen(abbruch);
        writeWholeFile(ziel, dateinameFuer(daten.Stamm, platz, vergeben),
                       pdfVon(ZeugnisBilden(daten, platz)));
    }
    writeWholeFile(ziel, stamm + u".pdf", pdfVon(ZeugnisseBilden(daten)));
    return ordner;
}

} // namespace zeugnis::dokumente
