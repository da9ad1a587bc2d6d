#include "toolkit/local_name.h"

#include "toolkit/qt_text.h"

#include <QCryptographicHash>
#include <QDir>

namespace zeugnis {

QString localName(const char* purpose, const std::filesystem::path& about) {
    std::error_code ignored;
    const std::filesystem::path whole = std::filesystem::weakly_canonical(about, ignored);
    // Of the user's own, so that nobody else's window is called.
    const QString key = QDir::homePath() + u'\n' + qPath(whole.empty() ? about : whole);
    const QByteArray hash =
        QCryptographicHash::hash(key.toLower().toUtf8(), QCryptographicHash::Sha256).toHex();
    return QStringLiteral("zeugnisprogramm-%1-%2")
        .arg(QLatin1String(purpose), QLatin1String(hash.left(24)));
}

} // namespace zeugnis
