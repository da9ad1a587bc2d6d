#include "tests/layout/every_window.h"

#include "common/screen_names.h"
#include "controls/list_controls.h"
#include "controls/screen.h"
#include "controls/user_actions.h"
#include "desktop/screen_window.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "documents/window/theme.h"
#include "tests/desktop/settle_layouts.h"
#include "tests/layout/class_windows.h"
#include "tests/layout/document_windows.h"
#include "tests/layout/long_texts.h"
#include "tests/support/test_programm.h"

#include <QApplication>
#include <QListView>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <sstream>
#include <stdexcept>

namespace zeugnis::test {
namespace {

/// The steps are controls of the screen, or of another one by its full name: a click, an entry
/// that is picked (=), a text that is typed (:). A star looks at the window.
struct Stop {
    const char* name;
    const char* klasse;
    TextView screen;
    const char* steps;
    const char* always;
};

constexpr const char* EntryAVSV =
    "GsStart.Command1(0) * Combo1=0 * Command1 * Option1(2) * Command3(1) Option1(7) * Command3(2) "
    "* Command3(3) * Command3(4) * Command3(5) * Command3(6) * Command2 Option1(3) * Command3(1) * "
    "Text1(1) Command7(0) * Command7(1) Combo1=1 *";
constexpr const char* Entry12 =
    "GsStart.Command1(1) * Combo1=0 Command1(0) * Command1(1) Option2(0) Option3(1) * Command1(2) "
    "* Command1(3) * Command1(4) * Command1(5) * Command1(6) * Command1(7) Check3(1) Check3(2) * "
    "Text1(7) Command7(0) *";
constexpr const char* Entry34 =
    "GsStart.Command1(2) * Combo1=0 Command2(0) * Check1(2) Option6(0) * Command2(1) Option1(2) "
    "Check3(1) * Command2(2) Option2(0) Check5(0) Check5(2) Option3(0) Check2(0) Option4(0) * "
    "Text3 Command7(0) *";
constexpr const char* EditorAVSV =
    "GsStart.Command2 GsStart.Command1(4) * Command1(1) * Command4(2) * Command4(6) * Command3 * "
    "Command4(3) * Command8(0) *";
constexpr const char* Editor12 =
    "GsStart.Command2 GsStart.Command1(5) * Command3(1) * Command1(2) * Command1(3) * Command1(4) "
    "* Command1(5) * Command1(6) * Command1(7) * Command1(8) * Command1(9) * Command2(0) *";
constexpr const char* Editor34 =
    "GsStart.Command2 GsStart.Command1(5) * Command1(0) * Command2(0) * Command2(1) * Command2(2) "
    "* Command7(0) *";
constexpr const char* Review = "GsStart.Command1(3) * Check1(9) Command1(0) *";
constexpr const char* MasterData =
    "GsStart.Command2 GsStart.Command1(6) * Combo1=0 * Command5 Command3 *";
constexpr const char* Insertion = "GsStart.Command1(0) GsArbeitsverhalten.Combo1=0 "
                                  "GsArbeitsverhalten.Command1 GsArbeitsverhalten.Text1(0) "
                                  "GsArbeitsverhalten.Command7(0) *";
constexpr const char* Placeholders = "GsStart.Command2 GsStart.Command1(4) GSAVSVÄnderung.Command1("
                                     "1) GSAVSVÄnderung.Command8(0) *";

const Stop Stops[] = {
    {"start", "3a", bildschirme::GsStart, "* Command2 *", "Command2 Command3 Command8 Command1(7)"},
    {"start", "2b", bildschirme::GsStart, "*", "Command2 Command8"},
    {"listen", "3a", bildschirme::Listen, "GsStart.Command7 *", "Command1(0) Command1(5)"},
    {"stammdaten", "3a", bildschirme::GsBasis, MasterData, "Combo1 Command1(0) Command1(1)"},
    {"verhalten", "3a", bildschirme::GsArbeitsverhalten, EntryAVSV,
     "Combo1 Text1(0) Text1(1) Command4 Command5 Command6 Command7(0) Command7(1)"},
    {"kompetenzen", "2b", bildschirme::Kompetenzen, Entry12,
     "Combo1 Text1(0) Text1(1) Text1(2) Text1(3) Text1(4) Text1(5) Text1(6) Text1(7) Command2 "
     "Command3 Command4 Command7(0) Command7(1)"},
    {"kompetenzen", "1a", bildschirme::Kompetenzen, Entry12, "Combo1 Command2 Command3 Command4"},
    {"foerder", "3a", bildschirme::GSAGFI, Entry34,
     "Combo1 Text1 Text2 Text3 Command1(0) Command1(1) Command1(2) Command7(0) Command7(1)"},
    {"foerder", "4c", bildschirme::GSAGFI, Entry34, "Combo1 Command1(0) Command1(1) Command1(2)"},
    {"bausteine-verhalten", "3a", bildschirme::GSAVSVAenderung, EditorAVSV,
     "Command1(0) Command2 Command5 Command6 Command8(0)"},
    {"bausteine12", "2b", bildschirme::GSAenderung12, Editor12,
     "Command5 Command6 Command2(0) Command2(1)"},
    {"bausteine34", "3a", bildschirme::GSAenderung34, Editor34,
     "Command5 Command6 Command7(0) Command7(1)"},
    {"anzeige", "3a", bildschirme::GsAnzeige, Review,
     "Command1(0) Command1(1) Command1(2) Text1 Command8"},
    {"einfuegungen", "3a", bildschirme::Einfuegungen, Insertion,
     "Command1(0) Command1(1) Command1(2) List1"},
    {"platzhalter", "3a", bildschirme::Einfuegungen, Placeholders, "List1"},
};

class Agreeing : public Dialogs {
  public:
    Antwort message(const Meldung& meldung) override {
        return meldung.tasten == Tasten::Ok ? Antwort::Ok : Antwort::Ja;
    }
    std::optional<Text> input(const Text& /*title*/, const Text& /*prompt*/) override { return {}; }
};

class Walk {
  public:
    Walk(const Stop& stop, const Content& content)
        : m_stop(stop),
          m_installation(stop.klasse, content.longTexts),
          m_program({m_dialogs, m_clipboard, m_calendar, m_pictures, m_launcher},
                    m_installation.path()) {
        BildschirmeAnmelden(m_program);
        m_host = std::make_unique<WindowHost>(m_program);
        m_host->beside.showFormerStates = [] {};
        m_host->beside.newModules = [] { return size_t(12); };
        m_host->beside.openClassMenu = [](QWidget&) {};
        m_host->run([this] { m_program.show(bildschirme::GsStart); });
    }

