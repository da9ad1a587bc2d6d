#include "documents/sheet/report_sheet.h"

#include "documents/app/report_files.h"
#include "documents/content/report_sections.h"
#include "documents/pdf/page_fit.h"
#include "documents/pdf/page_painter.h"
#include "platform/failure.h"

namespace zeugnis::dokumente {
namespace {

const Speicherdatei& speicherVon(const Abschnittsplan& plan, const Stammdaten& stamm) {
    return plan.Woher == Abschnittsplan::Quelle::AVSV ? speicherdateien::AVSVTexte
                                                      : BereichsspeicherVon(stamm);
}

} // namespace

Zeugnisblatt::Zeugnisblatt(Arbeitsverzeichnis& verzeichnis, OffeneTexte offen)
    : m_offen(std::move(offen)), m_daten(ZeugnisdatenMitBild(verzeichnis, m_offen)) {}

void Zeugnisblatt::setzen(const Schueler& kind, int platz, const std::vector<Text>& texte) {
    const Namensliste& liste = m_daten.Stamm.Liste;
    if (platz >= liste.Schuelerzahl || liste.Kinder[platz].Nachname != kind.Nachname ||
        liste.Kinder[platz].Vorname != kind.Vorname)
        throw Laufzeitfehler(Fehlerart::InvalidCall,
                             u"Die Namensliste ist inzwischen eine andere. Schließen Sie dieses "
                             u"Fenster und öffnen Sie es neu.");
    if (Abschnittstexte* offene = TexteAus(m_daten, *m_offen.Anstelle))
        for (size_t i = 0; i < std::min(texte.size(), offene->size()); ++i)
            (*offene)[i][platz] = texte[i];
    const Document dokument = fittedToPages(ZeugnisBilden(m_daten, platz));
    m_satz = std::move(layOut(dokument).sections.front());
    m_zuViel = linesTooMany(m_satz, page::Upright.textHeight(), Seitenziel);
    stellenSuchen();
}

void Zeugnisblatt::stellenSuchen() {
    const Stammdaten& stamm = m_daten.Stamm;
    const std::vector<Abschnittsplan> plaene = AbschnitteFuer(stamm.Jahrgang, stamm.Aufbau);
    m_stellen.clear();
    int letzte = Paragraph::NoSource;
    for (size_t i = 0; i < m_satz.strips.size(); ++i) {
        const LaidStrip& zeile = m_satz.strips[i];
        const Place& ort = m_satz.places[i];
        const bool faehrtFort =
            zeile.source == letzte && !m_stellen.empty() && m_stellen.back().Seite == ort.page;
        letzte = zeile.source;
        if (zeile.source == Paragraph::NoSource)
            continue;
        const QRect flaeche(page::Left, page::Top + ort.y, page::Upright.textWidth(),
                            zeile.strip.height);
        if (faehrtFort) {
            m_stellen.back().Flaeche |= flaeche;
            continue;
        }
        const Abschnittsplan& plan = plaene.at(static_cast<size_t>(zeile.source));
        const bool offen = speicherVon(plan, stamm).Datei == m_offen.Anstelle->Datei;
        m_stellen.push_back({.Seite = ort.page,
                             .Flaeche = flaeche,
                             .Abschnitt = offen ? static_cast<int>(plan.Nummer) : -1,
                             .Name = plan.Ueberschrift});
    }
}

Text Zeugnisblatt::Passung() const {
    if (m_zuViel > 0)
        return textFromNumber(m_zuViel) + (m_zuViel == 1 ? u" Zeile" : u" Zeilen") +
               u" zu viel für " + textFromNumber(Seitenziel) + u" Seiten";
    return u"Passt auf " + textFromNumber(Seiten()) + (Seiten() == 1 ? u" Seite" : u" Seiten");
}

void Zeugnisblatt::malen(QPainter& painter, int seite) const {
    drawPage(painter, page::Upright, m_satz, seite);
}

} // namespace zeugnis::dokumente
