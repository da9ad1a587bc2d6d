#include "shell/start_page.h"

#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "tests/support/failure_of.h"
#include "tests/support/test_programm.h"

#include <gmock/gmock.h>

namespace zeugnis::test {
namespace {

const std::vector<Kind> EinKind = {{u"Ahlers", u"Tom", u"m"}};

// Stands for each of the screens that the start page opens, so that no file of theirs is needed.
class StandIn : public Screen {
  public:
    StandIn(Programm& programm, TextView name) : Screen(programm, name, name) {}
    void load() override {}
};

class StartPage : public testing::Test {
  protected:
    GsStart& start() {
        Programm& programm = program.emplace(installation.path()).programm;
        for (const TextView name : AlleBildschirme())
            programm.registerScreen(name, [name](Programm& running) -> std::unique_ptr<Screen> {
                if (name == bildschirme::GsStart)
                    return std::make_unique<GsStart>(running);
                return std::make_unique<StandIn>(running, name);
            });
        programm.show(bildschirme::GsStart);
        return dynamic_cast<GsStart&>(*programm.find(bildschirme::GsStart));
    }
    std::string_view failureAtStart() {
        return failureOf([&] { start(); });
    }

    TestInstallation installation{EinKind};
    std::optional<EmptyProgramm> program;
};

TEST_F(StartPage, CorrectsTheFirstHalfYearOfYear1InTheProgramFolderOnly) {
    installation.basisdaten(u"1", u"Erika Lehrer");
    installation.klassenliste(u"1a", EinKind);
    const Text before = installation.read(u"Daten/Basisdaten.txt");
    GsStart& page = start();
    EXPECT_EQ(page.Label1(2).Caption, u"1. Halbjahr");
    user::click(page.Command6);
    EXPECT_EQ(program->launcher.started.at(0), u"Winword.exe 1aZeugnisse12.doc");
    EXPECT_EQ(installation.read(u"Daten/Basisdaten.txt"), before);
    EXPECT_EQ(installation.read(u"Basisdaten.txt"),
              u"\"Schule\",\"Zusatz\",\"Straße 1, Ort\",\"Ort\",\"07.07.2027\",\"2026/2027\","
              u"\"2\",\"2027/2028\",\"22.06.2027\",\"Erika Lehrer\"\r\n");
}

TEST_F(StartPage, LastRecordOfTheClassListNamesTheClass) {
    installation.write(u"Daten/Namen.Txt",
                       u"1,\"1a\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
                       u"2,\"4b\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"");
    EXPECT_EQ(start().Jahrgang, 4);
}

TEST_F(StartPage, FallsBackToTheStandardTeacher) {
    EXPECT_EQ(start().Picture2.picture(), u"Erika Lehrer.jpg");
    installation.write(u"Bild/Erika Lehrer.jpg", u"kein Bild");
    EXPECT_EQ(start().Picture2.picture(), u"Karl Musterlehrer.jpg");
    for (const TextView teacher : {u"", u"Ohne Bild", u"Mit\\Strich"}) {
        installation.basisdaten(u"2", teacher);
        EXPECT_EQ(start().Picture2.picture(), u"Karl Musterlehrer.jpg");
        EXPECT_EQ(program->programm.directory().current(),
                  program->programm.directory().programFolder());
    }
    installation.remove(u"Bild/Karl Musterlehrer.jpg");
    EXPECT_EQ(failureAtStart(), "file-not-found") << "a second failure is not caught";
}

TEST_F(StartPage, LooksForTheFallbackWhereTheDirectoryStands) {
    installation.remove(u"Bild");
    EXPECT_EQ(failureAtStart(), "file-not-found");
    installation.write(u"Karl Musterlehrer.jpg", u"\u00FF\u00D8");
    GsStart& page = start();
    EXPECT_EQ(page.Picture2.picture(), u"Karl Musterlehrer.jpg");
    EXPECT_EQ(page.Picture1.picture(), u"");
    EXPECT_EQ(program->programm.directory().current(),
              program->programm.directory().programFolder().parent_path())
        << "the change back runs although the change into the folder failed";
}

TEST_F(StartPage, NeedsTheAnimationOnlyWhenItRuns) {
    installation.remove(u"Bild/ZeugnKOPF.jpg");
    GsStart& page = start();
    EXPECT_EQ(page.Picture1.picture(), u"");
    EXPECT_EQ(failureOf([&] { user::click(page.Command2); }), "file-not-found");
}

TEST_F(StartPage, DamagedInstallationFails) {
    const Text records = installation.read(u"Daten/Namen.Txt");
    const struct {
        TextView file;
        TextView content; // without any: the file is missing
        const char* kind;
    } cases[] = {
        {u"Daten/Basisdaten.txt", {}, "file-not-found"},
        {u"Daten/Basisdaten.txt", u"1,2,3,4,5,6,2,8,9\r\n", "end-of-file"},
        {u"Daten/Basisdaten.txt", u"1,2,3,4,5,6,zwei,8,9,10\r\n", "type-mismatch"},
        {u"Daten/Basisdaten.txt", u"1,2,3,4,5,6,\"\",8,9,10\r\n", "type-mismatch"},
        {u"Daten/Basisdaten.txt", u"1,2,3,4,5,6,40000,8,9,10\r\n", "overflow"},
        {u"Daten/Namen.Txt", {}, "file-not-found"},
        {u"Daten/Namen.Txt", u"", "type-mismatch"}, // no record, so no class
        {u"Daten/Namen.Txt", u"1,a3,c,d,e,f,g,h,i,j,k\r\n", "type-mismatch"},
        {u"Daten/Namen.Txt", u"1,3a,c,d,e,f,g,h,i,j\r\n", "end-of-file"},
    };
    for (const auto& one : cases) {
        if (one.content.data() == nullptr)
            installation.remove(one.file);
        else
            installation.write(one.file, one.content);
        EXPECT_EQ(failureAtStart(), one.kind) << utf8FromText(one.content);
        installation.basisdaten(u"2", u"Erika Lehrer");
        installation.write(u"Daten/Namen.Txt", records);
    }
    installation.remove(u"Daten");
    EXPECT_EQ(failureAtStart(), "path-not-found");
}

// The loaded screens behind the start page; what is not shown stands in brackets.
std::vector<std::string> screensOf(const Programm& programm) {
    std::vector<std::string> names;
    for (const Screen* screen : programm.screens())
        if (screen->name() != bildschirme::GsStart)
            names.push_back(screen->shown() ? utf8FromText(screen->name())
                                            : "(" + utf8FromText(screen->name()) + ")");
    return names;
}

TEST_F(StartPage, MainButtonsOpenFreshScreensAndSayWhichIsActive) {
    using Names = std::vector<std::string>;
    const struct {
        int button;
        TextView klasse;
        Names screens;
    } cases[] = {
        {0, u"3a", {"GsArbeitsverhalten", "(Einfügungen)"}},
        {1, u"2a", {"Kompetenzen", "(Einfügungen)"}},
        {2, u"3a", {"GSAGFI", "(Einfügungen)"}},
        {3, u"3a", {"GsAnzeige"}},
        {4, u"3a", {"GSAVSVÄnderung"}},
        {5, u"2a", {"GSÄnderung12", "(Einfügungen)"}},
        {5, u"3a", {"GSÄnderung34", "(Einfügungen)"}},
        {6, u"3a", {"GsBasis"}},
    };
    for (const auto& one : cases) {
        installation.klassenliste(one.klasse, EinKind);
        GsStart& page = start();
        Programm& programm = program->programm;
        if (one.button >= 4)
            user::click(page.Command2);
        // Another content screen gives way, this one comes anew unless it is an editor's button.
        programm.show(one.button == 3 ? bildschirme::GsBasis : bildschirme::GsAnzeige);
        for (const bool first : {true, false}) {
            const Screen* before = programm.find(textFromUtf8(one.screens[0]));
            const int raises = before != nullptr ? before->raises() : 0;
            EXPECT_TRUE(user::click(page.Command1(one.button)));
            EXPECT_THAT(screensOf(programm), testing::UnorderedElementsAreArray(one.screens));
            const bool stays = !first && one.button >= 5;
            EXPECT_EQ(programm.find(textFromUtf8(one.screens[0]))->raises(),
                      stays ? raises + 1 : 1);
        }
        EXPECT_EQ(installation.read(u"Daten/AktivForm.txt"), textFromNumber(one.button) + u"\r\n");
    }
}

} // namespace
} // namespace zeugnis::test
