#include "desktop/theme.h"
#include "toolkit/high_contrast.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {

using look::contrast;

TEST(Theme, WhatHasToBeReadCanBeRead) {
    // The grounds of lines, texts and buttons on all screens.
    for (const Farbwert value :
         {0xFFFFFFU, 0x80FF80U, 0xC0FFC0U, 0xC0E0FFU, 0xC0C0FFU, 0xC0C0C0U, 0x00FFFFU, 0x0000FFU,
          0xC0FFFFU, 0xFFFFC0U, 0xFFC0FFU, 0x8080FFU}) {
        const QColor ground = theme::fromFarbwert(value, theme::colours().Surface);
        EXPECT_GE(contrast(theme::inkOn(ground), ground), 4.5) << ground.name().toStdString();
    }
    for (const Farbwert value : {0xFFFFFFU, 0x80FF80U, 0xC0FFC0U, 0xC0E0FFU, 0xC0C0FFU, 0xC0C0C0U,
                                 0x00FFFFU, 0xC0FFFFU, 0xFFFFC0U}) {
        const QColor ground = theme::fromFarbwert(value, theme::colours().Surface);
        EXPECT_GE(contrast(theme::colours().InkResting, ground), 4.5)
            << ground.name().toStdString();
    }
}

TEST(Theme, OutlinesAndTheRingOfTheFocusAreSeen) {
    for (const QColor& ground : {theme::colours().Background, theme::colours().Surface})
        EXPECT_GE(contrast(theme::colours().OutlineStrong, ground), 3.0);
    EXPECT_GE(contrast(theme::colours().Accent, Qt::white), 3.0);
}

} // namespace
} // namespace zeugnis::test
