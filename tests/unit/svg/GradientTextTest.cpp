// The elements of gradients that no shape gives a geometry: viewers are shown the colors at least.
#include "easel/svg/write/GradientText.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using namespace easel::drawing;
using easel::svg::GradientBlock;
using testing::HasSubstr;

// The stops as they are written for circles around a point that is nowhere.
std::string textOfStops(const std::list<CGradientColor>& stops) {
    CGradientData record;
    record.SetType(kRadialGradient);
    record.SetStart({std::numeric_limits<double>::infinity(), 0.5});
    record.SetEnd(record.Start());
    record.ColorList() = stops;
    Object object;
    object.outline = rectanglePath({0, 0, 9, 9});
    object.fillPattern = FillPattern::SolidBlack;
    object.setGradient(ObjectGradient(new CGradient(record)));
    GradientBlock gradients({}, {});
    gradients.addRecord(object);
    return gradients.text("");
}

TEST(GradientText, WithoutAGeometryHasStopsBetweenTheEnds) {
    const RGBColor red{65535, 0, 0};
    const RGBColor lime{0, 65535, 0};
    const RGBColor blue{0, 0, 65535};
    EXPECT_THAT(textOfStops({{red, -0.5}, {lime, 0.25}, {blue, 1.5}}),
                HasSubstr("><stop offset=\"0\" stop-color=\"#ff0000\"/>"
                          "<stop offset=\"0.25\" stop-color=\"#00ff00\"/>"
                          "<stop offset=\"1\" stop-color=\"#0000ff\"/></"));
    EXPECT_THAT(textOfStops({{red, 0}, {blue, 1}}),
                HasSubstr("><stop offset=\"0\" stop-color=\"#ff0000\"/>"
                          "<stop offset=\"1\" stop-color=\"#0000ff\"/></"));
}

TEST(GradientText, WithoutAGeometryGoesAlongTheFirstUnit) {
    EXPECT_THAT(textOfStops({{RGBColor{65535, 0, 0}, 0}}), HasSubstr(R"( x1="0" y1="0" x2="1" y2="0")"));
}

TEST(GradientText, WithoutAGeometryHasAStopOfNoPositionAtTheBeginning) {
    EXPECT_THAT(textOfStops({{RGBColor{65535, 0, 0}, std::numeric_limits<double>::quiet_NaN()}}),
                HasSubstr("><stop offset=\"0\" stop-color=\"#ff0000\"/></"));
}

} // namespace
