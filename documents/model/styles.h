#pragma once

#include "platform/text.h"

#include <array>
#include <cstdint>

/// How documents look, in one table for both writers.
namespace zeugnis::dokumente {

/// 1/20 point, 1/1440 inch: the unit of all lengths in a document.
using Twips = int;

enum class Alignment { Left, Centre, Right };

enum class Rule { None, Above, Below, LeftOf };

enum class StyleId {
    Fliesstext,
    Schulname,
    Schulangabe,
    Titel,
    Zeitraum,
    Kindname,
    Kindangabe,
    Bereich,
    Lernbereich,
    Bereichstext,
    BereichstextAnfang,
    Schlussangabe,
    Gesehen,
    Unterschriftsraum,
    Unterschrift,
    Siegel,
    Versaeumnis,
    Fach,
    Note,
    Notenschluessel,
    Notenkopf,
    Notenname,
    Notenwert,
    Fusszeile,
    Listentitel,
    Listenangabe,
    Listenkopf,
    Listenzeile,
    Listenzahl,
    Konferenzzeile,
    Formularangabe,
    Eintragsname,
    Eintragsbereich,
    Hilfetitel,
    Hilfekapitel,
    Hilfeabschnitt,
    Hilfeschritt,
    Hilfehinweis,
    Bildzeile,
};

struct Style {
    StyleId id;
    TextView name; ///< as a word processor lists it; ASCII, or pandoc takes it for text
    int halfPoints;
    Twips lineHeight; ///< exact, so that all programs break pages alike
    bool bold = false;
    std::uint32_t colour = 0; ///< 0xRRGGBB
    Alignment alignment = Alignment::Left;
    Twips spaceBefore = 0; ///< adds to the space after the paragraph before; none at a page's top
    Twips spaceAfter = 0;
    Twips leftIndent = 0;
    Twips hanging = 0;  ///< the first line begins this much further left, with the label
    Twips tracking = 0; ///< additional space between letters
    Rule rule = Rule::None;
    bool keepWithNext = false;
    int headingLevel = 0;   ///< from 1; 0 for what is no heading
    bool inOutline = false; ///< appears among the bookmarks
};

/// The table's entry; every StyleId has one.
const Style& styleOf(StyleId id);

/// All styles, in the order of StyleId.
inline constexpr int StyleCount = static_cast<int>(StyleId::Bildzeile) + 1;
const std::array<Style, StyleCount>& allStyles();

/// The page: A4, upright but for documents that say otherwise.
namespace page {
inline constexpr Twips Width = 11906;
inline constexpr Twips Height = 16838;
inline constexpr Twips Left = 1361;
inline constexpr Twips Right = 1361;
inline constexpr Twips Top = 1134;
inline constexpr Twips Bottom = 1304;
inline constexpr Twips FooterToEdge = 624; ///< from the footer's lower edge to that of the paper
inline constexpr Twips TextWidth = Width - Left - Right;
inline constexpr Twips TextHeight = Height - Top - Bottom;

/// Upright or turned; the margins are the same.
struct Form {
    Twips width = Width;
    Twips height = Height;

    [[nodiscard]] constexpr Twips textWidth() const { return width - Left - Right; }
    [[nodiscard]] constexpr Twips textHeight() const { return height - Top - Bottom; }
};
inline constexpr Form Upright{};
inline constexpr Form Landscape{Height, Width};
} // namespace page

inline constexpr std::uint32_t RuleColour = 0xA6A6A6;
inline constexpr Twips RuleWidth = 10;
inline constexpr Twips RuleDistance = 60; ///< between a rule and its text
inline constexpr Twips BarWidth = 45;     ///< of a rule to the left
inline constexpr Twips BarDistance = 160;
inline constexpr std::uint32_t BarColour = 0x1F6F6B;
inline constexpr Twips CellPadding = 80;    ///< in a table with a grid, to the left and right
inline constexpr Twips PicturePadding = 60; ///< above and below a picture in a cell

/// Calibri and Carlito have the same metrics; which of them is there depends on the machine.
inline constexpr TextView FontName = u"Calibri";
inline constexpr TextView FontAlternative = u"Carlito";

} // namespace zeugnis::dokumente
