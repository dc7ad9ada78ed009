// Every folder of tests/scenarios.
#include <algorithm>
#include <gtest/gtest.h>

#include "simulator/front/scenario.h"

struct Scenario : testing::TestWithParam<std::string> {};

TEST_P(Scenario, GoesAsWritten) { EXPECT_NO_THROW(sim::play_scenario(OSD_SCENARIO_DIR "/" + GetParam(), false)); }

INSTANTIATE_TEST_SUITE_P(Folder, Scenario, testing::Values(OSD_SCENARIOS), [](const auto& test) {
    std::string name = test.param;
    std::replace(name.begin(), name.end(), '-', '_'); // as a test may be called
    return name;
});
