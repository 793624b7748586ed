// Which objects hold the same gradient.
#include "tests/scenario/Player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using tests::playWithTool;

std::vector<int> resourcesOf(const std::string& script) {
    std::vector<int> numbers;
    for (const json& gradient : playWithTool(script).all("gradient"))
        numbers.push_back(gradient.is_null() ? 0 : gradient["resource"].get<int>());
    return numbers;
}

TEST(Sharing, EqualGradientsGivenByClicksAreOne) {
    EXPECT_THAT(resourcesOf(R"(
add rect a 10 10 50 50
add rect b 110 10 50 50
click 20 20
click 120 20
print object a
print object b
)"),
                testing::ElementsAre(1, 1));
}

TEST(Sharing, AnyDifferenceMakesAnother) {
    EXPECT_THAT(resourcesOf(R"(
add rect a 10 10 50 50
add rect b 110 10 50 50
add rect c 210 10 50 50
click 20 20
click 120 20
click 220 20
drag 120 20 120 40
drag 220 20 220 40
print object a
print object b
print object c
)"),
                testing::ElementsAre(1, 2, 2));
}

TEST(Sharing, NumbersStayTheSameThroughoutAScenario) {
    EXPECT_THAT(resourcesOf(R"(
add rect a 10 10 50 50
click 20 20
print object a
drag 20 20 40 40
print object a
undo
print object a
redo
print object a
undo
undo
print object a
)"),
                testing::ElementsAre(1, 2, 1, 2, 0));
}

} // namespace
