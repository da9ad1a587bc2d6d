#pragma once

#include "documents/content/school_report.h"
#include "documents/pdf/pdf_writer.h"

#include <QRect>

class QPainter;

namespace zeugnis::dokumente {

/// A report beside the screen that it is written on: as it will be printed, with the texts that the
/// screen holds now. Lengths are twips, pages count from 0. Needs a QGuiApplication.
class Zeugnisblatt {
  public:
    static constexpr int Seitenziel = 2; ///< a sheet with two sides

    /// Where a section of the report stands.
    struct Stelle {
        int Seite = 0;
        QRect Flaeche;
        /// Its place in the store that texts are open in place of; -1 for one of another store.
        int Abschnitt = -1;
        TextView Name;
    };

    /// Reads all else from the files of the installation. Fails as ZeugnisdatenLesen does.
    Zeugnisblatt(Arbeitsverzeichnis& verzeichnis, OffeneTexte offen);

    /// Lays out the report of a child anew. Fails with invalid-call if the class list in the files
    /// has another child at this place.
    void setzen(const Schueler& kind, int platz, const std::vector<Text>& texte);

    [[nodiscard]] int Seiten() const { return m_satz.pages; }
    [[nodiscard]] static QSize Papier() { return {page::Upright.width, page::Upright.height}; }
    /// A section may stand on two pages, and then comes twice.
    [[nodiscard]] const std::vector<Stelle>& Stellen() const { return m_stellen; }
    /// "Passt auf 2 Seiten" or "4 Zeilen zu viel für 2 Seiten"
    [[nodiscard]] Text Passung() const;
    /// Whether lines are too many.
    [[nodiscard]] bool ZuLang() const { return m_zuViel > 0; }
    /// Its origin is the corner of the paper.
    void malen(QPainter& painter, int seite) const;

  private:
    void stellenSuchen();

    OffeneTexte m_offen;
    Zeugnisdaten m_daten;
    LaidSection m_satz;
    std::vector<Stelle> m_stellen;
    int m_zuViel = 0;
};

} // namespace zeugnis::dokumente
