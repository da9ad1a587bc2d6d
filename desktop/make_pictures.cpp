// Plays a few steps on the real windows and takes pictures of them, for the help texts:
//   click SCREEN.CONTROL | select SCREEN.CONTROL ENTRY | picture SCREEN FILE
//   type SCREEN.CONTROL SENTENCE | offers FILE | states FILE | first-start FILE | new-class FILE
//   size SCREEN WIDTHxHEIGHT | press SCREEN INSCRIPTION (a button beside the controls)
// All questions are answered with Yes.

#include "common/screen_names.h"
#include "controls/list_controls.h"
#include "controls/text_box.h"
#include "controls/user_actions.h"
#include "desktop/desktop_machine.h"
#include "desktop/folders/first_start_window.h"
#include "desktop/folders/new_class_window.h"
#include "desktop/rescue/former_states_window.h"
#include "desktop/rescue/offer_window.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "platform/failure.h"
#include "platform/plain_machine.h"
#include "program/all_screens.h"
#include "toolkit/qt_text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QPushButton>
#include <QSettings>
#include <QThread>
#include <QWidget>

#include <iostream>
#include <sstream>
#include <stdexcept>

namespace {

using namespace zeugnis;

constexpr int PictureWidth = 900;

class Agreeing : public Dialogs {
  public:
    Antwort message(const Meldung& meldung) override {
        return meldung.tasten == Tasten::Ok ? Antwort::Ok : Antwort::Ja;
    }
    std::optional<Text> input(const Text& /*title*/, const Text& /*prompt*/) override { return {}; }
};

class NoLauncher : public Launcher {
  public:
    void start(const Text& /*commandLine*/, const std::filesystem::path& /*folder*/) override {}
};

void settle() {
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
}

Control& controlNamed(const Programm& program, const Text& name) {
    const size_t dot = name.find(u'.');
    const Screen* screen = program.find(TextView(name).substr(0, dot));
    Control* control = screen == nullptr ? nullptr : screen->find(TextView(name).substr(dot + 1));
    if (control == nullptr)
        throw std::runtime_error("no such control: " + utf8FromText(name));
    return *control;
}

void save(QWidget& window, const std::string& file) {
    if (!window.grab()
             .toImage()
             .scaledToWidth(PictureWidth, Qt::SmoothTransformation)
             .convertToFormat(QImage::Format_RGB888)
             .save(QString::fromStdString(file), "PNG", 0))
        throw std::runtime_error("no picture in " + file);
}

QWidget& windowOf(const Programm& program, const Text& name) {
    const Screen* screen = program.find(name);
    for (QWidget* window : QApplication::topLevelWidgets())
        if (screen != nullptr && window->isVisible() &&
            window->windowTitle().remove(QStringLiteral("[*]")) == qString(screen->Title))
            return *window;
    throw std::runtime_error("no window of " + utf8FromText(name));
}

void wait() {
    QThread::msleep(200);
    settle();
}

// Larger than the display, if need be: a window that has come up is put on it only once.
void resize(QWidget& window, const std::string& size) {
    wait();
    const QStringList sides = QString::fromStdString(size).split(u'x');
    window.resize(sides.value(0).toInt(), sides.value(1).toInt());
    settle();
}

// What it opens may come a little later.
void press(const QWidget& window, const std::string& inscription) {
    for (auto* button : window.findChildren<QAbstractButton*>())
        if (button->isVisible() && button->text().startsWith(QString::fromStdString(inscription))) {
            button->click();
            return wait();
        }
    throw std::runtime_error("no button " + inscription);
}

// In front of a class, as who starts for the first time sees them.
void takeFirstStart(const std::string& which, const std::string& file) {
    const auto folder = std::filesystem::current_path();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, qPath(folder));
    FirstStartWindow first(folder, {});
    NewClassWindow steps(folder, nullptr);
    for (auto* button : steps.findChildren<QPushButton*>())
        if (button->isDefault())
            button->click();
    QWidget& window = which == "first-start" ? static_cast<QWidget&>(first) : steps;
    window.resize(PictureWidth, PictureWidth * 5 / 9);
    window.show();
    settle();
    save(window, file);
}

// The windows of the net, as the next start and the tools show them.
struct BelowTheFiles {
    BelowTheFiles(Programm& running, WindowHost& windows)
        : program(running), host(windows), guard(std::filesystem::current_path()) {
        program.directory().watchWrites(&guard);
        host.beside.actionEnded = [this] { keeper.actionEnded(); };
    }

    void take(const std::string& which, const std::string& file) {
        keeper.setDown();
        rescue::TypedKeeper next(program, std::filesystem::current_path(),
                                 [] { return safety::now() + std::chrono::minutes(1); });
        rescue::FormerStates states(program, guard, std::filesystem::current_path());
        OfferWindow offers(rescue::OfferList(next.store(), safety::now()), next, host, {}, nullptr);
        offers.setAttribute(Qt::WA_DeleteOnClose, false);
        FormerStatesWindow former(states, {}, nullptr);
        QWidget& window = which == "offers" ? static_cast<QWidget&>(offers) : former;
        window.resize(PictureWidth, PictureWidth * 5 / 9);
        window.show();
        settle();
        save(window, file);
    }

    Programm& program;
    WindowHost& host;
    safety::Guard guard;
    rescue::TypedKeeper keeper{program, std::filesystem::current_path()};
};

void play(WindowHost& host, BelowTheFiles& net, const std::string& line) {
    std::istringstream words(line);
    std::string command;
    std::string name;
    std::string rest;
    words >> command >> name >> rest;
    Programm& program = host.program();
    if (command == "picture") {
        // What is looked for in the background comes a little later.
        for (int i = 0; i < 8; ++i)
            wait();
        return save(windowOf(program, textFromUtf8(name)), rest);
    }
    if (command == "size")
        return resize(windowOf(program, textFromUtf8(name)), rest);
    if (command == "press")
        return press(windowOf(program, textFromUtf8(name)), rest);
    if (command == "first-start" || command == "new-class")
        return takeFirstStart(command, name);
    if (command == "offers" || command == "states") {
        net.take(command, name);
        return;
    }
    Control& control = controlNamed(program, textFromUtf8(name));
    bool reached = false;
    host.run([&] {
        if (command == "type") {
            std::string more;
            std::getline(words, more);
            reached = user::click(control) &&
                      user::paste(dynamic_cast<TextBox&>(control), textFromUtf8(" " + rest + more));
            return;
        }
        reached = command == "select"
                      ? user::pick(dynamic_cast<ListControl&>(control), std::stoi(rest))
                      : user::click(control);
    });
    if (!reached)
        throw std::runtime_error("out of reach: " + line);
    settle();
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    theme::apply(application);
    Agreeing dialogs;
    PlainClipboard clipboard;
    SystemCalendar calendar;
    DesktopPictures pictures;
    NoLauncher launcher;
    Programm program({dialogs, clipboard, calendar, pictures, launcher},
                     std::filesystem::current_path());
    BildschirmeAnmelden(program);
    WindowHost host(program);
    BelowTheFiles net(program, host);
    host.run([&] { program.show(bildschirme::GsStart); });
    settle();
    try {
        for (std::string line; std::getline(std::cin, line);)
            if (!line.empty() && line.front() != '#')
                play(host, net, line);
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
    return 0;
}
