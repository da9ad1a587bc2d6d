#include "desktop/jpeg_pictures.h"

#include "toolkit/qt_text.h"

#include <QImageReader>
#include <QPixmap>
#include <QPixmapCache>

namespace zeugnis {
namespace fs = std::filesystem;
namespace {

// Twice what any of them shows.
constexpr QSize Largest(640, 640);

// Asked for its format, and not told: then Qt loads what reads JPEG alone, and not all it has.
QImage decoded(const fs::path& file) {
    QImageReader reader(qPath(file));
    if (reader.format() != "jpeg")
        return {};
    const QSize size = reader.size();
    if (size.width() > Largest.width() || size.height() > Largest.height())
        reader.setScaledSize(size.scaled(Largest, Qt::KeepAspectRatio));
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
