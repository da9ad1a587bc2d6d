#include "documents/rtf/rtf_styles.h"

#include "documents/rtf/rtf_text.h"

#include <algorithm>
#include <vector>

namespace zeugnis::dokumente {
namespace {

// Entry 0 of the table is the reader's own colour, so these are counted from 1.
const std::vector<std::uint32_t>& colours() {
    static const std::vector<std::uint32_t> table = [] {
        std::vector<std::uint32_t> all = {RuleColour, BarColour};
        for (const Style& style : allStyles())
            if (std::find(all.begin(), all.end(), style.colour) == all.end())
                all.push_back(style.colour);
        return all;
    }();
    return table;
}

int colourNumber(std::uint32_t colour) {
    const auto found = std::find(colours().begin(), colours().end(), colour);
    return static_cast<int>(found - colours().begin()) + 1;
}

std::string colourTable() {
    std::string rtf = "{\\colortbl;";
    for (const std::uint32_t colour : colours())
        rtf += rtfNumber("\\red", static_cast<int>(colour >> 16U & 0xFFU)) +
               rtfNumber("\\green", static_cast<int>(colour >> 8U & 0xFFU)) +
               rtfNumber("\\blue", static_cast<int>(colour & 0xFFU)) + ";";
    return rtf + "}\n";
}

std::string fontTable() {
    return "{\\fonttbl{\\f0\\fswiss\\fprq2\\fcharset0 " + rtfText(FontName) + "{\\*\\falt " +
           rtfText(FontAlternative) + "};}}\n";
}

std::string styleSheet() {
    std::string rtf = "{\\stylesheet\n{\\s0\\f0\\fs22\\lang1031 Normal;}\n";
    for (const Style& style : allStyles())
        rtf += "{" + rtfProperties(style) + "\\sbasedon0 " + rtfText(style.name) + ";}\n";
    return rtf + "}\n";
}

std::string alignmentWord(Alignment alignment) {
    switch (alignment) {
    case Alignment::Left:
        return "\\ql";
    case Alignment::Centre:
        return "\\qc";
    case Alignment::Right:
        return "\\qr";
    }
    return {};
}

std::string ruleOf(const Style& style) {
    const std::string distance = rtfNumber("\\brsp", RuleDistance);
    switch (style.rule) {
    case Rule::None:
        return {};
    case Rule::Above:
        return "\\brdrt" + rtfLine(RuleWidth, RuleColour) + distance;
    case Rule::Below:
        return "\\brdrb" + rtfLine(RuleWidth, RuleColour) + distance;
    case Rule::LeftOf:
        return "\\brdrl" + rtfLine(BarWidth, BarColour) + rtfNumber("\\brsp", BarDistance);
    }
    return {};
}

std::string numberUnlessZero(const char* word, int number) {
    return number == 0 ? std::string() : rtfNumber(word, number);
}

} // namespace

std::string rtfTables() { return fontTable() + colourTable() + styleSheet(); }

std::string rtfProperties(const Style& style) {
    std::string rtf = rtfNumber("\\s", static_cast<int>(style.id) + 1);
    rtf += alignmentWord(style.alignment);
    rtf += numberUnlessZero("\\li", style.leftIndent) + numberUnlessZero("\\fi", -style.hanging);
    rtf += numberUnlessZero("\\sb", style.spaceBefore) + numberUnlessZero("\\sa", style.spaceAfter);
    rtf += rtfNumber("\\sl", -style.lineHeight) + "\\slmult0\\widctlpar";
    rtf += ruleOf(style);
    if (style.keepWithNext)
        rtf += "\\keepn";
    if (style.headingLevel > 0)
        rtf += rtfNumber("\\outlinelevel", style.headingLevel - 1);
    rtf += "\\f0" + rtfNumber("\\fs", style.halfPoints) + (style.bold ? "\\b" : "");
    rtf += rtfNumber("\\cf", colourNumber(style.colour)) + "\\kerning1";
    return rtf + numberUnlessZero("\\expndtw", style.tracking) + "\\lang1031";
}

std::string rtfLine(Twips width, std::uint32_t colour) {
    return "\\brdrs" + rtfNumber("\\brdrw", width) + rtfNumber("\\brdrcf", colourNumber(colour));
}

} // namespace zeugnis::dokumente
