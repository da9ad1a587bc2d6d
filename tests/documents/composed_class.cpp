#include "tests/documents/composed_class.h"
#include "tests/support/model_driver.h"

#include "documents/content/report_list.h"
#include "files/file_catalogue.h"
#include "files/pupil_records.h"
#include "platform/record_writer.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>

namespace zeugnis::test {
namespace fs = std::filesystem;
namespace {

struct Name {
    const char16_t* Vorname;
    const char16_t* Nachname;
    bool Junge;
};
constexpr std::array<Name, 11> Names = {{
    {u"Mats", u"Ahlers", true},
    {u"Zoé-Marie", u"von der Heydt-Großmann", false},
    {u"Lena", u"Bäcker", false},
    {u"Felix", u"O'Neil", true},
    {u"Šara Lou", u"Çelik-Žižka", false},
    {u"Maximilian Leopold", u"Hohenstein-Wiedemann", true},
    {u"Ida", u"Yilmaz", false},
    {u"Lars", u"Groß", true},
    {u"Anna", u"Ernst", false},
    {u"Anna Sophie", u"Müller", false},
    {u"Moritz", u"Schön", true},
}};

// The groups of options on the pages 1 to 6, and how many there are in each.
constexpr std::array<const char*, 6> Pages12 = {
    "Option2 4 Option3 4 Option44 4",
    "Option4 7 Option5 7 Option6 7 Option7 4 Option8 4 Option45 4",
    "Option9 4 Option10 4 Option11 4 Option12 4 Option13 6 Option24 6",
    "Option14 5 Option35 2 Option15 5 Option16 6 Option20 4 Option25 5",
    "Option17 3 Option18 3 Option19 3 Option26 3 Option27 4",
    "Option29 3 Option30 3 Option31 3 Option32 4 Option33 4 Option34 4"};

class Script {
  public:
    void click(const std::string& control) { m_text += "click " + control + "\n"; }
    void click(const std::string& group, int index) {
        click(group + "(" + std::to_string(index) + ")");
    }
    void pick(const std::string& list, int index) {
        m_text += "select " + list + " " + std::to_string(index) + "\n";
    }
    void write(const std::string& box, const Text& text) {
        std::string json;
        for (const char byte : utf8FromText(text))
            json += byte == '\n' ? std::string("\\r\\n") : std::string(1, byte);
        m_text += "settext " + box + " \"" + json + "\"\n";
    }
    void line(const char* text) { m_text += std::string(text) + "\n"; }
    [[nodiscard]] const std::string& text() const { return m_text; }

