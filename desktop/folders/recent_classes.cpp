#include "desktop/folders/recent_classes.h"

#include "desktop/user_settings.h"
#include "toolkit/qt_text.h"

#include <QSettings>
#include <QStringList>

namespace zeugnis::recentclasses {
namespace {

constexpr qsizetype Most = 12;

QString key() { return QStringLiteral("Klassen/zuletzt"); }

QStringList names() { return userSettings().value(key()).toStringList(); }

QStringList without(const QString& folder) {
    QStringList all = names();
    all.removeAll(folder);
    return all;
}

} // namespace

std::vector<std::filesystem::path> list() {
    std::vector<std::filesystem::path> folders;
    for (const QString& name : names())
        folders.push_back(pathFromText(fromQString(name)));
    return folders;
}

void remember(const std::filesystem::path& folder) {
    const QString name = qPath(folder);
    userSettings().setValue(key(), (QStringList{name} + without(name)).mid(0, Most));
}

void forget(const std::filesystem::path& folder) {
    userSettings().setValue(key(), without(qPath(folder)));
}

} // namespace zeugnis::recentclasses