    void go(const std::function<void(const Sight&)>& look) {
        std::istringstream steps(m_stop.steps);
        int number = 0;
        for (std::string step; steps >> step;) {
            if (step != "*") {
                act(step);
                continue;
            }
            settleLayouts();
            char name[64];
            std::snprintf(name, sizeof name, "%s-%s-%02d", m_stop.klasse, m_stop.name, ++number);
            look({window(), name, widgets(m_stop.always)});
        }
    }

  private:
    Control& control(const std::string& name) {
        const size_t dot = name.find('.');
        const Text screen =
            dot == std::string::npos ? Text(m_stop.screen) : textFromUtf8(name.substr(0, dot));
        const Screen* found = m_program.find(screen);
        Control* one = found == nullptr ? nullptr : found->find(textFromUtf8(name.substr(dot + 1)));
        if (one == nullptr)
            throw std::logic_error("no such control: " + name);
        return *one;
    }

    void act(const std::string& step) {
        const size_t sign = step.find('=');
        Control& one = control(step.substr(0, sign));
        bool reached = false;
        m_host->run([&] {
            reached = sign == std::string::npos ? user::click(one)
                                                : user::pick(dynamic_cast<ListControl&>(one),
                                                             std::stoi(step.substr(sign + 1)));
        });
        if (!reached)
            throw std::logic_error(std::string(m_stop.name) + ": out of reach: " + step);
    }

    QWidget& window() { return *m_host->windowOf(m_program.find(m_stop.screen)); }

    std::vector<const QWidget*> widgets(const char* controls) {
        std::vector<const QWidget*> all;
        std::istringstream names(controls);
        for (std::string name; names >> name;) {
            const Control& one = control(name);
            all.push_back(m_host->windowOf(&one.screen())->widgetOf(one));
        }
        return all;
    }

    const Stop& m_stop;
    ClassFolder m_installation;
    Agreeing m_dialogs;
    PlainClipboard m_clipboard;
    FixedCalendar m_calendar{u"15.03.2027"};
    JpegMarkPictures m_pictures;
    RecordingLauncher m_launcher;
    Programm m_program;
    std::unique_ptr<WindowHost> m_host;
};

void enlargeFont(int percent) {
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * percent / 100);
    QApplication::setFont(font);
}

} // namespace

void resizeWindow(QWidget& window, const QSize& size) {
    // On its way a narrower window folds parts away; it is as small as wished only then.
    for (int i = 0; i < 2; ++i) {
        window.resize(size);
        settleLayouts();
    }
    // These would break their entries anew only a moment later.
    for (auto* list : window.findChildren<QListView*>())
        list->doItemsLayout();
}

void forEveryWindow(const Content& content, const std::function<void(const Sight&)>& look,
                    const std::string& part) {
    auto& application = *qobject_cast<QApplication*>(QCoreApplication::instance());
    theme::apply(application);
    enlargeFont(content.fontPercent);
    for (const Stop& stop : Stops)
        if ((std::string(stop.klasse) + '-' + stop.name).find(part) != std::string::npos)
            Walk(stop, content).go(look);
    forEveryClassWindow(content, look, part);
    dokumente::theme::apply(application);
    enlargeFont(content.fontPercent);
    forEveryDocumentWindow(content, look, part);
}

} // namespace zeugnis::test
