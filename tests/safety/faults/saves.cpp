#include "tests/safety/faults/saves.h"

#include <string>

namespace zeugnis::test::faults {
namespace {

const std::vector<const char*> ModulesAVSV = {"TexteAV.txt", "TexteSV.txt", "AVKategorien.txt",
                                              "SVKategorien.txt"};
const std::vector<const char*> Modules12 = {
    "Interessen12.Txt", "Sprechen1.Txt",     "Sprechen2.Txt",    "Lesen1.Txt",
    "Lesen2.Txt",       "Schreiben1.Txt",    "Schreiben2.Txt",   "Mathe1.Txt",
    "Mathe2.Txt",       "Bemerkungen1.Txt",  "Bemerkungen2.Txt", "Versetzung1.Txt",
    "Versetzung2.Txt",  "Zwischentexte.Txt",
};
const std::vector<const char*> Modules34 = {
    "Förder34.Txt",    "AG.Txt",          "Interessen34.Txt",    "Bemerkungen34.Txt",
    "Versetzung3.Txt", "Versetzung4.Txt", "Zensurabweichung.Txt"};

constexpr const char* Avsv = "start\n"
                             "click GsStart.Command1(0)\n"
                             "select GsArbeitsverhalten.Combo1 0\n"
                             "click GsArbeitsverhalten.Command1\n"
                             "click GsArbeitsverhalten.Option1(2)\n"
                             "settext GsArbeitsverhalten.Text1(0) \"Ein ganz neuer Text.\"\n"
                             "click GsArbeitsverhalten.Command3(1)\n";
constexpr const char* Years12 = "start\n"
                                "click GsStart.Command1(1)\n"
                                "select Kompetenzen.Combo1 0\n"
                                "click Kompetenzen.Command1(5)\n"
                                "click Kompetenzen.Option26(2)\n"
                                "click Kompetenzen.Option27(1)\n";
constexpr const char* Years34 = "start\n"
                                "click GsStart.Command1(2)\n"
                                "select GSAGFI.Combo1 0\n"
                                "click GSAGFI.Command2(0)\n"
                                "click GSAGFI.Option6(0)\n";
constexpr const char* Pupils = "start\n"
                               "click GsStart.Command2\n"
                               "click GsStart.Command1(6)\n"
                               "answer yes\n"
                               "click GsBasis.Command5\n"
                               "settext GsBasis.Text2(1) \"Zander\"\n"
                               "settext GsBasis.Text1(5) \"3b\"\n"
                               "focus GsBasis.Text2(2)\n";

} // namespace

const std::vector<Save>& allSaves() {
    static const std::string AvsvAgain = std::string(Avsv) +
                                         "click GsArbeitsverhalten.Command4\n"
                                         "click GsArbeitsverhalten.Option1(3)\n";
    static const std::string PupilsAgain =
        std::string(Pupils) +
        "click GsBasis.Command1(0)\n"
        "settext GsBasis.Text1(0) \"Schule am Berg\"\nfocus GsBasis.Text2(1)\n"
        "settext GsBasis.Text2(1) \"Zimmer\"\nfocus GsBasis.Text2(2)\n";
    static const std::vector<Save> All = {
        {"work and social behaviour, save",
         "klasse3a",
         {},
         Avsv,
         "click GsArbeitsverhalten.Command4\n"},
        {"work and social behaviour, leave with a save",
         "klasse3a",
         {},
         Avsv,
         "answer yes\nclick GsArbeitsverhalten.Command5\n"},
        {"work and social behaviour, change of child",
         "klasse3a",
         {},
         Avsv,
         "select GsArbeitsverhalten.Combo1 1\n"},
        {"work and social behaviour, a further save",
         "klasse3a",
         {},
         AvsvAgain.c_str(),
         "click GsArbeitsverhalten.Command4\n"},
        {"years 1 and 2, save", "klasse2b", {}, Years12, "click Kompetenzen.Command2\n"},
        {"years 1 and 2, leave with a save",
         "klasse2b",
         {},
         Years12,
         "answer yes\nclick Kompetenzen.Command3\n"},
        {"years 3 and 4, save", "klasse3a", {}, Years34, "click GSAGFI.Command1(0)\n"},
        {"years 3 and 4, leave with a save",
         "klasse3a",
         {},
         Years34,
         "answer yes\nclick GSAGFI.Command1(1)\n"},
        {"master data, save", "klasse3a", {}, Pupils, "click GsBasis.Command1(0)\n"},
        {"master data, a further save",
         "klasse3a",
         {},
         PupilsAgain.c_str(),
         "click GsBasis.Command1(0)\n"},
        {"master data, sort", "klasse3a", {}, Pupils, "click GsBasis.Command6\n"},
        {"master data, new list", "klasse3a", {}, Pupils, "click GsBasis.Command4(0)\n"},
        {"master data, delete a child", "klasse3a", {}, Pupils, "click GsBasis.Command4(1)\n"},
        {"master data, add a child", "klasse3a", {}, Pupils, "click GsBasis.Command4(2)\n"},
        {"editor of behaviour, save", "klasse3a", ModulesAVSV,
         "start\nclick GsStart.Command2\nclick GsStart.Command1(4)\nanswer yes\n"
         "click GSAVSVÄnderung.Command1(1)\n"
         "settext GSAVSVÄnderung.Text2(1) \"Neu gefasst\"\n",
         "answer yes\nclick GSAVSVÄnderung.Command5\n"},
        {"editor of behaviour, Standard copies", "klasse3a", ModulesAVSV,
         "start\nclick GsStart.Command2\nclick GsStart.Command1(4)\nanswer yes\n"
         "click GSAVSVÄnderung.Command1(1)\n"
         "settext GSAVSVÄnderung.Text2(1) \"Neu gefasst\"\nanswer yes\n"
         "click GSAVSVÄnderung.Command5\n",
         "answer yes\ninput \"Kuckuckstal\"\ndblclick GSAVSVÄnderung.Label1\n"},
        {"editor of years 1 and 2, save", "klasse2b", Modules12,
         "start\nclick GsStart.Command2\nclick GsStart.Command1(5)\nanswer yes\n"
         "click GSÄnderung12.Command3(1)\nclick GSÄnderung12.Command1(3)\n"
         "settext GSÄnderung12.Text2(9) \"Neu gefasst\"\n",
         "answer yes\nclick GSÄnderung12.Command5\n"},
        {"editor of years 1 and 2, Standard copies", "klasse2b", Modules12,
         "start\nclick GsStart.Command2\nclick GsStart.Command1(5)\nanswer yes\n"
         "click GSÄnderung12.Command3(1)\nclick GSÄnderung12.Command1(3)\n"
         "settext GSÄnderung12.Text2(9) \"Neu gefasst\"\n"
         "answer yes\nclick GSÄnderung12.Command5\n",
         "answer yes\ninput \"Kuckuckstal\"\ndblclick GSÄnderung12.Label1\n"},
        {"editor of years 3 and 4, save", "klasse3a", Modules34,
         "start\nclick GsStart.Command2\nclick GsStart.Command1(5)\nanswer yes\n"
         "click GSÄnderung34.Command1(1)\nsettext GSÄnderung34.Text2(3) \"Neu gefasst\"\n",
         "answer yes\nclick GSÄnderung34.Command5\n"},
        {"editor of years 3 and 4, Standard copies", "klasse3a", Modules34,
         "start\nclick GsStart.Command2\nclick GsStart.Command1(5)\nanswer yes\n"
         "click GSÄnderung34.Command1(1)\nsettext GSÄnderung34.Text2(3) \"Neu gefasst\"\n"
         "answer yes\nclick GSÄnderung34.Command5\n",
         "answer yes\ninput \"Kuckuckstal\"\ndblclick GSÄnderung34.Label1\n"},
        {"insertion window, a new phrase",
         "klasse3a",
         {},
         "start\nclick GsStart.Command1(0)\nselect GsArbeitsverhalten.Combo1 0\n"
         "click GsArbeitsverhalten.Command2\nclick GsArbeitsverhalten.Option1(2)\n"
         "click GsArbeitsverhalten.Text1(1)\nclick GsArbeitsverhalten.Command7(0)\n",
         "input \"mit großer Sorgfalt\"\nclick Einfügungen.Command1(2)\n"},
    };
    return All;
}

} // namespace zeugnis::test::faults
