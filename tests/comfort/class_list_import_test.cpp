#include "comfort/class_list_import.h"

#include "comfort/birth_date.h"
#include "comfort/class_list_takeover.h"
#include "platform/code_page.h"
#include "tests/masterdata/master_data_test.h"

namespace zeugnis::test {
namespace {

/// "Meier|Ute|w|03.04.2018|Ort|Chor,Judo" or, behind a colon, the reason why not.
std::string told(const std::vector<Listenzeile>& lines) {
    std::string all;
    for (const auto& [number, child, reason] : lines) {
        Text line = textFromNumber(number);
        for (const Text& part :
             {u" " + child.Nachname, u"|" + child.Vorname, u"|" + child.Geschlecht,
              u"|" + child.Geburtsdatum, u"|" + child.Geburtsort, u"|" + enumerated(child.AG),
              reason.empty() ? Text() : u": " + reason, Text(u"\n")})
            line += part;
        all += utf8FromText(line);
    }
    return all;
}

std::string read(std::string_view bytes) {
    return told(KlassenlisteLesen(textFromSpreadsheet(bytes)));
}

TEST(ClassListImport, FindsTheColumnsWhereverTheyStand) {
    const std::string ute = "Meier|Ute|w|03.04.2018|Bad Öl|Chor und Judo\n";
    const std::pair<std::string, std::string> lists[] = {
        {"Nr.;Vorname;Familienname;Geschlecht (m/w);Geb.-Datum;Geburtsort;AG 1;AG 2;Klasse\r\n"
         "1; Ute ;Meier;W;3.4.18;Bad Öl;Chor;Judo;3a\r\n",
         "2 "},
        {"\xEF\xBB\xBF\"AG\",\"geboren am\",\"Name\",\"Vorname\",\"m/w\",\"geboren in\"\n"
         "\"Chor, Judo\",\"2018-04-03\",\"Meier\",\"Ute\",\"weiblich\",\"Bad Öl\"\n",
         "2 "},
        {"1\tMeier\tUte\tMädchen\t3. April 2018\tBad Öl\tChor\tJudo", "1 "},
        {"\n\nName;geboren am;Geschlecht;Geburtsort;AG\nUte "
         "Meier;03/04/2018;w;\"Bad\nÖl\";Chor/Judo",
         "4 "},
    };
    for (const auto& [list, number] : lists)
        EXPECT_EQ(read(list), number + ute) << list;
    EXPECT_EQ(read("Meier, Ute\nMats von der Au\n"), "1 Meier|Ute||||: Bitte Junge oder Mädchen "
                                                     "wählen.\n2 Au|Mats von der||||: Bitte Junge "
                                                     "oder Mädchen wählen.\n")
        << "a comma divides, and the class can be completed by hand";
    EXPECT_EQ(read("Nachname;Vorname;Geschlecht\nM\xFCller;J\xFCrgen;m"), "2 Müller|Jürgen|m|||\n");
    EXPECT_EQ(read(""), "");
}

TEST(ClassListImport, TellsOfEachLineWhyItCannotBeTaken) {
    EXPECT_EQ(read("Nachname;Vorname;Geschlecht;Geburtsdatum\n"
                   "Łęcki;\"Jan \"\"Jo\"\"\";m;\n"
                   ";Ute;w;\n"
                   "Meier;;w;\n"
                   ";;;\n"
                   "Meier;Ute;d;\n"
                   "Meier;Ute;w;31.02.2018\n"
                   "lecki;JAN 'JO';m;\n"),
              "2 Lecki|Jan 'Jo'|m|||\n"
              "3 |Ute|w|||: Der Nachname fehlt.\n"
              "4 Meier||w|||: Der Vorname fehlt.\n"
              "6 Meier|Ute|d|||: Das Geschlecht „d“ ist weder m noch w.\n"
              "7 Meier|Ute|w|31.02.2018||: „31.02.2018“ ist kein Geburtsdatum.\n"
              "8 lecki|JAN 'JO'|m|||: Das Kind steht schon in Zeile 2.\n");

    Text many;
    for (int i = 1; i <= 34; ++i)
        many += u"N" + textFromNumber(i) + u";V;" + (i == 2 ? u"x" : u"m") + u"\n";
    std::vector<Listenzeile> lines = KlassenlisteLesen(many);
    EXPECT_EQ(KinderAus(lines).size(), 33U) << "a line that is refused takes no place";
    GruendeBilden(lines, 32);
    EXPECT_EQ(KinderAus(lines).size(), 1U);
    EXPECT_EQ(lines[2].Grund, u"Die Klasse hat schon 33 Kinder, mehr haben nicht Platz.");
}

TEST(ClassListImport, ReadsBirthDatesInTheirUsualForms) {
    const std::pair<TextView, TextView> forms[] = {
        {u"3.4.2018", u"03.04.2018"},
        {u" 29.02.16 ", u"29.02.2016"},
        {u"2018-12-31", u"31.12.2018"},
        {u"3. Sept. 2018", u"03.09.2018"},
        {u"1.Mai 2018", u"01.05.2018"},
        {u"29.02.2018", u""},
        {u"3.4.", u""},
        {u"3.13.2018", u""},
        {u"3.4.218", u""},
        {u"3.J.2018", u""},
        {u"99999.1.2018", u""},
        {u"", u""},
        {u"2018-4-3 00:00:00", u""},
        {u"03.04.1989", u""},
    };
    for (const auto& [text, date] : forms)
        EXPECT_EQ(GeburtsdatumLesen(text).value_or(u""), date) << utf8FromText(text);
}

using ClassListTakeover = MasterDataTest;

TEST_F(ClassListTakeover, TypesTheChildrenIntoTheMasterData) {
    const std::vector<Schueler> children =
        KinderAus(KlassenlisteLesen(u"Nachname;Vorname;Geschlecht;Geburtsdatum;AG\n"
                                    u"Meier;Ute;w;3.4.18;Chor\nAu;Mats;m;;\nZett;Ida;w;;\n"));
    prepare(2);
    GsBasis& screen = opened();
    machine->dialogs.answers = {Antwort::Nein};
    EXPECT_FALSE(KlassenlisteUebernehmen(screen, children, Uebernahme::Ersetzen));
    EXPECT_EQ(records(u"Namen.Txt"), 2);

    machine->dialogs.answers = {Antwort::Ja};
    EXPECT_TRUE(KlassenlisteUebernehmen(screen, children, Uebernahme::Ersetzen));
    EXPECT_EQ(names(),
              u"1,\"3a\",\"Meier\",\"Ute\",\"w\",\"03.04.2018\",\"Chor\",\"\",\"\",\"\",\"\"\r\n"
              u"2,\"3a\",\"Au\",\"Mats\",\"m\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
              u"3,\"3a\",\"Zett\",\"Ida\",\"w\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
    EXPECT_EQ(records(u"34Speicher.txt"), 3);
    EXPECT_EQ(VorhandeneKinder(screen, Uebernahme::Anhaengen), 3);
    EXPECT_TRUE(KlassenlisteUebernehmen(screen, {children[0]}, Uebernahme::Anhaengen));
    EXPECT_EQ(records(u"Namen.Txt"), 4);

    user::click(screen.Command4(0));
    EXPECT_TRUE(KlassenlisteUebernehmen(screen, {children[1]}, Uebernahme::Anhaengen));
    EXPECT_EQ(names(), u"1,\"3a\",\"Au\",\"Mats\",\"m\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n")
        << "the one blank pupil of a new list gives way";
}

} // namespace
} // namespace zeugnis::test