  private:
    std::string m_text;
};

// Spreads the choices evenly; the better lines are more frequent, as in a real class.
int choice(int place, int group, int options) {
    const int number = (place * 7 + group * 5 + place * group) % 13;
    return std::min(number % options, number % std::max(2, (options + 1) / 2) + place % 2);
}

void section(Script& script, const char* button, int categories, int place) {
    script.click(std::string("GsArbeitsverhalten.") + button);
    for (int category = 0; category < categories; ++category) {
        const bool overall = category == categories - 1;
        script.click("GsArbeitsverhalten.Command3", category);
        script.click("GsArbeitsverhalten.Option1", 1 + choice(place, category, overall ? 5 : 9));
    }
}

void behaviour(Script& script) {
    script.click("GsStart.Command1(0)");
    for (int place = 0; place < ComposedClass::Children; ++place) {
        script.pick("GsArbeitsverhalten.Combo1", place);
        section(script, "Command1", KategorienAV, place);
        section(script, "Command2", KategorienSV, place + 3);
    }
    script.click("GsArbeitsverhalten.Command4");
    script.click("GsArbeitsverhalten.Command5");
}

void remarks(Script& script, const std::string& box, int place) {
    if (const Text text = remarksByHand(place); !text.empty())
        script.write(box, text);
}

void years12(Script& script, bool first, bool yearOne) {
    script.click("GsStart.Command1(1)");
    for (int place = 0; place < ComposedClass::Children; ++place) {
        script.pick("Kompetenzen.Combo1", place);
        script.click("Kompetenzen.Command1(0)");
        script.click("Kompetenzen.Option1", 1 + place % 15);
        for (int page = 1; page <= static_cast<int>(Pages12.size()); ++page) {
            script.click("Kompetenzen.Command1", page);
            int number = page;
            std::istringstream groups(Pages12.at(static_cast<size_t>(page) - 1));
            std::string control;
            for (int options = 0; groups >> control >> options;)
                if (!yearOne || control != "Option25")
                    script.click("Kompetenzen." + control, choice(place, ++number, options));
        }
        script.click("Kompetenzen.Command1(7)");
        script.click("Kompetenzen.Check2(1)");
        script.click("Kompetenzen.Check3", place % 8);
        script.click("Kompetenzen.Check3", (place + 3) % 8);
        if (first)
            script.click("Kompetenzen.Option23", 1 + place % 6);
        else
            script.click("Kompetenzen.Option21", place % 4);
        remarks(script, "Kompetenzen.Text1(7)", place);
    }
    script.click("Kompetenzen.Command2");
    script.click("Kompetenzen.Command3");
}

void years34(Script& script) {
    script.click("GsStart.Command1(2)");
    for (int place = 0; place < ComposedClass::Children; ++place) {
        script.pick("GSAGFI.Combo1", place);
        script.click("GSAGFI.Command2(0)");
        script.click("GSAGFI.Check1", place % 6);
        script.click("GSAGFI.Check1", (place + 2) % 6);
        script.click("GSAGFI.Option6", place % 2);
        script.click("GSAGFI.Command2(1)");
        script.click("GSAGFI.Option1", 1 + place % 13);
        script.click("GSAGFI.Check3", place % 7);
        script.click("GSAGFI.Command2(2)");
        script.click("GSAGFI.Check2", place % 3);
        script.click("GSAGFI.Option2", place % 3);
        script.click("GSAGFI.Check5", place % 5);
        script.click("GSAGFI.Option3", place % 2);
        script.click("GSAGFI.Option4", place % 4);
        remarks(script, "GSAGFI.Text3", place);
    }
    script.click("GSAGFI.Command1(0)");
    script.click("GSAGFI.Command1(1)");
}

std::vector<Zeugniskind> emptyChildren() {
    std::vector<Zeugniskind> children;
    for (int place = 0; place < ComposedClass::Children; ++place) {
        const Name& name = Names.at(static_cast<size_t>(place) % Names.size());
        Schueler kind = schueler(name.Vorname, name.Nachname, u"14.03.2018", u"Süderfehn");
        if (static_cast<size_t>(place) >= Names.size()) // no two with the same name
            kind.Nachname += u"-" + Text(1, static_cast<char16_t>(u'A' + place % 26));
        kind.Geschlecht = name.Junge ? u"m" : u"w";
        kind.AG[0] = u"Chor";
        if (place % 3 == 0)
            kind.AG[1] = u"Werken mit Holz";
        children.push_back({kind, u"", u""});
    }
    return children;
}

} // namespace

Text remarksByHand(int place) {
    Text text;
    switch (place) {
    case ComposedClass::ShortLines:
        for (int i = 1; i <= 34; ++i)
            text += (i > 1 ? u"\n" : u"") + textFromNumber(i) + u". Preis beim Lesen";
        return text;
    case ComposedClass::EndlessSentence:
        for (int i = 1; i <= 40; ++i)
            text += u"liest und schreibt und rechnet und malt gern und viel, ";
        return u"Das Kind " + text + u"und das gelingt.";
    case ComposedClass::LongRemarks:
        return saetze(26) + u" Zum 30. April ging das Kind in den 4. Schuljahrgang, 'Chor' und "
                            u"''Werken'' blieben.\n\nMats' Heft ist gut.";
    default:
        return {};
    }
}

ComposedClass::ComposedClass(const Text& klasse, const Text& halbjahr) : m_klasse(klasse) {
    Schule.Halbjahr = halbjahr;
    takeModules();
    write(emptyChildren(), klasse);
    compose();
    enterGrades();
}

void ComposedClass::takeModules() const {
    fs::copy(DOCUMENTS_INSTALLATION, path(),
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    fs::remove_all(path() / "Texte");
}

void ComposedClass::compose() {
    Arbeitsverzeichnis verzeichnis(path());
    const Namensliste liste = NamenLaden(verzeichnis);
    {
        const Ordnerwechsel in(verzeichnis, dateien::Daten);
        for (const auto& [datei, sperren] :
             {std::pair(dateien::Sperre12, Abschnitte12), std::pair(dateien::Sperre34, 3)})
            JeSchuelerSchreiben(verzeichnis, datei, liste,
                                [&, anzahl = sperren](RecordWriter& writer, int) {
                                    for (int i = 0; i < anzahl; ++i)
                                        writer.add(0);
                                });
    }
    Script script;
    script.line("start");
    behaviour(script);
    if (m_klasse < u"3")
        years12(script, Schule.Halbjahr == u"1", m_klasse < u"2");
    else
        years34(script);
    std::ostringstream events;
    EXPECT_EQ(ModelDriver(events, path()).play(script.text() + "quit\n"), 0) << events.str();
    EXPECT_EQ(events.str().find("unreachable"), std::string::npos) << events.str();
}

void ComposedClass::enterGrades() const {
    Arbeitsverzeichnis verzeichnis(path());
    const dokumente::Stammdaten stamm = dokumente::StammdatenLesen(verzeichnis);
    Schuelertabelle<Eintrag> eintraege;
    for (int place = 0; place < Children; ++place) {
        Eintrag& eintrag = eintraege[place];
        eintrag.Werte[SpalteTage] = place % 9;
        eintrag.Werte[SpalteUnentschuldigt] = place % 9 == 8 ? 1 : 0;
        for (size_t fach = ErstesFach; fach < eintrag.Werte.size(); ++fach)
            eintrag.Werte.at(fach) = 1 + (place + static_cast<int>(fach)) % 4;
        if (place % 5 == 0)
            eintrag.Werte[Spaltenzahl - 2] = LeereZelle;
    }
    dokumente::ZeugnislisteSchreiben(verzeichnis, stamm, eintraege);
}

} // namespace zeugnis::test
