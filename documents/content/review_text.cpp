#include "documents/content/review_text.h"

#include "documents/content/list_frame.h"
#include "platform/failure.h"

#include <algorithm>

namespace zeugnis::dokumente {
namespace {

// Shorter lines of underscores are places to fill in, within the texts themselves.
const Text Trennlinie(65, u'_');
constexpr size_t HoechstensUeberschrift = 60;

std::vector<Text> zeilenVon(TextView text) {
    std::vector<Text> zeilen;
    size_t anfang = 0;
    for (size_t ende = 0; ende != Text::npos; anfang = ende + 1) {
        ende = text.find(u'\n', anfang);
        zeilen.emplace_back(text.substr(anfang, ende - anfang));
    }
    return zeilen;
}

class Setzer {
  public:
    explicit Setzer(const std::vector<Text>& zeilen)
        : m_imKopf(std::find(zeilen.begin(), zeilen.end(), Trennlinie) != zeilen.end()),
          m_istUebersicht(m_imKopf) {
        for (const Text& zeile : zeilen)
            setzen(zeile);
    }

    std::vector<Block> Bloecke;

  private:
    void setzen(const Text& zeile) {
        if (zeile == Trennlinie) {
            m_imKopf = false;
            m_vorName = true;
        } else if (zeile.empty()) {
            m_nachLuecke = true;
        } else {
            Bloecke.emplace_back(paragraph(stilVon(zeile), zeile));
            m_nachLuecke = m_vorName; // the first heading follows the name at once
            m_vorName = false;
        }
    }

    [[nodiscard]] StyleId stilVon(const Text& zeile) const {
        if (m_imKopf)
            return Bloecke.empty() ? StyleId::Listentitel : StyleId::Listenangabe;
        if (m_vorName)
            return StyleId::Eintragsname;
        const bool istUeberschrift = m_istUebersicht && m_nachLuecke && zeile.back() == u':' &&
                                     zeile.size() <= HoechstensUeberschrift;
        return istUeberschrift ? StyleId::Eintragsbereich : StyleId::Fliesstext;
    }

    bool m_imKopf;
    bool m_istUebersicht;
    bool m_vorName = false;
    bool m_nachLuecke = false;
};

} // namespace

Document AnzeigetextBilden(TextView text) {
    const Text sauber = printable(text);
    if (sauber.empty())
        throw Laufzeitfehler(Fehlerart::InvalidCall,
                             u"In der Zwischenablage steht kein Text. Laden Sie ihn in der "
                             u"Übersicht mit „Text laden“, und übertragen Sie ihn dann noch "
                             u"einmal.");
    return Einzelliste(u"Bisherige Einträge", Setzer(zeilenVon(sauber)).Bloecke);
}

} // namespace zeugnis::dokumente
