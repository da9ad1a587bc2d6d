#pragma once

#include "common/screen_names.h"
#include "controls/list_controls.h"
#include "controls/user_actions.h"
#include "desktop/screen_window.h"
#include "desktop/window_host.h"
#include "tests/desktop/settle_layouts.h"
#include "tests/support/test_programm.h"
#include "toolkit/qt_text.h"

#include <QApplication>
#include <QTest>

#include <stdexcept>
#include <string_view>
#include <vector>

namespace zeugnis::test {

/// A window, the class it is opened for, and the clicks that bring it to its work. "2" is the
/// second entry of the list of pupils. Each step is one state of the window.
struct WindowState {
    const char* name;
    TextView screen;
    TextView schoolClass;
    std::vector<TextView> clicks;
};

inline const std::vector<WindowState>& everyWindow() {
    static const std::vector<WindowState> All = {
        {"start", bildschirme::GsStart, u"3a", {u"Command2"}},
        {"lists", bildschirme::Listen, u"3a", {}},
        {"masterData", bildschirme::GsBasis, u"3a", {u"Command5", u"Command3"}},
        {"avsv",
         bildschirme::GsArbeitsverhalten,
         u"3a",
         {u"2", u"Command1", u"Option1(3)", u"Command3(1)", u"Text1(0)", u"Command6"}},
        {"years12",
         bildschirme::Kompetenzen,
         u"2b",
         {u"2", u"Command1(0)", u"Command1(1)", u"Option2(1)", u"Command1(2)", u"Command1(3)",
          u"Command1(4)", u"Command1(5)", u"Command1(6)", u"Command1(7)", u"Command1(1)",
          u"Text1(1)", u"Command4"}},
        {"years34",
         bildschirme::GSAGFI,
         u"3a",
         {u"2", u"Command2(0)", u"Command2(1)", u"Option1(1)", u"Command2(2)"}},
        {"editorAVSV",
         bildschirme::GSAVSVAenderung,
         u"3a",
         {u"Command1(1)", u"Command3", u"Command4(2)", u"Command7(3)"}},
        {"editor12",
         bildschirme::GSAenderung12,
         u"2b",
         {u"Command3(1)", u"Command1(2)", u"Command1(4)", u"Command1(9)"}},
        {"editor34",
         bildschirme::GSAenderung34,
         u"3a",
         {u"Command1(1)", u"Command2(1)", u"Command2(2)"}},
        {"review", bildschirme::GsAnzeige, u"3a", {u"Check1(9)", u"Command1(0)"}},
        {"insertion", bildschirme::Einfuegungen, u"3a", {}},
    };
    return All;
}

/// One of the windows above on the delivered installation.
class OpenWindow {
  public:
    explicit OpenWindow(const WindowState& state) : screenName(state.screen) {
        std::filesystem::copy(std::filesystem::path(ZEUGNIS_SOURCE_FOLDER) / "install",
                              installation.path(), std::filesystem::copy_options::recursive);
        Text names = installation.read(u"Daten/Namen.Txt");
        const Text theirs = u"\"" + Text(state.schoolClass) + u"\"";
        for (size_t at = 0; (at = names.find(u"\"3a\"", at)) != Text::npos; ++at)
            names.replace(at, 4, theirs);
        installation.write(u"Daten/Namen.Txt", names);
        machine.dialogs.answers.assign(8, Antwort::Ja);
        host.run([this] {
            machine.programm.show(bildschirme::GsStart);
            machine.programm.show(screenName);
        });
        settle();
    }

    [[nodiscard]] Screen& screen() { return *machine.programm.find(screenName); }
    [[nodiscard]] ScreenWindow& window() { return *host.windowOf(&screen()); }
    [[nodiscard]] Control& control(TextView name) {
        Control* found = screen().find(name);
        if (found == nullptr)
            throw std::runtime_error("no control " + utf8FromText(name));
        return *found;
    }
    [[nodiscard]] QWidget& widget(TextView name) { return *window().widgetOf(control(name)); }

    void click(TextView name) {
        host.run([&] {
            if (name == u"2")
                user::pick(dynamic_cast<ListControl&>(control(u"Combo1")), 1);
            else
                EXPECT_TRUE(user::click(control(name))) << utf8FromText(name);
        });
        settle();
    }

    void settle() {
        window().activateWindow();
        settleLayouts();
    }

    TextView screenName;
    TemporaryFolder installation;
    TestProgramm machine{installation};
    WindowHost host{machine.programm};
};

} // namespace zeugnis::test
