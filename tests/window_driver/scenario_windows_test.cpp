// Every script of tests/scenarios in the real windows, and the scripts that only a hand can play.

#include "tests/driver/scenario.h"
#include "tests/window_driver/random_road.h"
#include "tests/window_driver/stage.h"
#include "tests/window_driver/window_hand.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace zeugnis::test {
namespace {

// The scripts that cannot be played by hand. The reasons stand in README.md beside this file.
constexpr std::array<std::string_view, 1> OnlyOnTheModel = {"kompetenzen_namensliste_getippt"};

int playInWindows(std::istream& commands, std::ostream& out,
                  const driver::Surroundings& surroundings) {
    return windowdriver::Stage::play([&] {
        driver::DialogScript script(out);
        windowdriver::WindowHand hand(out, script);
        driver::Driver driver(out, surroundings, script, hand);
        return driver.run(commands);
    });
}

std::vector<std::string> playable() {
    std::vector<std::string> names = scenariosIn();
    std::erase_if(names, [](const std::string& name) {
        return std::find(OnlyOnTheModel.begin(), OnlyOnTheModel.end(), name) !=
               OnlyOnTheModel.end();
    });
    return names;
}

std::string lastPart(const std::string& name) { return name.substr(name.rfind('/') + 1); }

class WindowScenario : public testing::TestWithParam<std::string> {};

TEST_P(WindowScenario, PrintsAndLeavesWhatIsExpected) { playScenario(GetParam(), playInWindows); }

INSTANTIATE_TEST_SUITE_P(Scripts, WindowScenario, testing::ValuesIn(playable()),
                         [](const auto& one) { return one.param; });
INSTANTIATE_TEST_SUITE_P(ByHand, WindowScenario, testing::ValuesIn(scenariosIn("windows")),
                         [](const auto& one) { return lastPart(one.param); });

TEST(RandomRoads, AreTheSameInBothDrivers) {
    constexpr unsigned Roads = 8;
    for (unsigned seed = 1; seed <= Roads; ++seed)
        EXPECT_EQ(windowdriver::differenceOnRandomRoad(seed, 60), "") << "seed " << seed;
}

} // namespace
} // namespace zeugnis::test

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const zeugnis::windowdriver::Stage stage;
    return RUN_ALL_TESTS();
}
