#include "documents/app/pupil_picture.h"

#include "files/file_catalogue.h"
#include "platform/failure.h"
#include "toolkit/qt_text.h"

#include <QBuffer>
#include <QImageReader>

namespace zeugnis::dokumente {
namespace {

constexpr QSize Rahmen(765, 1020); // twips; half the size that is asked for
constexpr QSize Genug(400, 400);   // points, before it is turned and scaled
constexpr int TwipsJePunkt = 6;    // 240 points to the inch

std::string alsPng(const QImage& bild) {
    QBuffer puffer;
    puffer.open(QIODevice::WriteOnly);
    bild.save(&puffer, "PNG");
    return puffer.data().toStdString();
}

QImage gelesen(const std::filesystem::path& pfad) {
    QImageReader leser(QString::fromStdU16String(pfad.u16string()), "jpg");
    leser.setAutoTransform(true);
    // Much faster for large photographs than reading them whole.
    if (const QSize gross = leser.size();
        gross.width() > Genug.width() && gross.height() > Genug.height())
        leser.setScaledSize(gross.scaled(Genug, Qt::KeepAspectRatioByExpanding));
    return leser.read();
}

} // namespace

std::optional<Image> KinderbildLesen(const Arbeitsverzeichnis& verzeichnis, const Text& datei) {
    std::filesystem::path pfad;
    try {
        pfad = verzeichnis.path(Text(dateien::Bild) + u"\\" + datei);
    } catch (const Laufzeitfehler&) {
        return std::nullopt; // the folder is missing
    }
    const QImage bild = gelesen(pfad);
    if (bild.isNull())
        return std::nullopt;
    const QSize gross = bild.size().scaled(Rahmen, Qt::KeepAspectRatio);
    return Image{.png = alsPng(bild.scaled(gross / TwipsJePunkt, Qt::IgnoreAspectRatio,
                                           Qt::SmoothTransformation)),
                 .width = gross.width(),
                 .height = gross.height(),
                 .description = datei};
}

} // namespace zeugnis::dokumente
