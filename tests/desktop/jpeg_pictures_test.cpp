#include "desktop/jpeg_pictures.h"

#include "tests/support/test_installation.h"
#include "toolkit/qt_text.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>

namespace zeugnis::test {
namespace {

void draw(const std::filesystem::path& file, QSize size, const QColor& colour, const char* format) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    ASSERT_TRUE(image.save(qPath(file), format));
}

TEST(JpegPictures, OfACameraComeSmallerAndInTheSameShape) {
    const TemporaryFolder folder;
    draw(folder.path() / "Lüttmers.jpg", {3000, 4000}, Qt::darkGreen, "jpeg");
    EXPECT_EQ(jpegPicture(folder.path() / "Lüttmers.jpg").size(), QSize(198, 264));
    draw(folder.path() / "klein", {200, 150}, Qt::darkGreen, "jpeg");
    EXPECT_EQ(jpegPicture(folder.path() / "klein").size(), QSize(200, 150));
}

TEST(JpegPictures, AreReadAnewWhenTheirFileChanges) {
    const TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "Bild.jpg";
    draw(file, {30, 20}, Qt::red, "jpeg");
    EXPECT_GT(jpegPicture(file).toImage().pixelColor(5, 5).red(), 200);
    draw(file, {40, 50}, Qt::blue, "jpeg");
    EXPECT_GT(jpegPicture(file).toImage().pixelColor(5, 5).blue(), 200);
}

TEST(JpegPictures, AreNoOtherPicturesAndNoOtherFiles) {
    const TemporaryFolder folder;
    draw(folder.path() / "falsch.jpg", {30, 20}, Qt::red, "png");
    EXPECT_TRUE(jpegPicture(folder.path() / "falsch.jpg").isNull());
    folder.write(u"Text.jpg", u"\u00FF\u00D8 kein Bild");
    EXPECT_TRUE(jpegPicture(folder.path() / "Text.jpg").isNull());
    EXPECT_TRUE(jpegPicture(folder.path() / "fehlt.jpg").isNull());
}

} // namespace
} // namespace zeugnis::test
