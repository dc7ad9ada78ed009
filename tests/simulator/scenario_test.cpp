// Every folder of tests/scenarios.
#include <gtest/gtest.h>
#include <regex>

#include "simulator/front/scenario.h"

struct Scenario : testing::TestWithParam<std::string> {};

TEST_P(Scenario, GoesAsWritten) { EXPECT_NO_THROW(sim::play_scenario(OSD_SCENARIO_DIR "/" + GetParam(), false)); }

INSTANTIATE_TEST_SUITE_P(Folder, Scenario, testing::Values(OSD_SCENARIOS),
                         [](const auto& test) { return std::regex_replace(test.param, std::regex("-"), "_"); });
