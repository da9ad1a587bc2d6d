// Plays a few steps on the real windows and takes pictures of them, for the help texts:
//   click SCREEN.CONTROL | select SCREEN.CONTROL ENTRY | picture SCREEN FILE
// All questions are answered with Yes.

#include "common/screen_names.h"
#include "controls/list_controls.h"
#include "controls/user_actions.h"
#include "desktop/desktop_machine.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "platform/failure.h"
#include "platform/plain_machine.h"
#include "program/all_screens.h"
#include "toolkit/qt_text.h"

#include <QApplication>
#include <QImage>
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

void takePicture(const Programm& program, const Text& name, const std::string& file) {
    const Screen* screen = program.find(name);
    for (QWidget* window : QApplication::topLevelWidgets())
        if (screen != nullptr && window->isVisible() &&
            window->windowTitle() == qString(screen->Title))
            if (window->grab()
                    .toImage()
                    .scaledToWidth(PictureWidth, Qt::SmoothTransformation)
                    .convertToFormat(QImage::Format_RGB888)
                    .save(QString::fromStdString(file), "PNG", 0))
                return;
    throw std::runtime_error("no picture of " + utf8FromText(name));
}

void play(WindowHost& host, const std::string& line) {
    std::istringstream words(line);
    std::string command;
    std::string name;
    std::string rest;
    words >> command >> name >> rest;
    Programm& program = host.program();
    if (command == "picture") {
        takePicture(program, textFromUtf8(name), rest);
        return;
    }
    Control& control = controlNamed(program, textFromUtf8(name));
    bool reached = false;
    host.run([&] {
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
    host.run([&] { program.show(bildschirme::GsStart); });
    settle();
    try {
        for (std::string line; std::getline(std::cin, line);)
            if (!line.empty() && line.front() != '#')
                play(host, line);
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
    return 0;
}
