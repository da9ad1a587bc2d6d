#include "documents/app/pupil_picture.h"

#include "files/file_catalogue.h"
#include "platform/failure.h"
#include "toolkit/qt_text.h"

#include <QBuffer>
#include <QImageReader>

namespace zeugnis::dokumente {
namespace {

struct Rahmen {
    QSize Hoechstens; ///< twips
    QSize Genug;      ///< points, before it is turned and scaled
};
constexpr Rahmen Kinderbild{QSize(765, 1020), QSize(400, 400)}; // half the size that is asked for
constexpr Rahmen Kopfbild{QSize(7000, 1100), QSize(1400, 440)};
constexpr int TwipsJePunkt = 6; // 240 points to the inch

std::string alsPng(const QImage& bild) {
    QBuffer puffer;
    puffer.open(QIODevice::WriteOnly);
    bild.save(&puffer, "PNG");
    return puffer.data().toStdString();
}

QImage gelesen(const std::filesystem::path& pfad, QSize genug) {
    QImageReader leser(QString::fromStdU16String(pfad.u16string()), "jpg");
    leser.setAutoTransform(true);
    // Much faster for large photographs than reading them whole.
    if (const QSize gross = leser.size();
        gross.width() > genug.width() && gross.height() > genug.height())
        leser.setScaledSize(gross.scaled(genug, Qt::KeepAspectRatioByExpanding));
    return leser.read();
}

std::optional<Image> bildLesen(const Arbeitsverzeichnis& verzeichnis, const Text& datei,
                               const Rahmen& rahmen) {
    std::filesystem::path pfad;
    try {
        pfad = verzeichnis.path(Text(dateien::Bild) + u"\\" + datei);
    } catch (const Laufzeitfehler&) {
        return std::nullopt; // the folder is missing
    }
    const QImage bild = gelesen(pfad, rahmen.Genug);
    if (bild.isNull())
        return std::nullopt;
    const QSize gross = bild.size().scaled(rahmen.Hoechstens, Qt::KeepAspectRatio);
    return Image{.png = alsPng(bild.scaled(gross / TwipsJePunkt, Qt::IgnoreAspectRatio,
                                           Qt::SmoothTransformation)),
                 .width = gross.width(),
                 .height = gross.height(),
                 .description = datei};
}

} // namespace

std::optional<Image> KinderbildLesen(const Arbeitsverzeichnis& verzeichnis, const Text& datei) {
    return bildLesen(verzeichnis, datei, Kinderbild);
}

std::optional<Image> KopfbildLesen(const Arbeitsverzeichnis& verzeichnis, const Text& datei) {
    if (datei.empty())
        return std::nullopt;
    return bildLesen(verzeichnis, datei, Kopfbild);
}

} // namespace zeugnis::dokumente
