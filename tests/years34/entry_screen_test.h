#pragma once

#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "tests/support/failure_of.h"
#include "tests/support/test_programm.h"
#include "years34/entry_screen.h"

namespace zeugnis::test {

inline constexpr Farbwert Weiss = 0xFFFFFF;
inline constexpr Farbwert Gruen = 0x80FF80;
inline constexpr Farbwert Grau = 0xC0C0C0;
inline constexpr Farbwert Rosa = 0x8080FF;

inline constexpr int Tom = 0;  ///< a boy in no working group
inline constexpr int Lena = 1; ///< a girl in the groups Chor and Schach

/// The screen on an installation of class 3a in the second half-year.
class EntryScreen34 : public testing::Test {
  protected:
    EntryScreen34() { pupils(u"3a"); }

    void pupils(TextView klasse) const {
        const Text head = u",\"" + Text(klasse) + u"\",";
        installation.write(
            u"Daten/Namen.Txt",
            u"1" + head +
                u"\"Ahlers\",\"Tom\",\"m\",\"01.02.2018\",\"\",\"\",\"\",\"\",\"Ort\"\r\n2" + head +
                u"\"Bäcker\",\"Lena\",\"w\",\"01.02.2018\",\"Chor\",\"Schach\",\"\",\"\","
                u"\"Ort\"\r\n");
    }
    void stored(TextView texts, TextView locks) const {
        installation.write(u"Daten/34Speicher.txt",
                           u"1,\"3a\",\"Ahlers\",\"Tom\",\"\",\"\",\"\"\r\n"
                           u"2,\"3a\",\"Bäcker\",\"Lena\"," +
                               Text(texts) + u"\r\n");
        installation.write(u"Daten/34Sperre.txt", u"1,\"3a\",\"Ahlers\",\"Tom\",0,0,0\r\n"
                                                  u"2,\"3a\",\"Bäcker\",\"Lena\"," +
                                                      Text(locks) + u"\r\n");
    }

    GSAGFI& open() {
        program.emplace(installation);
        return program->open<GSAGFI>(bildschirme::GSAGFI);
    }
    GSAGFI& openPage(int pupil, int page) {
        GSAGFI& screen = open();
        user::pick(screen.Combo1, pupil);
        user::click(screen.Command2(page));
        return screen;
    }
    [[nodiscard]] bool isOpen() const {
        return program->programm.find(bildschirme::GSAGFI) != nullptr;
    }
    /// The line of a pupil in a store, behind the name.
    [[nodiscard]] Text saved(TextView file, TextView vorname) const {
        const Text content = installation.read(u"Daten/" + Text(file));
        const Text name = u"\"" + Text(vorname) + u"\",";
        const size_t at = content.find(name) + name.size();
        const size_t next = content.find(u",\"3a\",", at);
        return content.substr(at, next == Text::npos ? Text::npos : next - 1 - at);
    }

    TestInstallation installation;
    std::optional<TestProgramm> program;
};

} // namespace zeugnis::test
