#include "tests/layout/class_windows.h"

#include "desktop/folders/about_window.h"
#include "desktop/folders/first_start_window.h"
#include "desktop/folders/module_update_window.h"
#include "desktop/folders/moving_up_window.h"
#include "desktop/folders/new_class_window.h"
#include "desktop/folders/recent_classes.h"
#include "desktop/folders/take_along_window.h"
#include "tests/desktop/settle_layouts.h"
#include "tests/layout/long_texts.h"

#include <QAbstractItemView>
#include <QDialog>
#include <QPushButton>
#include <QSettings>

#include <memory>

namespace zeugnis::test {
namespace {

using Window = std::unique_ptr<QDialog>;

Window welcome(const ClassFolder& installation) {
    return std::make_unique<FirstStartWindow>(installation.path(), QString());
}

Window firstStart(const ClassFolder& installation) {
    for (const char* name : {"gestern", "heute"}) {
        const std::filesystem::path folder = installation.path() / name;
        std::filesystem::create_directory(folder);
        recentclasses::remember(folder);
    }
    recentclasses::remember(installation.path());
    return std::make_unique<FirstStartWindow>(installation.path(),
                                              QStringLiteral("Zu „Brief.doc“ gibt es keine Klasse: "
                                                             "Der Ordner „Daten“ fehlt."));
}

Window newClass(const ClassFolder& installation) {
    return std::make_unique<NewClassWindow>(installation.path(), nullptr);
}

Window about(const ClassFolder& installation) {
    auto window = std::make_unique<AboutWindow>(installation.path(), nullptr);
    window->saveTo(QString::fromStdU16String((installation.path() / "Diagnose.txt").u16string()));
    return window;
}

Window takeAlong(const ClassFolder& installation) {
    auto window = std::make_unique<TakeAlongWindow>(nullptr);
    window->setSource(installation.path());
    return window;
}

Window movingUp(const ClassFolder& installation) {
    return std::make_unique<MovingUpWindow>(installation.path(), installation.path(), nullptr);
}

// The class was delivered with other texts, and one of them is the school's own.
Window newModules(const ClassFolder& installation) {
    const auto reword = [&](TextView file, TextView from, TextView to, size_t most) {
        Text content = installation.read(file);
        for (size_t at = 0; most > 0 && (at = content.find(from, at)) != Text::npos; --most)
            content.replace(at, from.size(), to);
        installation.write(file, content);
    };
    for (const TextView file : {u"Daten/TexteAV.txt", u"Daten/Standard/TexteAVStandard.Txt"})
        reword(file, u"Aufgaben", u"Arbeiten", 9);
    reword(u"Daten/TexteAV.txt", u"Arbeiten", u"Wochenaufgaben und Pflichten", 2);
    const Arbeitsverzeichnis delivered(std::filesystem::path(ZEUGNIS_SOURCE_FOLDER) / "install");
    return std::make_unique<ModuleUpdateWindow>(
        Arbeitsverzeichnis(installation.path()), delivered, [] { return Text(); }, nullptr);
}

/// A window whose button `next` leads on, `steps` times.
struct ClassStop {
    const char* name;
    Window (*open)(const ClassFolder& installation);
    int steps = 0;
    const char* next = "";
};

const ClassStop Stops[] = {
    {"willkommen", welcome},
    {"erststart", firstStart},
    {"neue-klasse", newClass, 4, "Weiter"},
    {"mitnehmen", takeAlong},
    {"ueber", about},
    {"aufsteigen", movingUp},
    {"neue-bausteine", newModules},
};

std::vector<const QWidget*> alwaysThere(const QWidget& window) {
    std::vector<const QWidget*> all;
    for (const auto* button : window.findChildren<QPushButton*>(Qt::FindDirectChildrenOnly))
        if (button->isVisible())
            all.push_back(button);
    for (const auto* view : window.findChildren<QAbstractItemView*>())
        if (view->isVisible() && view->window() == &window)
            all.push_back(view);
    return all;
}

void press(const QDialog& window, const QString& text) {
    for (auto* button : window.findChildren<QPushButton*>())
        if (button->text().remove(u'&') == text)
            return button->click();
}

} // namespace

void forEveryClassWindow(const Content& content, const std::function<void(const Sight&)>& look,
                         const std::string& part) {
    for (const ClassStop& stop : Stops) {
        const std::string name = std::string("klasse-") + stop.name;
        if (name.find(part) == std::string::npos)
            continue;
        const ClassFolder installation("3a", content.longTexts);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                           QString::fromStdU16String(installation.path().u16string()));
        const Window window = stop.open(installation);
        window->show();
        for (int step = 0;; ++step) {
            settleLayouts();
            look({*window, name + '-' + std::to_string(step + 1), alwaysThere(*window)});
            if (step == stop.steps)
                break;
            press(*window, QString::fromLatin1(stop.next));
        }
    }
}

} // namespace zeugnis::test
