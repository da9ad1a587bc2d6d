#include "desktop/theme.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace zeugnis::test {
namespace {

double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

TEST(Theme, WhatHasToBeReadCanBeRead) {
    // The grounds of lines, texts and buttons on all screens.
    for (const Farbwert value :
         {0xFFFFFFU, 0x80FF80U, 0xC0FFC0U, 0xC0E0FFU, 0xC0C0FFU, 0xC0C0C0U, 0x00FFFFU, 0x0000FFU,
          0xC0FFFFU, 0xFFFFC0U, 0xFFC0FFU, 0x8080FFU}) {
        const QColor ground = theme::fromFarbwert(value, theme::Surface);
        EXPECT_GE(contrast(theme::inkOn(ground), ground), 4.5) << ground.name().toStdString();
    }
    for (const Farbwert value : {0xFFFFFFU, 0x80FF80U, 0xC0FFC0U, 0xC0E0FFU, 0xC0C0FFU, 0xC0C0C0U,
                                 0x00FFFFU, 0xC0FFFFU, 0xFFFFC0U}) {
        const QColor ground = theme::fromFarbwert(value, theme::Surface);
        EXPECT_GE(contrast(theme::InkResting, ground), 4.5) << ground.name().toStdString();
    }
}

TEST(Theme, OutlinesAndTheRingOfTheFocusAreSeen) {
    for (const QColor& ground : {theme::Background, theme::Surface})
        EXPECT_GE(contrast(theme::OutlineStrong, ground), 3.0);
    EXPECT_GE(contrast(theme::Accent, Qt::white), 3.0);
}

} // namespace
} // namespace zeugnis::test
