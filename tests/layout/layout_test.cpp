// All windows, page by page, on the smallest displays: nothing is cut, and all can be reached.

#include "tests/layout/faults_of_layout.h"
#include "tests/layout/large_display.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace zeugnis::test {
namespace {

// The smallest display there is, 1920 x 1080 at 150 %, and 1366 x 768; without the task bar.
const QSize Displays[] = {{1024, 640}, {1280, 672}, {1366, 728}};
constexpr QSize Frame(16, 40);

class LayoutTest : public testing::TestWithParam<Content> {};

TEST_P(LayoutTest, ShowsAllWindowsWhole) {
    int sights = 0;
    forEveryWindow(GetParam(), [&](const Sight& sight) {
        ++sights;
        sight.window.setUpdatesEnabled(false);
        for (const QSize display : Displays) {
            const QSize size = display - Frame;
            resizeWindow(sight.window, size);
            const std::string where = sight.name + " at " + std::to_string(display.width()) + ": ";
            EXPECT_EQ(sight.window.width(), size.width()) << where;
            EXPECT_EQ(sight.window.height(), size.height()) << where;
            for (const std::string& fault : faultsOfLayout(sight))
                ADD_FAILURE() << where << fault;
        }
    });
    EXPECT_GE(sights, 80);
}

INSTANTIATE_TEST_SUITE_P(, LayoutTest,
                         testing::Values(Content{100, false}, Content{150, false},
                                         Content{100, true}, Content{150, true}),
                         [](const auto& one) {
                             return "FontOf" + std::to_string(one.param.fontPercent) +
                                    (one.param.longTexts ? "LongTexts" : "DeliveredTexts");
                         });

} // namespace
} // namespace zeugnis::test

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const zeugnis::test::LargeDisplay display;
    return RUN_ALL_TESTS();
}
