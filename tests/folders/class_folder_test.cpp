#include "folders/class_folder.h"

#include "common/screen_names.h"
#include "folders/module_update.h"
#include "folders/moving_up.h"
#include "folders/new_class.h"
#include "folders/start_way.h"
#include "folders/take_along.h"
#include "platform/path_text.h"
#include "tests/support/test_programm.h"

#include <map>

namespace zeugnis::test {
namespace {

namespace fs = std::filesystem;

const fs::path Vorlage = fs::path(ZEUGNIS_SOURCE_FOLDER) / "install";

std::map<Text, Text> contents(const TemporaryFolder& root, TextView folder) {
    std::map<Text, Text> files;
    const fs::path start = root.path() / pathFromText(folder);
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(start))
        if (entry.is_regular_file()) {
            const Text name = entry.path().lexically_relative(start).generic_u16string();
            files[name] = root.read(Text(folder) + u"/" + name);
        }
    return files;
}

Klassenangaben angaben(TextView klasse, TextView halbjahr = u"2") {
    Klassenangaben neu;
    neu.Klasse = klasse;
    neu.Schule.Schulname = u"Schule „Am \"Łan\"“";
    neu.Schule.Schuljahr = u"2026/2027";
    neu.Schule.Halbjahr = halbjahr;
    return neu;
}

struct ClassFolder : testing::Test {
    [[nodiscard]] fs::path place(TextView name) const { return root.path() / pathFromText(name); }
    TemporaryFolder root;
};

TEST_F(ClassFolder, NewClassStartsWithAllModulesAndOneBlankPupil) {
    ASSERT_EQ(KlasseAnlegen(Vorlage, place(u"Zeugnisse/1a"), angaben(u"1a", u"1")), u"");
    EXPECT_EQ(root.read(u"Zeugnisse/1a/Daten/Basisdaten.txt"),
              u"\"Schule „Am 'Lan'“\",\"\",\"\",\"\",\"\",\"2026/2027\",\"2\",\"2027/2028\",\"\","
              u"\"\"\r\n");
    EXPECT_EQ(root.read(u"Zeugnisse/1a/Daten/12Sperre.txt"),
              u"1,\"1a\",\"\",\"\",0,0,0,0,0,0,0,0\r\n");
    const std::map<Text, Text> files = contents(root, u"Zeugnisse/1a");
    for (const TextView there : {u"Bild/SMILI.jpg", u"Daten/TexteAV.txt", u"Texte/Hilfe1.doc",
                                 u"Daten/Standard/AGStandard.Txt", u"Daten/Einfügungen2.txt"})
        EXPECT_TRUE(files.contains(Text(there))) << utf8FromText(there);
    for (const auto& [name, content] : files)
        EXPECT_TRUE(content.find(u"Ahlers") == Text::npos && name.find(u"Ahlers") == Text::npos)
            << "a child of the sample class in " << utf8FromText(name);
    EXPECT_TRUE(fs::is_directory(place(u"Zeugnisse/1a/Daten/Sicherheit")));

    EmptyProgramm machine(place(u"Zeugnisse/1a"));
    BildschirmeAnmelden(machine.programm);
    for (const TextView screen :
         {bildschirme::GsStart, bildschirme::GsBasis, bildschirme::GsArbeitsverhalten,
          bildschirme::Kompetenzen, bildschirme::GsAnzeige, bildschirme::GSAenderung12})
        EXPECT_NO_THROW(machine.programm.show(screen)) << utf8FromText(screen);
}

TEST_F(ClassFolder, RefusesWithASentenceAndLeavesNothingBehind) {
    const std::pair<Klassenangaben, TextView> wrong[] = {
        {angaben(u"5a"), u"Die Klasse beginnt"},
        {angaben(u""), u"Die Klasse beginnt"},
        {angaben(u"3a", u"3"), u"Das Halbjahr ist"}};
    for (const auto& [what, sentence] : wrong)
        EXPECT_TRUE(KlasseAnlegen(Vorlage, place(u"x"), what).starts_with(sentence));
    Klassenangaben year = angaben(u"3a");
    for (const TextView text : {u"2026", u"2026/2028", u"2026-2027", u"abcd/efgh", u""}) {
        year.Schule.Schuljahr = text;
        EXPECT_TRUE(KlasseAnlegen(Vorlage, place(u"x"), year).starts_with(u"Das Schuljahr"));
    }
    root.write(u"voll/Brief.doc", u"mine");
    EXPECT_TRUE(KlasseAnlegen(Vorlage, place(u"voll"), angaben(u"3a"))
                    .starts_with(u"Den Ordner „" + textFromPath(place(u"voll")) + u"“ gibt es"));
    EXPECT_NE(KlasseAnlegen(place(u"fehlt"), place(u"x"), angaben(u"3a")), u"");
    EXPECT_NE(KlasseMitnehmen(place(u"voll"), place(u"x")), u"");
    EXPECT_EQ(std::distance(fs::directory_iterator(root.path()), {}), 1);
}

TEST_F(ClassFolder, IsFoundFromAnyFileInItAndTellsWhoseItIs) {
    ASSERT_EQ(BeispielklasseAnlegen(Vorlage, place(u"Beispiel")), u"");
    const fs::path folder = place(u"Beispiel");
    for (const TextView inside : {u"Beispiel", u"Beispiel/", u"Beispiel/Daten/Namen.Txt",
                                  u"Beispiel/Daten/gibt es nicht", u"Beispiel/Bild"})
        EXPECT_EQ(KlassenordnerZu(place(inside)), folder) << utf8FromText(inside);
    EXPECT_FALSE(KlassenordnerZu(root.path()));
    EXPECT_FALSE(KlassenangabenLesen(root.path()));
    const std::optional<Klassenangaben> whose = KlassenangabenLesen(folder);
    ASSERT_TRUE(whose);
    EXPECT_EQ(OrdnernameFuer(*whose), u"3a 2026-27-2");
    EXPECT_GT(whose->Kinder, 5);
    Klassenangaben odd = angaben(u"3:a/b. ");
    odd.Schule.Schuljahr = u"";
    EXPECT_EQ(OrdnernameFuer(odd), u"3ab");
    root.write(u"Beispiel/Daten/Namen.Txt", u"\"");
    EXPECT_FALSE(KlassenangabenLesen(folder));
}

TEST_F(ClassFolder, IsFoundByTheStartOrChosen) {
    ASSERT_EQ(BeispielklasseAnlegen(Vorlage, place(u"Beispiel")), u"");
    fs::create_directories(place(u"damaged/DATEN"));
    const fs::path sample = place(u"Beispiel");
    struct Case {
        std::vector<Text> arguments;
        fs::path folder;
        bool delivered;
        fs::path opens;
        bool tells = false;
    };
    const Case cases[] = {
        {{}, sample, true, sample},
        {{}, place(u"damaged"), true, place(u"damaged")},
        {{}, root.path(), false, root.path()},
        {{}, root.path(), true, {}},
        {{u"--auswahl"}, sample, true, {}},
        {{u"--auswahl"}, root.path(), false, {}},
        {{u"--auswahl", u"Beispiel/Daten/Namen.Txt"}, root.path(), true, sample},
        {{textFromPath(sample)}, place(u"damaged"), false, sample},
        {{u"damaged/Brief.doc"}, root.path(), true, {}, true},
    };
    for (const Case& one : cases) {
        const Startweg way = StartwegFinden(one.arguments, one.folder, one.delivered);
        EXPECT_EQ(way.Ordner, one.opens);
        EXPECT_EQ(!way.Hinweis.empty(), one.tells);
    }
    fs::create_directories(place(u"usr/bin"));
    EXPECT_FALSE(VorlageBei(place(u"usr/bin")));
    ASSERT_EQ(BeispielklasseAnlegen(Vorlage, place(u"usr/share/zeugnisprogramm/vorlage")), u"");
    EXPECT_EQ(VorlageBei(place(u"usr/bin")), place(u"usr/share/zeugnisprogramm/vorlage"));
}

TEST_F(ClassFolder, GoesIntoTheNewSchoolYearWithNamesPicturesAndOwnModules) {
    ASSERT_EQ(BeispielklasseAnlegen(Vorlage, place(u"alt")), u"");
    root.write(u"alt/Daten/AG.Txt", u"1,\"eigenes\"\r\n2,\"Modul\"\r\n");
    root.write(u"alt/Daten/Standard/Mathe1Standard.Txt", u"1,\"früher\"\r\n");
    root.write(u"alt/Daten/Mathe1.Txt", u"1,\"früher\"\r\n");
    root.write(u"alt/Daten/worddaten/Zensuren.txt", u"grades");
    const std::map<Text, Text> before = contents(root, u"alt");
    const Klassenangaben next = NaechsterAbschnitt(*KlassenangabenLesen(place(u"alt")));
    EXPECT_EQ(OrdnernameFuer(next), u"4a 2027-28-1");
    ASSERT_EQ(KlasseUebernehmen(place(u"alt"), Vorlage, place(u"neu"), next), u"");
    EXPECT_EQ(contents(root, u"alt"), before);

    const std::map<Text, Text> now = contents(root, u"neu");
    EXPECT_EQ(now.at(u"Daten/AG.Txt"), before.at(u"Daten/AG.Txt"));
    EXPECT_EQ(now.at(u"Daten/Mathe1.Txt"), now.at(u"Daten/Standard/Mathe1Standard.Txt"))
        << "what nobody changed comes as it is delivered now";
    EXPECT_TRUE(now.contains(u"Bild/Ahlers_Mats_14032018.jpg"));
    EXPECT_FALSE(now.contains(u"Daten/worddaten/Zensuren.txt"));
    EXPECT_EQ(now.at(u"Daten/AGListe.txt"), before.at(u"Daten/AGListe.txt"));
    Text names = before.at(u"Daten/Namen.Txt");
    for (size_t at = 0; (at = names.find(u",\"3a\",", at)) != Text::npos;)
        names[at + 2] = u'4';
    EXPECT_EQ(now.at(u"Daten/Namen.Txt"), names);
    EXPECT_TRUE(now.at(u"Daten/AVSVspeicher.txt")
                    .starts_with(u"1,\"4a\",\"Ahlers\",\"Mats\",\"\",\"\"\r\n"));

    EXPECT_EQ(OrdnernameFuer(NaechsterAbschnitt(next)), u"4a 2027-28-2");
    ASSERT_EQ(KlasseMitnehmen(place(u"neu"), place(u"mit")), u"");
    EXPECT_EQ(contents(root, u"mit"), now);
}

TEST_F(ClassFolder, TakesNewModulesRowByRowAndKeepsOwnOnes) {
    const Text before = u"1,\"a\",\"b\"\r\n2,\"c\",\"d\"\r\n";
    root.write(u"k/Daten/Lesen1.Txt", u"1,\"a\",\"mein b\"\r\n2,\"c\",\"mein d\"\r\n");
    root.write(u"k/Daten/Standard/Lesen1Standard.Txt", before);
    root.write(u"v/Daten/Lesen1.Txt", u"1,\"A\",\"B\"\r\n2,\"c\",\"d\"\r\n");
    root.write(u"v/Daten/Standard/Lesen1Standard.Txt", u"1,\"A\",\"B\"\r\n2,\"c\",\"d\"\r\n");
    root.write(u"k/Daten/AG.Txt", u"1,\"more rows here\"\r\n2,\"x\"\r\n");
    for (const TextView name : {u"v/Daten/AG.Txt", u"v/Daten/Standard/AGStandard.Txt"})
        root.write(name, u"1,\"other\"\r\n");
    const Arbeitsverzeichnis own(place(u"k"));
    const Arbeitsverzeichnis delivered(place(u"v"));

    const std::vector<Modultext> texts = NeueModultexte(own, delivered);
    ASSERT_EQ(texts.size(), 2U) << "an own text that is delivered as before is not asked about";
    EXPECT_TRUE(texts[0].Unveraendert());
    EXPECT_EQ(texts[1].Stelle, u"Zeile 1, Spalte 2");
    EXPECT_EQ(texts[1].Eigener, u"mein b");
    ModultexteUebernehmen(own, delivered, {texts[0]});
    EXPECT_EQ(root.read(u"k/Daten/Lesen1.Txt"), u"1,\"A\",\"mein b\"\r\n2,\"c\",\"mein d\"\r\n");
    EXPECT_EQ(root.read(u"k/Daten/AG.Txt"), u"1,\"more rows here\"\r\n2,\"x\"\r\n");
    EXPECT_TRUE(NeueModultexte(own, delivered).empty()) << "asked once";
}

} // namespace
} // namespace zeugnis::test
