#pragma once

#include "controls/user_actions.h"
#include "safety/guard.h"
#include "tests/support/test_programm.h"

namespace zeugnis::test {

/// A program with the net below it, on a small class.
class RescueTest : public testing::Test {
  protected:
    explicit RescueTest(const std::vector<Kind>& kinder = {{u"Zander", u"Tom", u"m"},
                                                           {u"Ahlers", u"Lena", u"w"}})
        : installation(kinder) {
        installation.write(u"Daten/Sibankpfad.txt", u"\"C:\\Sibank\"\r\n");
        installation.write(u"Daten/sib1undsib2.txt", u"\"C:\\eins\",\"C:\\zwei\"\r\n");
        installation.write(u"Daten/AGListe.txt", u"\"Chor\"\r\n");
        machine.programm.directory().watchWrites(&guard);
        machine.programm.show(u"GsStart");
    }

    void click(Control& control) { EXPECT_TRUE(user::click(control)) << name(control); }

    static std::string name(const Control& control) { return utf8FromText(control.fullName()); }

    void write(TextBox& box, const Text& text) {
        click(box);
        box.select(0, box.text().size());
        EXPECT_TRUE(user::paste(box, text)) << name(box);
    }

    TestInstallation installation;
    safety::Guard guard{installation.path()};
    TestProgramm machine{installation};
};

} // namespace zeugnis::test
