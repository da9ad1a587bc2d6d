#include "years12/area_composition.h"

#include "common/placeholders.h"

#include <gtest/gtest.h>

#include <map>

namespace zeugnis::test {
namespace {

using namespace jahrgang12;

int number(TextView name) {
    for (int g = 0; g < Gruppenzahl; ++g)
        if (gruppe(g).Name == name)
            return g;
    ADD_FAILURE() << utf8FromText(name);
    return 0;
}

struct Choice {
    TextView group;
    TextView caption;
    TextView opening = {};
};

// The area text of choices made in this order.
Text composed(int area, TextView vorname, TextView geschlecht, const std::vector<Choice>& choices) {
    Teiltexte parts;
    for (const Choice& one : choices)
        parts[number(one.group)] =
            TeiltextBilden(number(one.group), Text(one.caption), Text(one.opening), parts);
    return PlatzhalterErsetzen(
        TeiltexteVerbinden(area, parts),
        {Text(vorname), Text(geschlecht), u"2026/2027", u"2027/2028", u"1.7."},
        TextregelnJahrgaenge);
}

TEST(Composition12, GivesEachGroupItsForm) {
    const std::map<TextView, TextView> forms = {
        {u"Option2", u"W"},      {u"Option3", u"W"},      {u"Option44", u"W"},
        {u"Option4", u"W"},      {u"Option5", u"W"},      {u"Option6", u"W."},
        {u"Option7", u"W"},      {u"Option8", u"W."},     {u"Option45", u"W."},
        {u"Option9", u"W "},     {u"Option10", u"W "},    {u"Option11", u"L W. "},
        {u"Option12", u"L W. "}, {u"Option13", u"L W."},  {u"Option24", u" L W."},
        {u"Option14", u"L W. "}, {u"Option35", u"L W"},   {u"Option15", u"L W."},
        {u"Option16", u" L W."}, {u"Option20", u" L W."}, {u"Option28", u" W."},
        {u"Option25", u" L W."}, {u"Option17", u"L W. "}, {u"Option18", u"L W. "},
        {u"Option19", u"L W. "}, {u"Option26", u"L W. "}, {u"Option27", u"L W."},
        {u"Option29", u"L W. "}, {u"Option30", u"L W. "}, {u"Option31", u"L W. "},
        {u"Option32", u"L W. "}, {u"Option33", u"L W. "}, {u"Option34", u"L W. "},
        {u"Option23", u"W."},    {u"Option21", u"W."},
    };
    EXPECT_EQ(forms.size() + 1, Gruppen.size()) << "the interests have a rule of their own";
    for (const auto& [group, form] : forms)
        EXPECT_EQ(TeiltextBilden(number(group), u"W", u"L", {}), form) << utf8FromText(group);
    Teiltexte opened;
    opened[number(u"Option35")] = u"L W35";
    EXPECT_EQ(TeiltextBilden(number(u"Option15"), u"W", u"L", opened), u" W.");
    EXPECT_EQ(TeiltextBilden(number(u"Option11"), u"", u"L", {}), u"L . ")
        << "no blank is filtered";
}

TEST(Composition12, JoinsThePartsOfAPage) {
    const struct {
        int area;
        TextView vorname, geschlecht;
        std::vector<Choice> choices;
        TextView text;
    } examples[] = {
        {1,
         u"Lena",
         u"w",
         {{u"Option2", u"<Vorname> erzählt zusammenhängend"},
          {u"Option3", u"<Er/Sie> hört aufmerksam zu"}},
         u"Lena erzählt zusammenhängend. Sie hört aufmerksam zu. "},
        {1,
         u"Tim",
         u"m",
         {{u"Option44", u"<Vorname> stellt Fragen"}, {u"Option3", u"<Er/Sie> hört aufmerksam zu"}},
         u"Er hört aufmerksam zu. Tim stellt Fragen."},
        {2,
         u"Lena",
         u"w",
         {{u"Option4", u"<Vorname> liest"},
          {u"Option5", u"flüssig"},
          {u"Option6", u"und betont"},
          {u"Option7", u"Texte erfasst <sie/er>"},
          {u"Option8", u"sicher"}},
         u"Lena liest flüssig und betont. Texte erfasst sie sicher."},
        {2,
         u"Tim",
         u"m",
         {{u"Option45", u"Das Vorlesen gelingt <ihr/ihm> gut"},
          {u"Option8", u"sicher"},
          {u"Option7", u"Texte erfasst <sie/er>"}},
         u"Texte erfasst er sicher. Das Vorlesen gelingt ihm gut."},
        {4,
         u"Lena",
         u"w",
         {{u"Option14", u"rechnet <Vorname> sicher", u"Im Zahlenraum bis 20"},
          {u"Option35", u"arbeitet <sie/er>", u"Beim Addieren"},
          {u"Option15", u"zügig", u"Beim Addieren"}},
         u"Im Zahlenraum bis 20 rechnet Lena sicher. Beim Addieren arbeitet sie zügig."},
        {4,
         u"Tim",
         u"m",
         {{u"Option35", u"arbeitet <sie/er>", u"Beim Addieren"}},
         u"Beim Addieren arbeitet er"},
        {5,
         u"Tim",
         u"m",
         {{u"Option17", u"misst <Vorname> genau", u"Längen"},
          {u"Option27", u"zählt <sie/er> richtig", u"Geld"}},
         u"Längen misst Tim genau. Geld zählt er richtig."},
        {3,
         u"Lena",
         u"w",
         {{u"Option9", u"<Vorname> schreibt sauber."},
          {u"Option11", u"arbeitet <sie/er> genau", u"Beim Abschreiben"}},
         u"Lena schreibt sauber. Beim Abschreiben arbeitet sie genau. "},
        // beyond the worked examples
        {1, u"Tim", u"m", {}, u""},
        {4, u"Tim", u"m", {{u"Option16", u"gut", u"Er rechnet"}}, u" Er rechnet gut."},
        {6, u"Tim", u"m", {{u"Option34", u"gut", u"Er zeichnet"}}, u"Er zeichnet gut. "},
        {2, u"Tim", u"m", {{u"Option4", u" Er liest "}}, u"Er liest"},
        {2, u"Tim", u"m", {{u"Option6", u"Er liest.."}}, u"Er liest."},
        {2, u"Tim", u"m", {{u"Option6", u"Er liest. "}}, u"Er liest."},
        {2, u"Tim", u"m", {{u"Option6", u"Er liest."}, {u"Option45", u"Gut"}}, u"Er liest.ut."},
        {2, u"Tim", u"m", {{u"Option4", u"als Sprecher <in> der"}}, u"als Sprecher r"},
        {1,
         u"<Vorname>",
         u"m",
         {{u"Option44", u"<Vorname> in <VORNAME>"}},
         u"<Vorname> in <VORNAME>."},
        {1,
         u"Tim",
         u"",
         {{u"Option44", u"<Sein/Ihr> Jahr <Schuljahr>, <Nextschj>, <Konferenz>"}},
         u"Ihr Jahr 2026/2027, 2027/2028, 1.7."},
    };
    for (const auto& one : examples)
        EXPECT_EQ(composed(one.area, one.vorname, one.geschlecht, one.choices), one.text);
}

TEST(Composition12, ExpandsTenOfAPlaceholder) {
    Text eleven;
    Text expected;
    for (int i = 1; i <= 11; ++i) {
        eleven += u"<in>,";
        expected += i <= 10 ? u"in," : u"<in>,";
    }
    EXPECT_EQ(composed(1, u"Lena", u"w", {{u"Option44", eleven}}), expected + u".");
}

} // namespace
} // namespace zeugnis::test
