#include "desktop/comfort/lead_to_text.h"

#include "comfort/entry_flow.h"
#include "common/screen_names.h"
#include "controls/list_controls.h"
#include "controls/program.h"
#include "controls/user_actions.h"
#include "desktop/screen_window.h"
#include "desktop/window_host.h"
#include "shell/start_page.h"
#include "toolkit/entry_call.h"

#include <QApplication>

#include <array>

namespace zeugnis {
namespace {

Screen* shownScreen(WindowHost& host, TextView name) {
    Screen* screen = host.program().find(name);
    return screen != nullptr && screen->shown() ? screen : nullptr;
}

} // namespace

// An entry window that is open holds what has been typed, so it is not opened anew.
bool leadToText(WindowHost& host, const EntryPlace& place) {
    auto* start = dynamic_cast<GsStart*>(host.program().startScreen());
    if (start == nullptr || !host.isIdle() || QApplication::activeModalWidget() != nullptr)
        return false;
    const int index = place.isBehaviour ? 0 : start->Jahrgang < 3 ? 1 : 2;
    const std::array names = {bildschirme::GsArbeitsverhalten, bildschirme::Kompetenzen,
                              bildschirme::GSAGFI};
    const TextView name = names.at(static_cast<size_t>(index));
    Button& button = start->Command1(index);
    if (shownScreen(host, name) == nullptr && host.mayAct(button))
        host.run([&] {
            if (!button.reachable())
                user::click(start->Command3); // back from the tools
            user::click(button);
        });
    Screen* screen = shownScreen(host, name);
    const auto entry = screen == nullptr ? std::nullopt : EingabeschirmAus(*screen);
    if (!entry || !host.mayAct(*entry->Kinder))
        return false;
    bool done = false;
    host.run([&] { done = Eingabefluss(*entry).Hinfuehren(place.child, place.page); });
    if (ScreenWindow* window = host.windowOf(screen)) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->raise();
        window->activateWindow();
    }
    return done;
}

} // namespace zeugnis
