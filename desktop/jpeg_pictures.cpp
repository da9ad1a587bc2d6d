#include "desktop/jpeg_pictures.h"

#include "toolkit/qt_text.h"

#include <QGuiApplication>
#include <QImageReader>
#include <QPixmap>
#include <QPixmapCache>

namespace zeugnis {
namespace fs = std::filesystem;
namespace {

// What the largest of them shows.
constexpr QSize LargestShown(264, 264);

// Asked for its format, and not told: then Qt loads what reads JPEG alone, and not all it has.
QImage decoded(const fs::path& file) {
    QImageReader reader(qPath(file));
    if (reader.format() != "jpeg")
        return {};
    const QSize size = reader.size();
    const QSize largest = LargestShown * qApp->devicePixelRatio();
    if (size.width() > largest.width() || size.height() > largest.height())
        reader.setScaledSize(size.scaled(largest, Qt::KeepAspectRatio));
    return reader.read();
}

QString keyOf(const fs::path& file) {
    std::error_code ignored;
    return QStringLiteral("%1 %2 %3")
        .arg(fs::last_write_time(file, ignored).time_since_epoch().count())
        .arg(fs::file_size(file, ignored))
        .arg(qPath(file));
}

} // namespace

QPixmap jpegPicture(const fs::path& file) {
    const QString key = keyOf(file);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QPixmap::fromImage(decoded(file));
        if (!pixmap.isNull())
            QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

} // namespace zeugnis
