// Takes pictures of all windows, page by page: window_pictures FOLDER WIDTHxHEIGHT [FONT [PART]]
// The size is that of a window without its frame; FONT is per cent. With "long" in front of the
// size all text modules are as long as they may get.

#include "tests/layout/every_window.h"
#include "tests/layout/large_display.h"

#include <QDir>
#include <QPixmap>
#include <QWidget>

#include <cstdio>

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "window_pictures FOLDER [long]WIDTHxHEIGHT [FONT [PART]]\n");
        return 2;
    }
    const zeugnis::test::LargeDisplay display;
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    QString size = QString::fromLatin1(argv[2]);
    const bool longTexts = size.startsWith(QStringLiteral("long"));
    const QStringList sides = size.remove(QStringLiteral("long")).split(u'x');
    const QSize wished(sides.value(0).toInt(), sides.value(1).toInt());
    if (wished.isEmpty() || !folder.mkpath(QStringLiteral(".")))
        return 2;
    zeugnis::test::forEveryWindow(
        {.fontPercent = argc > 3 ? QString::fromLatin1(argv[3]).toInt() : 100,
         .longTexts = longTexts},
        [&](const zeugnis::test::Sight& sight) {
            zeugnis::test::resizeWindow(sight.window, wished);
            const QString file = QString::fromStdString(sight.name) + QStringLiteral(".png");
            if (sight.window.size() != wished)
                std::printf("%s: %dx%d\n", sight.name.c_str(), sight.window.width(),
                            sight.window.height());
            sight.window.grab().save(folder.filePath(file));
        },
        argc > 4 ? argv[4] : "");
    return 0;
}
