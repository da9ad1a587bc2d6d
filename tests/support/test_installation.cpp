#include "tests/support/test_installation.h"

#include "platform/code_page.h"
#include "platform/process.h"

#include <atomic>
#include <fstream>
#include <sstream>

namespace zeugnis::test {
namespace fs = std::filesystem;
namespace {

Text inQuotes(TextView text) { return u"\"" + Text(text) + u"\""; }

Text moduleLines(TextView prefix, int categories) {
    Text content;
    for (int line = 0; line <= 9; ++line) {
        content += textFromNumber(line + 1);
        for (int category = 0; category < categories; ++category)
            content +=
                u"," + inQuotes(Text(prefix) + textFromNumber(category) + textFromNumber(line));
        content += Zeilenende;
    }
    return content;
}

Text categories(TextView prefix, int count) {
    Text content;
    for (int category = 0; category < count; ++category)
        content += textFromNumber(category + 1) + u"," +
                   inQuotes(Text(prefix) + textFromNumber(category)) + u",1,2,3,4,0,1,2,3,4\r\n";
    return content;
}

struct Modules {
    TextView file;
    std::vector<std::vector<TextView>> rows;
};

// Made-up modules of years 3 and 4.
const std::vector<Modules>& modules34() {
    static const std::vector<Modules> All = {
        {u"Förder34.Txt",
         {{u"<Vorname> nahm am"},
          {u"Lesen"},
          {u"Rechtschreiben"},
          {u"Mathematik"},
          {u"Sprache"},
          {u"Konzentration"},
          {u"Motorik"},
          {u"teil"}}},
        {u"Interessen34.Txt", {{u"Kein Eintrag"}, {u"malt gern"}, {u"liest gern"}}},
        {u"Zensurabweichung.Txt",
         {{u"Deutsch"},
          {u"Mathematik"},
          {u"Sport"},
          {u"Die Noten in"},
          {u"weichen ab"},
          {u"weichen weiter ab"}}},
        {u"Bemerkungen34.Txt",
         {{u"<Vorname> lernte", u"gern", u"gut", u"weiter so"},
          {u"<Er/Sie> übte", u"genau", u"", u""},
          {u"", u"fleißig", u"", u""},
          {u"", u"ruhig", u"", u""},
          {u"", u"sicher", u"", u""}}},
        {u"Versetzung3.Txt",
         {{u"<Er/Sie> wird versetzt", u"Versetzt am <Konferenz>"}, {u"3 1 2", u"3 2 2"}}},
        {u"Versetzung4.Txt", {{u"4 1 1", u"4 2 1"}, {u"4 1 2", u"4 2 2"}}},
        {u"AG.Txt", {{u"<Vorname> war in keiner AG"}, {u"Es gab keine AG"}}},
        {u"Sportusw.Txt",
         {{u"<Vorname> hat das Seepferdchen erworben"},
          {u"Zwei"},
          {u"Drei"},
          {u"Vier"},
          {u"Fünf"},
          {u"Sechs"},
          {u"<Er/Sie> kann Rad fahren"}}},
    };
    return All;
}

} // namespace

TemporaryFolder::TemporaryFolder() {
    static std::atomic<int> number = 0;
    const Text name = u"Zeugnis Prüfung äöü-" + textFromNumber(ownProcess()) + u"-";
    do
        m_path = fs::temp_directory_path() / (name + textFromNumber(++number));
    while (!fs::create_directory(m_path));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

void TemporaryFolder::write(TextView name, TextView content) const {
    const fs::path file = m_path / fs::path(name);
    fs::create_directories(file.parent_path());
    const std::string bytes = encodeWindows1252(content);
    std::ofstream(file, std::ios::binary).write(bytes.data(), std::ssize(bytes));
}

Text TemporaryFolder::read(TextView name) const {
    std::ifstream file(m_path / fs::path(name), std::ios::binary);
    if (!file)
        return u"(no such file)";
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return decodeWindows1252(bytes.str());
}

bool TemporaryFolder::has(TextView name) const { return fs::exists(m_path / fs::path(name)); }

void TemporaryFolder::remove(TextView name) const { fs::remove_all(m_path / fs::path(name)); }

TestInstallation::TestInstallation(const std::vector<Kind>& kinder) {
    fs::create_directories(path() / "Daten" / "Sicherheit");
    basisdaten(u"2", u"Erika Lehrer");
    klassenliste(u"3a", kinder);
    leereSpeicher(u"3a", kinder);
    write(u"Daten/TexteAV.txt", moduleLines(u"a", 7));
    write(u"Daten/TexteSV.txt", moduleLines(u"s", 6));
    write(u"Daten/AVKategorien.txt", categories(u"AV ", 7));
    write(u"Daten/SVKategorien.txt", categories(u"SV ", 6));
    write(u"Daten/AktivForm.txt", u"0\r\n");
    write(u"Daten/Einfügungen1.txt", lines({u"\"sehr\"", u"\"als Sprecher<in>\""}));
    write(u"Daten/Einfügungen2.txt", lines({u"\"oft\""}));
    for (const auto& [file, rows] : modules34())
        records(u"Daten/" + Text(file), rows);
    Text placeholders;
    for (int row = 0; row < 12; ++row)
        placeholders += textFromNumber(row + 1) + u"," +
                        inQuotes(u"<p" + textFromNumber(row) + u">") + u"," +
                        inQuotes(u"h" + textFromNumber(row)) + Text(Zeilenende);
    write(u"Daten/Platzhalter.txt", placeholders);
    for (const TextView picture : {u"ZeugnKOPF.jpg", u"ZeugnKOPF1.jpg", u"Karl Musterlehrer.jpg",
                                   u"Erika Lehrer.jpg", u"SMILI.jpg"})
        write(u"Bild/" + Text(picture), u"\u00FF\u00D8\u00FF\u00D9");
}

void TestInstallation::basisdaten(TextView halbjahr, TextView klassenleitung) const {
    write(u"Daten/Basisdaten.txt",
          u"\"Schule\",\"Zusatz\",\"Straße 1, Ort\",\"Ort\",\"07.07.2027\",\"2026/2027\"," +
              inQuotes(halbjahr) + u",\"2027/2028\",\"22.06.2027\"," + inQuotes(klassenleitung) +
              u"\r\n");
}

void TestInstallation::klassenliste(TextView klasse, const std::vector<Kind>& kinder) const {
    Text content;
    for (size_t i = 0; i < kinder.size(); ++i) {
        content += textFromNumber(static_cast<int>(i) + 1);
        for (const TextView field :
             {klasse, TextView(kinder[i].Nachname), TextView(kinder[i].Vorname),
              TextView(kinder[i].Geschlecht), TextView(kinder[i].Geburtsdatum)})
            content += u"," + inQuotes(field);
        content += u",\"\",\"\",\"\",\"\",\"Ort\"\r\n";
    }
    write(u"Daten/Namen.Txt", content);
}

void TestInstallation::leereSpeicher(TextView klasse, const std::vector<Kind>& kinder) const {
    Text texts;
    Text choices;
    Text texts34;
    Text locks34;
    for (size_t i = 0; i < kinder.size(); ++i) {
        const Text head = textFromNumber(static_cast<int>(i) + 1) + u"," + inQuotes(klasse) + u"," +
                          inQuotes(kinder[i].Nachname) + u"," + inQuotes(kinder[i].Vorname);
        texts += head + u",\"\",\"\"\r\n";
        choices += head + u",0,0,0,0,0,0,0,0,0,0,0,0,0,0,0\r\n";
        texts34 += head + u",\"\",\"\",\"\"\r\n";
        locks34 += head + u",0,0,0\r\n";
    }
    write(u"Daten/34Speicher.txt", texts34);
    write(u"Daten/34Sperre.txt", locks34);
    write(u"Daten/AVSVspeicher.txt", texts);
    write(u"Daten/AVSVWahl.txt", choices);
}

void TestInstallation::records(TextView file,
                               const std::vector<std::vector<TextView>>& rows) const {
    Text content;
    int number = 0;
    for (const auto& row : rows) {
        content += textFromNumber(++number);
        for (const TextView field : row)
            content += u"," + inQuotes(field);
        content += Zeilenende;
    }
    write(file, content);
}

Text TestInstallation::lines(std::initializer_list<TextView> lines) {
    Text content;
    for (const TextView line : lines)
        content += Text(line) + Text(Zeilenende);
    return content;
}

} // namespace zeugnis::test
