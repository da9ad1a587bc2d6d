#include "desktop/user_settings.h"

#include "desktop/comfort/spelling.h"
#include "desktop/window_host.h"

#include <QSettings>

namespace zeugnis {
namespace {

QString reportKey() { return QStringLiteral("Eingabe/ZeugnisDaneben"); }
QString spellingKey() { return QStringLiteral("Eingabe/Rechtschreibung"); }

} // namespace

QSettings userSettings() {
    return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Zeugnisprogramm"),
            QStringLiteral("Zeugnisprogramm")};
}

RememberedComfort::RememberedComfort(WindowHost& host) : m_host(host) {
    const QSettings settings = userSettings();
    host.reportBeside = settings.value(reportKey(), false).toBool();
    Spelling::of(host).switchOn(settings.value(spellingKey(), true).toBool());
}

RememberedComfort::~RememberedComfort() {
    QSettings settings = userSettings();
    settings.setValue(reportKey(), m_host.reportBeside);
    settings.setValue(spellingKey(), Spelling::of(m_host).isOn());
}

} // namespace zeugnis
