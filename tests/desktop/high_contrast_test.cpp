#include "desktop/theme.h"
#include "tests/desktop/every_window.h"
#include "toolkit/high_contrast.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPlainTextEdit>

#include <map>

namespace zeugnis::test {
namespace {

QPalette systemOf(const QColor& ground, const QColor& ink) {
    QPalette system;
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
        system.setColor(role, ground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        system.setColor(role, ink);
    system.setColor(QPalette::Highlight, QColor(0x1A, 0xEB, 0xFF));
    system.setColor(QPalette::HighlightedText, Qt::black);
    return system;
}

bool showsText(const QWidget& widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return !button->text().isEmpty();
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return !label->text().trimmed().isEmpty();
    const auto* text = qobject_cast<const QPlainTextEdit*>(&widget);
    return text != nullptr && !text->toPlainText().isEmpty();
}

// The ground is what there is most of; the ink is what differs most from it.
void expectReadable(const QWidget& widget, const QImage& window, const QColor& ground) {
    // What is scrolled out of sight is not in the picture.
    if (widget.visibleRegion().boundingRect() != widget.rect())
        return;
    const int border = qobject_cast<const QLabel*>(&widget) != nullptr ? 0 : 6;
    const QRect inner(widget.mapTo(widget.window(), QPoint(border, 2)),
                      widget.size() - QSize(2 * border, 4));
    std::map<QRgb, int> colours;
    for (int y = inner.top(); y <= inner.bottom(); ++y)
        for (int x = inner.left(); x <= inner.right(); ++x)
            if (window.rect().contains(x, y))
                ++colours[window.pixel(x, y)];
    if (colours.empty())
        return;
    const auto most = std::max_element(colours.begin(), colours.end(),
                                       [](auto& a, auto& b) { return a.second < b.second; });
    double ink = 1;
    for (const auto& [colour, count] : colours)
        ink = std::max(ink, look::contrast(QColor(colour), QColor(most->first)));
    const std::string name =
        widget.metaObject()->className() +
        (" " + widget.accessibleName() + widget.property("text").toString()).toStdString();
    EXPECT_GE(ink, 7.0) << name;
    EXPECT_LT(look::contrast(QColor(most->first), ground), 1.5)
        << name << " has a ground of its own";
}

TEST(HighContrast, AllTextsOfAllWindowsCanBeRead) {
    for (const auto& [ground, ink] : {std::pair(QColor(Qt::black), QColor(Qt::white)),
                                      std::pair(QColor(Qt::white), QColor(Qt::black))}) {
        theme::apply(*qApp, systemOf(ground, ink));
        ASSERT_TRUE(theme::colours().HighContrast);
        for (const WindowState& state : everyWindow()) {
            SCOPED_TRACE(state.name);
            OpenWindow open(state);
            for (const TextView click : state.clicks)
                open.click(click);
            const QImage window = open.window().grab().toImage();
            for (const auto* widget : open.window().findChildren<QWidget*>())
                if (widget->isVisible() && widget->window() == &open.window() &&
                    !widget->visibleRegion().isEmpty() && showsText(*widget))
                    expectReadable(*widget, window, ground);
        }
    }
    theme::apply(*qApp, QPalette(QColor(0xEF, 0xEF, 0xEF)));
}

TEST(HighContrast, OfUsualSystemsIsNone) {
    QPalette usual = systemOf(Qt::white, Qt::black);
    usual.setColor(QPalette::Window, QColor(0xF0, 0xF0, 0xF0));
    EXPECT_FALSE(look::highContrastOf(usual));
    EXPECT_TRUE(look::highContrastOf(systemOf(QColor(0x2A, 0x2E, 0x32), QColor(0xFC, 0xFC, 0xFC))));
}

TEST(HighContrast, PairsOfTheSystemThatCannotBeReadAreMended) {
    QPalette weak = systemOf(Qt::black, QColor(0x80, 0x80, 0x80));
    weak.setColor(QPalette::HighlightedText, Qt::white);
    const look::Colours mended = *look::highContrastOf(weak);
    EXPECT_GE(look::contrast(mended.Ink, mended.Background), 7.0);
    EXPECT_GE(look::contrast(mended.HighlightedText, mended.Highlight), 7.0);
    EXPECT_GE(look::contrast(mended.Danger, mended.Surface), 7.0);
    EXPECT_GE(look::contrast(mended.InkDisabled, mended.Surface), 7.0);
}

} // namespace
} // namespace zeugnis::test
