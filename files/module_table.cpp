#include "files/module_table.h"

#include "platform/failure.h"

namespace zeugnis {

Bausteintabelle::Bausteintabelle(int spalten, int zeilen)
    : m_spalten(spalten),
      m_zeilen(zeilen),
      m_zellen(static_cast<size_t>(spalten) * static_cast<size_t>(zeilen)) {}

size_t Bausteintabelle::stelle(int spalte, int zeile) const {
    if (spalte < 1 || spalte > m_spalten || zeile < 0 || zeile >= m_zeilen)
        throw Laufzeitfehler(Fehlerart::IndexOutOfRange,
                             u"Die Textbausteine haben keine Spalte " + textFromNumber(spalte) +
                                 u" mit der Zeile " + textFromNumber(zeile) + u" (Spalten 1 bis " +
                                 textFromNumber(m_spalten) + u", Zeilen 0 bis " +
                                 textFromNumber(m_zeilen - 1) + u").");
    return static_cast<size_t>(spalte - 1) * static_cast<size_t>(m_zeilen) +
           static_cast<size_t>(zeile);
}

} // namespace zeugnis
