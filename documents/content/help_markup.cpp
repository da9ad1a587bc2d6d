#include "documents/content/help_markup.h"

#include "documents/content/wording.h"

#include <array>
#include <optional>

namespace zeugnis::dokumente {
namespace {

struct Zeilenart {
    TextView Zeichen;
    StyleId Stil;
    TextView Label;
};
constexpr std::array<Zeilenart, 5> Zeilenarten = {{
    {u"# ", StyleId::Hilfetitel, u""},
    {u"## ", StyleId::Hilfekapitel, u""},
    {u"### ", StyleId::Hilfeabschnitt, u""},
    {u"- ", StyleId::Hilfeschritt, u"•"},
    {u"! ", StyleId::Hilfehinweis, u""},
}};
constexpr TextView Fett = u"**";
constexpr TextView Bildanfang = u"[Bild: ";
constexpr TextView NeueSeite = u"---";

// "12. " at the beginning of a step; 0 if it is none.
size_t laengeDerNummer(TextView zeile) {
    size_t ziffern = 0;
    while (ziffern < zeile.size() && zeile[ziffern] >= u'0' && zeile[ziffern] <= u'9')
        ++ziffern;
    return ziffern > 0 && zeile.substr(ziffern, 2) == u". " ? ziffern + 2 : 0;
}

// The paragraph that a line begins, or nothing if it goes on with the one before.
std::optional<Paragraph> absatzAus(TextView zeile) {
    for (const Zeilenart& art : Zeilenarten) {
        if (zeile.substr(0, art.Zeichen.size()) != art.Zeichen)
            continue;
        Paragraph absatz = paragraph(art.Stil, Text(zeile.substr(art.Zeichen.size())));
        absatz.label = art.Label;
        return absatz;
    }
    if (const size_t nummer = laengeDerNummer(zeile); nummer > 0) {
        Paragraph absatz = paragraph(StyleId::Hilfeschritt, Text(zeile.substr(nummer)));
        absatz.label = Text(zeile.substr(0, nummer - 1));
        return absatz;
    }
    return std::nullopt;
}

std::vector<Run> laeufeAus(TextView text) {
    std::vector<Run> laeufe;
    bool fett = false;
    while (!text.empty()) {
        const size_t ende = text.find(Fett);
        if (ende != 0)
            laeufe.push_back({.text = Text(text.substr(0, ende)), .bold = fett});
        if (ende == TextView::npos)
            break;
        text.remove_prefix(ende + Fett.size());
        fett = !fett;
    }
    return laeufe;
}

void verkleinern(Image& bild, int prozent) {
    bild.width = bild.width * prozent / 100;
    bild.height = bild.height * prozent / 100;
}

class Leser {
  public:
    explicit Leser(const Bildquelle& bilder) : m_bilder(bilder) {}

    void zeile(TextView zeile) {
        if (zeile.empty())
            abschliessen();
        else if (zeile == NeueSeite)
            seitenwechsel();
        else if (zeile.substr(0, Bildanfang.size()) == Bildanfang)
            bild(zeile);
        else
            textzeile(zeile);
    }

    std::vector<Block> fertig() {
        abschliessen();
        return std::move(m_bloecke);
    }

  private:
    void abschliessen() {
        if (!m_absatz)
            return;
        const Text text = textOf(*m_absatz);
        m_absatz->keepWithNext = !text.empty() && text.back() == u':';
        m_absatz->startsPage = m_neueSeite;
        m_absatz->runs = laeufeAus(text);
        m_bloecke.emplace_back(std::move(*m_absatz));
        m_absatz.reset();
        m_neueSeite = false;
    }

    void seitenwechsel() {
        abschliessen();
        m_neueSeite = true;
    }

    // "[Bild: name.png | description]", or with a width behind it: "| 80 %]"
    void bild(TextView zeile) {
        abschliessen();
        std::array<Text, 3> angaben;
        TextView rest = zeile.substr(Bildanfang.size(), zeile.rfind(u']') - Bildanfang.size());
        for (Text& angabe : angaben) {
            const size_t strich = rest.find(u'|');
            angabe = trimmed(rest.substr(0, strich));
            rest.remove_prefix(strich == TextView::npos ? rest.size() : strich + 1);
        }
        const auto& [name, beschreibung, breite] = angaben;
        Image bild = BildAusPng(m_bilder(name), beschreibung);
        if (!breite.empty())
            verkleinern(bild, numberFromText(breite.substr(0, breite.find(u'%')),
                                             u"Die Breite des Bildes „" + name + u"“"));
        m_bloecke.emplace_back(std::move(bild));
    }

    void textzeile(TextView zeile) {
        if (std::optional<Paragraph> neu = absatzAus(zeile)) {
            abschliessen();
            m_absatz = std::move(neu);
            if (styleOf(m_absatz->style).keepWithNext) // a heading has one line
                abschliessen();
        } else if (m_absatz) {
            m_absatz->runs.front().text += u" " + Text(zeile);
        } else {
            m_absatz = paragraph(StyleId::Fliesstext, Text(zeile));
        }
    }

    const Bildquelle& m_bilder;
    std::optional<Paragraph> m_absatz;
    std::vector<Block> m_bloecke;
    bool m_neueSeite = false;
};

bool istAufzaehlung(const std::vector<Block>& bloecke, size_t i) {
    const auto* absatz = i < bloecke.size() ? std::get_if<Paragraph>(&bloecke[i]) : nullptr;
    return absatz != nullptr && absatz->style == StyleId::Hilfeschritt;
}

// The last item of a list does not stand alone on a new page.
void letztePunkteHalten(std::vector<Block>& bloecke) {
    for (size_t i = 0; i + 1 < bloecke.size(); ++i)
        if (istAufzaehlung(bloecke, i) && istAufzaehlung(bloecke, i + 1) &&
            !istAufzaehlung(bloecke, i + 2))
            std::get<Paragraph>(bloecke[i]).keepWithNext = true;
}

Text titelAus(const std::vector<Block>& bloecke) {
    for (const Block& block : bloecke)
        if (const auto* absatz = std::get_if<Paragraph>(&block);
            absatz != nullptr && absatz->style == StyleId::Hilfetitel)
            return textOf(*absatz);
    return {};
}

} // namespace

Document HilfeAusMarkup(TextView markup, const Bildquelle& bilder) {
    Leser leser(bilder);
    while (!markup.empty()) {
        const size_t ende = markup.find(u'\n');
        TextView zeile = markup.substr(0, ende);
        if (!zeile.empty() && zeile.back() == u'\r')
            zeile.remove_suffix(1);
        leser.zeile(trimmed(zeile));
        markup.remove_prefix(ende == TextView::npos ? markup.size() : ende + 1);
    }
    Section seiten;
    seiten.blocks = leser.fertig();
    letztePunkteHalten(seiten.blocks);
    const Text titel = titelAus(seiten.blocks);
    seiten.footer = verbunden(u"Zeugnisprogramm", u" – ", titel);
    return {.title = titel, .sections = {std::move(seiten)}};
}

} // namespace zeugnis::dokumente
