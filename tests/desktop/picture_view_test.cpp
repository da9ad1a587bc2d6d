#include "desktop/picture_view.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QRandomGenerator>

namespace zeugnis::test {
namespace {

// Else the photo of a child would be every sixth pixel of it.
TEST(PictureView, ShowsTheMeanOfThePixelsThatShareAPlace) {
    QImage noise(480, 480, QImage::Format_RGB32);
    QRandomGenerator random(1);
    for (int y = 0; y < noise.height(); ++y)
        for (int x = 0; x < noise.width(); ++x)
            noise.setPixelColor(x, y, random.bounded(2) == 0 ? Qt::black : Qt::white);
    PictureView view({48, 48});
    view.resize(48, 48);
    view.setPixmap(QPixmap::fromImage(noise));
    const QImage shown = view.grab().toImage();
    for (int y = 10; y < 38; ++y)
        for (int x = 10; x < 38; ++x)
            EXPECT_NEAR(qGray(shown.pixel(x, y)), 127, 70) << x << ", " << y;
}

} // namespace
} // namespace zeugnis::test
