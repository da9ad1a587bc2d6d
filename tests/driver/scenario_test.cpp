// Every script of tests/scenarios on the control model.

#include "driver/model_hand.h"
#include "tests/driver/scenario.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {

int playOnTheModel(std::istream& commands, std::ostream& out,
                   const driver::Surroundings& surroundings) {
    driver::DialogScript script(out);
    driver::ModelHand hand(script);
    driver::Driver driver(out, surroundings, script, hand);
    return driver.run(commands);
}

class Scenario : public testing::TestWithParam<std::string> {};

TEST_P(Scenario, PrintsAndLeavesWhatIsExpected) { playScenario(GetParam(), playOnTheModel); }

INSTANTIATE_TEST_SUITE_P(Scripts, Scenario, testing::ValuesIn(scenariosIn()),
                         [](const auto& one) { return one.param; });

} // namespace
} // namespace zeugnis::test
