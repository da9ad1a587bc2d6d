#include "tests/layout/class_windows.h"

#include "desktop/folders/about_window.h"
#include "desktop/folders/first_start_window.h"
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

/// A window whose button `next` leads on, `steps` times.
struct ClassStop {
    const char* name;
    Window (*open)(const ClassFolder& installation);
    int steps = 0;
    const char* next = "";
};

const ClassStop Stops[] = {
    {"erststart", firstStart},
    {"neue-klasse", newClass, 4, "Weiter"},
    {"mitnehmen", takeAlong},
    {"ueber", about},
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
