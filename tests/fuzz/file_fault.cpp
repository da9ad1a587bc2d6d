#include "tests/fuzz/file_fault.h"

#include "documents/content/report_list.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/path_text.h"
#include "platform/record_reader.h"
#include "platform/record_writer.h"
#include "tests/fuzz/memory_files.h"
#include "tests/support/model_driver.h"
#include "tests/support/test_installation.h"

#include <algorithm>
#include <array>
#include <exception>
#include <fstream>
#include <sstream>
#include <vector>

namespace zeugnis::test {
namespace {
namespace fs = std::filesystem;

const char* const Entry0 = "click GsStart.Command1(0)\n"
                           "select GsArbeitsverhalten.Combo1 1\n"
                           "click GsArbeitsverhalten.Command2\n"
                           "click GsArbeitsverhalten.Option1(3)\n"
                           "click GsArbeitsverhalten.Command4\n";
const char* const Entry12 = "click GsStart.Command1(1)\n"
                            "select Kompetenzen.Combo1 2\n"
                            "click Kompetenzen.Command1(7)\n"
                            "click Kompetenzen.Check3(1)\n"
                            "click Kompetenzen.Command1(4)\n"
                            "click Kompetenzen.Option14(1)\n"
                            "click Kompetenzen.Command2\n";
const char* const Entry34 = "click GsStart.Command1(2)\n"
                            "select GSAGFI.Combo1 1\n"
                            "click GSAGFI.Command2(0)\n"
                            "click GSAGFI.Check1(1)\n"
                            "click GSAGFI.Command1(0)\n";
const char* const Review = "click GsStart.Command1(3)\n"
                           "click GsAnzeige.Check1(0)\n"
                           "click GsAnzeige.Check1(2)\n"
                           "click GsAnzeige.Command1(0)\n";
const char* const EditorAVSV = "click GsStart.Command2\n"
                               "click GsStart.Command1(4)\n"
                               "answer yes\n"
                               "click GSAVSVÄnderung.Command1(1)\n"
                               "answer yes\n"
                               "click GSAVSVÄnderung.Command5\n";
const char* const Editor12 = "click GsStart.Command2\n"
                             "click GsStart.Command1(5)\n"
                             "answer yes\n"
                             "click GSÄnderung12.Command3(1)\n"
                             "answer yes\n"
                             "click GSÄnderung12.Command5\n";
const char* const Editor34 = "click GsStart.Command2\n"
                             "click GsStart.Command1(5)\n"
                             "answer yes\n"
                             "click GSÄnderung34.Command1(1)\n"
                             "answer yes\n"
                             "click GSÄnderung34.Command5\n";
const char* const Phrases0 = "click GsStart.Command1(0)\n"
                             "click Einfügungen.List1\n";
const char* const MasterData = "click GsStart.Command2\n"
                               "click GsStart.Command1(6)\n"
                               "answer yes\n"
                               "click GsBasis.Command5\n"
                               "click GsBasis.Command6\n"
                               "click GsBasis.Command1(0)\n";
const char* const Start = "";

// A file, the class whose program reads it, and the roads on which it does. The start page has been
// loaded before the file is damaged, but for the empty road.
struct Target {
    const char* file;
    const char* klasse;
    std::vector<const char*> roads;
};

const std::vector<Target>& targets() {
    static const std::vector<Target> All = {
        {"Basisdaten.txt", "3a", {Start, Entry34, Review, Editor34, MasterData}},
        {"Basisdaten.txt", "1b", {Start, Entry12, Editor12}},
        {"Namen.Txt", "3a", {Start, Entry0, Entry34, Review, EditorAVSV, Editor34, MasterData}},
        {"Namen.Txt", "2b", {Entry12, Review, Editor12}},
        {"Sibankpfad.txt", "3a", {MasterData}},
        {"sib1undsib2.txt", "3a", {MasterData}},
        {"AGListe.txt", "3a", {MasterData}},
        {"Platzhalter.txt", "3a", {Phrases0, Editor34}},
        {"Einfügungen1.txt", "3a", {Phrases0}},
        {"Einfügungen2.txt", "3a", {Entry34}},
        {"TexteAV.txt", "3a", {Entry0, EditorAVSV}},
        {"TexteSV.txt", "3a", {Entry0, EditorAVSV}},
        {"AVKategorien.txt", "3a", {Entry0, EditorAVSV}},
        {"SVKategorien.txt", "3a", {Entry0, EditorAVSV}},
        {"AVSVspeicher.txt", "3a", {Entry0, Review}},
        {"AVSVWahl.txt", "3a", {Entry0}},
        {"Interessen12.Txt", "2b", {Entry12, Editor12}},
        {"Mathe2.Txt", "2b", {Entry12, Editor12}},
        {"Bemerkungen1.Txt", "1b", {Entry12, Editor12}},
        {"Zwischentexte.Txt", "1b", {Entry12, Editor12}},
        {"Sportusw.Txt", "2b", {Entry12}},
        {"12Speicher.txt", "2b", {Entry12, Review}},
        {"12Sperre.txt", "2b", {Entry12}},
        {"Förder34.Txt", "3a", {Entry34, Editor34}},
        {"Interessen34.Txt", "3a", {Entry34, Editor34}},
        {"Bemerkungen34.Txt", "3a", {Entry34, Editor34}},
        {"Versetzung4.Txt", "4c", {Entry34, Editor34}},
        {"Zensurabweichung.Txt", "3a", {Entry34, Editor34}},
        {"AG.Txt", "3a", {Entry34, Editor34}},
        {"34Speicher.txt", "3a", {Entry34, Review}},
        {"34Sperre.txt", "3a", {Entry34}},
    };
    return All;
}

// Both fixtures in one: the files of all years.
const fs::path& installation() {
    static const TemporaryFolder Folder;
    static const bool LaidOut = [] {
        for (const char* fixture : {"klasse3a", "klasse2b"})
            fs::copy(fs::path(ZEUGNIS_SOURCE_FOLDER) / "tests" / "fixtures" / fixture,
                     Folder.path(), fs::copy_options::recursive | fs::copy_options::skip_existing);
        return true;
    }();
    static_cast<void>(LaidOut);
    return Folder.path();
}

void classIs(const std::string& klasse) {
    std::ostringstream content;
    content << std::ifstream(installation() / "Daten" / "Namen.Txt", std::ios::binary).rdbuf();
    std::string text = content.str();
    for (size_t at = text.find("\"3a\""); at != std::string::npos; at = text.find("\"3a\"", at + 1))
        text.replace(at + 1, klasse.size(), klasse);
    memory_files::put(installation() / "Daten" / "Namen.Txt", std::move(text));
}

std::string roadFault(const Target& target, const char* road, std::string_view bytes) {
    memory_files::reset();
    classIs(target.klasse);
    std::ostringstream printed;
    ModelDriver driver(printed, installation());
    if (road != Start)
        driver.play("start\n");
    memory_files::put(installation() / "Daten" / pathFromText(textFromUtf8(target.file)),
                      std::string(bytes));
    driver.play(road == Start ? "start\n" : road);
    return printed.str().find("fatal ") != std::string::npos &&
                   printed.str().find(" \"\"\n") != std::string::npos
               ? "a failure without a sentence"
               : "";
}

// The list of grades is the documents' own.
std::string listFault(std::string_view bytes) {
    memory_files::reset();
    memory_files::put(installation() / "Liste.txt", std::string(bytes));
    const Arbeitsverzeichnis directory(installation());
    for (const int jahrgang : {1, 3}) {
        try {
            dokumente::ListenzeilenLesen(directory, u"Liste.txt", jahrgang);
        } catch (const Laufzeitfehler& failure) {
            if (failure.sentence().empty())
                return "a failure without a sentence";
        }
    }
    return "";
}

std::vector<Text> fieldsOf(RecordReader reader) {
    std::vector<Text> fields;
    while (!reader.atEnd())
        fields.push_back(reader.text());
    return fields;
}

std::string roundTripFault(std::string_view bytes) {
    memory_files::reset();
    std::vector<Text> fields = fieldsOf({decodeWindows1252(bytes), u"x"});
    // An unquoted field may hold double quotes, which no text that is written may.
    for (Text& field : fields)
        std::replace(field.begin(), field.end(), u'"', u'\'');
    const Arbeitsverzeichnis directory(installation());
    RecordWriter writer(directory, u"Probe.txt");
    for (const Text& field : fields)
        writer.record(field);
    writer.close();
    return fieldsOf({directory, u"Probe.txt"}) == fields ? "" : "written and read back differently";
}

} // namespace

std::size_t damagedFiles() { return targets().size() + 1; }

std::string fileFault(std::size_t file, std::string_view bytes) {
    try {
        if (file >= targets().size())
            return roundTripFault(bytes) + listFault(bytes);
        std::string fault;
        for (const char* road : targets()[file].roads)
            fault += roadFault(targets()[file], road, bytes);
        return fault;
    } catch (const std::exception& unexpected) {
        return std::string("file ") + std::to_string(file) + ": " + unexpected.what();
    }
}

} // namespace zeugnis::test
