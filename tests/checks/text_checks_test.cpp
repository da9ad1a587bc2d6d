#include "checks/hunspell_spelling.h"
#include "checks/text_checks.h"

#include <gtest/gtest.h>

namespace zeugnis {
namespace {

// Knows the words of the right texts below and nothing else.
class FewWords : public Rechtschreibung {
  public:
    [[nodiscard]] bool kennt(TextView wort) const override { return m_words.contains(Text(wort)); }
    [[nodiscard]] std::vector<Text> vorschlaege(TextView /*wort*/) const override { return {}; }

  private:
    std::set<Text> m_words = {
        u"lacht", u"viel", u"sie", u"er",  u"schreibt", u"ihre",  u"seine",  u"Texte", u"und",
        u"kommt", u"am",   u"in",  u"die", u"ihr",      u"hilft", u"wird",   u"geübt", u"z",
        u"B",     u"Heft", u"ist", u"gut", u"das",      u"mit",   u"Freude", u"ihm",   u"vor"};
};

struct Case {
    const char16_t* Text;
    const char16_t* Sex;
    std::vector<std::pair<Textmangel, const char*>> Found;
};

TEST(TextChecks, FindWhatIsWrongAndNothingElse) {
    using enum Textmangel;
    const FewWords dictionary;
    const std::set<Text> known = {u"Mats", u"Lena", u"Süderfehn"};
    Bausteinwoerter modules;
    modules.Woerter = {u"Eigene", u"verfasst", u"Aufgaben", u"löst"};
    modules.Satzanfaenge = {u"Aufgaben zum Üben"};
    const std::vector<Case> cases = {
        {u"Mats lacht. Er schreibt viel.\nSeine Texte wird er vor.", u"m", {}},
        {u"Mats schreibt Texte und hilft ihr. Z. B. am 4. Heft!", u"m", {}},
        {u"„Mats lacht“. (Er hilft.)", u"m", {}},
        {u"Mats lacht. gene Texte verfasst er.",
         u"m",
         {{KleinerAnfang, "gene Texte verfasst er."}, {Wortrest, "gene"}}},
        {u"mit Freude lacht Mats.", u"m", {{KleinerAnfang, "mit Freude lacht Mats."}}},
        {u"Mats lacht.Er hilft.", u"m", {{FehlendesLeerzeichen, "lacht.Er hilft."}}},
        {u"Mats lacht\nEr hilft.", u"m", {{OffenesEnde, "lacht"}}},
        {u"Mats lacht", u"m", {{OffenesEnde, "lacht"}}},
        {u"Mats lacht Aufgaben zum Üben.",
         u"m",
         {{Zusammengelaufen, "Aufgaben zum Üben."}, {Unbekannt, "zum"}, {Unbekannt, "Üben"}}},
        {u"Mats lacht Er hilft.", u"m", {{Zusammengelaufen, "Er hilft."}}},
        {u"Mats lachd viel.", u"m", {{Unbekannt, "lachd"}}},
        {u"Lena lacht. Er hilft.", u"w", {{AnderesGeschlecht, "Er"}}},
        {u"Lena schreibt seine Texte.", u"w", {{AnderesGeschlecht, "seine"}}},
        {u"Mats lacht. Viel hilft sie.", u"m", {{AnderesGeschlecht, "sie"}}},
        {u"Mats schreibt Texte vor und hilft ihr.", u"m", {}},
        {u"Viel hilft sie.", u"", {}},
        {u"Matss Heft ist gut.", u"m", {{Namensform, "Matss"}}},
        {u"Lena's Heft ist gut.", u"w", {{Namensform, "Lena's"}}},
    };
    for (const Case& one : cases) {
        const bool isBoy = TextView(one.Text).find(u"Lena") == TextView::npos;
        const Textumstand about{.Vorname = isBoy ? u"Mats" : u"Lena",
                                .Geschlecht = one.Sex,
                                .Bausteine = &modules,
                                .Woerterbuch = &dictionary,
                                .Bekannt = &known};
        std::string found;
        for (const Befundstelle& place : TextPruefen(one.Text, about))
            found += std::to_string(static_cast<int>(place.Art)) + utf8FromText(place.Stelle) + "|";
        std::string expected;
        for (const auto& [kind, place] : one.Found)
            expected += std::to_string(static_cast<int>(kind)) + place + "|";
        EXPECT_EQ(found, expected) << utf8FromText(one.Text);
    }
}

TEST(TextChecks, UnknownWordsAreNeitherPlaceholdersNorWhatTouchesThem) {
    const FewWords dictionary;
    const Textumstand about{.Vorname = u"Mats", .Geschlecht = u"m", .Woerterbuch = &dictionary};
    const std::pair<const char16_t*, const char*> cases[] = {
        {u"<Vorname> lachd viel <ihr/sein>e Schuelr<in> < gutt", "10lachd 47gutt "},
        {u"Viel > lachd <Er/Sie> hilfd", "7lachd 22hilfd "},
        {u"Matss lacht viel-gut, gut-viell.", "0Matss 22gut-viell "},
    };
    for (const auto& [text, expected] : cases) {
        std::string found;
        for (const Wort& word : UnbekannteWoerter(text, about))
            found += std::to_string(word.Stelle) + utf8FromText(word.Text) + " ";
        EXPECT_EQ(found, expected);
    }
}

TEST(TextChecks, ARestrictedRatingNeedsAReason) {
    const Text restricted = u"Das Arbeitsverhalten entspricht den Erwartungen mit Einschränkungen.";
    EXPECT_TRUE(IstUnbegruendetEingeschraenkt(u"Mats arbeitet gern.\n" + restricted));
    EXPECT_FALSE(IstUnbegruendetEingeschraenkt(u"Mats vergisst noch viel.\n" + restricted));
    EXPECT_TRUE(
        IstUnbegruendetEingeschraenkt(u"Das Sozialverhalten entspricht nicht den Erwartungen."));
    EXPECT_FALSE(IstUnbegruendetEingeschraenkt(u"Das Sozialverhalten entspricht den Erwartungen."));
}

TEST(TextChecks, TheGermanDictionaryKnowsGerman) {
    const auto dictionary = DeutscheRechtschreibung();
    if (!dictionary)
        GTEST_SKIP() << "no German dictionary";
    for (const char16_t* right : {u"Größe", u"übt", u"Rechtschreibregeln", u"Sachaufgaben"})
        EXPECT_TRUE(dictionary->kennt(right)) << utf8FromText(right);
    for (const char16_t* wrong : {u"Grösze", u"Aufgebn", u"lachd", u"Łódź"})
        EXPECT_FALSE(dictionary->kennt(wrong)) << utf8FromText(wrong);
    const std::vector<Text> meant = dictionary->vorschlaege(u"Größse");
    EXPECT_NE(std::find(meant.begin(), meant.end(), u"Größe"), meant.end());
}

} // namespace
} // namespace zeugnis
