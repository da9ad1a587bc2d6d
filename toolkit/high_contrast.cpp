#include "toolkit/high_contrast.h"

#include <QPalette>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace zeugnis::look {
namespace {

constexpr double Readable = 7.0;
constexpr double BlackOnWhite = 20.0;

double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor mixed(const QColor& one, const QColor& other, double share) {
    const auto part = [share](float a, float b) {
        return static_cast<float>(a * share + b * (1 - share));
    };
    return QColor::fromRgbF(part(one.redF(), other.redF()), part(one.greenF(), other.greenF()),
                            part(one.blueF(), other.blueF()));
}

bool isHighContrast(const QPalette& system) {
    const auto pair = [&](QPalette::ColorRole ground, QPalette::ColorRole text) {
        return contrast(system.color(ground), system.color(text));
    };
    const bool isDark =
        luminance(system.color(QPalette::Window)) < luminance(system.color(QPalette::WindowText));
    return isDark || std::min({pair(QPalette::Window, QPalette::WindowText),
                               pair(QPalette::Base, QPalette::Text),
                               pair(QPalette::Button, QPalette::ButtonText)}) >= BlackOnWhite;
}

// What a colour of a style sheet is for, by its property and by what it is in the usual look.
QColor replaced(const QString& property, const QString& colour, const Colours& colours) {
    const bool isAccent = colour == u"#1F6F6B" || colour == u"#2A807B" || colour == u"#0C3B39";
    if (property == u"selection-color")
        return colours.HighlightedText;
    if (property == u"selection-background-color" || colour == u"#BFDCD9")
        return colours.Highlight;
    if (property == u"color")
        return colour == u"white"                             ? colours.HighlightedText
               : colour == u"#B3261E" || colour == u"#A3261B" ? colours.Danger
               : colour == u"#9A9790"                         ? colours.InkDisabled
               : isAccent                                     ? colours.Accent
                                                              : colours.Ink;
    if (property.contains(u"background"))
        return isAccent ? colours.Highlight
               : colour.startsWith(u"rgba") || colour == u"#A9A295" ||
                       colour == u"#8C867A" // handles of scroll bars
                   ? colours.Outline
                   : colour == u"#F6F4EF" ? colours.Background : colours.Surface;
    if (colour == u"white") // hides the sides of the arrow of a list
        return colours.Surface;
    return isAccent ? colours.Accent : colours.OutlineStrong;
}

} // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

std::optional<Colours> highContrastOf(const QPalette& system) {
    if (!isHighContrast(system))
        return std::nullopt;
    Colours colours;
    colours.HighContrast = true;
    colours.Background = system.color(QPalette::Window);
    colours.Surface = system.color(QPalette::Base);
    const auto readable = [&](const QColor& ink) {
        return contrast(ink, colours.Background) >= Readable &&
               contrast(ink, colours.Surface) >= Readable;
    };
    const bool isDark =
        luminance(colours.Background) < luminance(system.color(QPalette::WindowText));
    const QColor extreme = isDark ? Qt::white : Qt::black;
    const QColor text = system.color(QPalette::WindowText);
    colours.Ink = colours.InkFaint = colours.InkResting = readable(text) ? text : extreme;
    const QColor resting = mixed(colours.Ink, colours.Background, 0.72);
    colours.InkDisabled = readable(resting) ? resting : colours.Ink;
    colours.OutlineStrong = colours.Ink;
    colours.Outline = resting;
    const QColor chosen = system.color(QPalette::Highlight);
    const QColor onChosen = system.color(QPalette::HighlightedText);
    const bool keepsChoice = contrast(chosen, onChosen) >= Readable;
    colours.Highlight = keepsChoice ? chosen : colours.Ink;
    colours.HighlightedText = keepsChoice ? onChosen : colours.Background;
    colours.Accent = readable(chosen) ? chosen : colours.Ink;
    const QColor danger = isDark ? QColor(0xFF, 0xB4, 0xAB) : QColor(0x8C, 0x1D, 0x18);
    colours.Danger = readable(danger) ? danger : colours.Ink;
    return colours;
}

QString inHighContrast(const QString& styleSheet, const Colours& colours) {
    static const QRegularExpression rules(QStringLiteral("([a-z-]+)\\s*:([^;{}]+)"));
    static const QRegularExpression named(
        QStringLiteral("#[0-9A-Fa-f]{6}|\\bwhite\\b|rgba\\([^)]*\\)"));
    QString result;
    qsizetype done = 0;
    for (auto rule = rules.globalMatch(styleSheet); rule.hasNext();) {
        const QRegularExpressionMatch one = rule.next();
        const qsizetype from = one.capturedStart(2);
        result += QStringView(styleSheet).mid(done, from - done);
        QString value = one.captured(2);
        for (auto colour = named.match(value); colour.hasMatch();) {
            const QString name =
                replaced(one.captured(1),
                         colour.captured().startsWith(u'#') ? colour.captured().toUpper()
                                                            : colour.captured(),
                         colours)
                    .name();
            value.replace(colour.capturedStart(), colour.capturedLength(), name);
            colour = named.match(value, colour.capturedStart() + name.size());
        }
        result += value;
        done = one.capturedEnd(2);
    }
    result += QStringView(styleSheet).mid(done);
    return result;
}

} // namespace zeugnis::look
