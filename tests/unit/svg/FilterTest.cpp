// Filters as the drawing has them, and what becomes of them when it is saved.
#include "tests/unit/svg/ReadHelp.h"

#include "easel/drawing/Filter.h"

#include <gmock/gmock.h>

#include <numeric>

namespace {

using namespace easel::drawing;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kRect = "<rect x='10' y='20' width='40' height='20' filter='url(#f)'/>";

// The filter of the only object.
std::shared_ptr<const Filter> filterOf(const std::string& filter, const std::string& object = kRect) {
    const Drawing drawing = readOk(svgFile(filter + object));
    EXPECT_THAT(drawing.notes(), IsEmpty());
    return drawing.size() == 1 && drawing.object(0)->group ? drawing.object(0)->group->filter : nullptr;
}

template <class Effect> Effect effectOf(const std::string& step, const std::string& attributes = {}) {
    const auto filter = filterOf("<filter id='f' " + attributes + ">" + step + "</filter>");
    return std::get<Effect>(filter->steps.back().effect);
}

TEST(Filters, MeasureInTheUnitsTheySay) {
    EXPECT_EQ(effectOf<BlurEffect>("<feGaussianBlur stdDeviation='3'/>").deviation, (Point{3, 3}));
    EXPECT_EQ(effectOf<BlurEffect>("<feGaussianBlur stdDeviation='3, 0'/>").deviation, (Point{3, 0}));
    EXPECT_EQ(effectOf<BlurEffect>("<feGaussianBlur stdDeviation='3 -1'/>").deviation, (Point{0, 0}));
    EXPECT_EQ(effectOf<OffsetEffect>("<feOffset dx='.5' dy='.5'/>", "primitiveUnits='objectBoundingBox'").by,
              (Point{20, 10}));
    const auto light = effectOf<LightingEffect>(
        "<feSpecularLighting specularExponent='9'><fePointLight x='.5' y='1' z='1'/></feSpecularLighting>",
        "primitiveUnits='objectBoundingBox'");
    EXPECT_EQ(light.kind, LightingEffect::Kind::Specular);
    EXPECT_EQ(light.exponent, 9);
    EXPECT_EQ(std::get<PointLight>(light.light).place.x, 30);
    EXPECT_EQ(std::get<PointLight>(light.light).place.y, 40);
    // Depths are in shares of the root of half the sum of the sides' squares.
    EXPECT_NEAR(std::get<PointLight>(light.light).place.z, std::sqrt((1600 + 400) / 2.0), 1e-9);
    const auto placed = filterOf("<filter id='f'><feFlood/></filter>",
                                 "<g transform='translate(5 7) scale(2)'>" + kRect + "</g>");
    EXPECT_EQ(placed->region, (Box{6, 18, 54, 42}));
    EXPECT_EQ(placed->bounds(), (Box{17, 43, 113, 91}));
}

TEST(Filters, TakeColorsAndColorSpacesFromStyles) {
    const auto flood = effectOf<FloodEffect>("<feFlood style='flood-color:#f00;flood-opacity:.4'/>");
    EXPECT_EQ(flood.color, (Rgb16{65535, 0, 0}));
    EXPECT_EQ(flood.opacity, 0.4);
    const auto current = effectOf<FloodEffect>("<feFlood flood-color='currentColor'/>", "color='blue'");
    EXPECT_EQ(current.color, (Rgb16{0, 0, 65535}));
    const auto linear = [](const std::string& filter, const std::string& step) {
        return filterOf("<filter id='f' " + filter + "><feOffset " + step + "/></filter>")
            ->steps.back()
            .linearLight;
    };
    EXPECT_TRUE(linear("", ""));
    EXPECT_FALSE(linear("color-interpolation-filters='sRGB'", ""));
    EXPECT_TRUE(
        linear("color-interpolation-filters='sRGB'", "style='color-interpolation-filters:linearRGB'"));
}

TEST(Filters, TakeOverFromThoseTheyReferTo) {
    const auto filter = filterOf("<filter id='a' href='#b' width='2'/><filter id='b' width='9' x='0' "
                                 "filterUnits='objectBoundingBox'><feFlood/><feOffset/></filter>",
                                 "<rect x='10' y='20' width='40' height='20' filter='url(#a)'/>");
    EXPECT_EQ(filter->steps.size(), 2U);
    EXPECT_EQ(filter->region, (Box{10, 18, 90, 42}));
    const Drawing circle = readOk(svgFile("<filter id='f' href='#g'/><filter id='g' href='#f'/>" + kRect));
    EXPECT_THAT(circle.notes(), ElementsAre(HasSubstr("lead back to themselves")));
}

TEST(Filters, OfElementsWithoutAreaAreLeftOutIfTheyAskForIt) {
    const std::string line = "<path d='M10 20H50' stroke='red' filter='url(#f)'/>";
    EXPECT_EQ(filterOf("<filter id='f'><feFlood/></filter>", line), nullptr);
    EXPECT_NE(filterOf("<filter id='f' filterUnits='userSpaceOnUse'><feFlood/></filter>", line), nullptr);
}

TEST(Filters, OfKernelsThatAreNotWholeChangeNothing) {
    const auto kernel =
        effectOf<ConvolveEffect>("<feConvolveMatrix order='2 3' kernelMatrix='1 2 3 4 5 6'/>");
    EXPECT_EQ(kernel.columns, 2);
    EXPECT_EQ(kernel.divisor, 21);
    EXPECT_EQ(kernel.targetX, 1);
    EXPECT_EQ(kernel.targetY, 1);
    for (const std::string wrong :
         {"order='2' kernelMatrix='1 2 3'", "order='0' kernelMatrix=''", "order='1e9' kernelMatrix='1'",
          "order='1' targetX='1' kernelMatrix='1'"}) {
        const auto identity = effectOf<ColorMatrixEffect>("<feConvolveMatrix " + wrong + "/>");
        EXPECT_EQ(identity.matrix,
                  (std::array<double, 20>{1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0}));
    }
}

TEST(Filters, OfMatricesKeepGrayGray) {
    for (const std::string values : {"type='saturate' values='0.3'", "type='hueRotate' values='77'"}) {
        const auto matrix = effectOf<ColorMatrixEffect>("<feColorMatrix " + values + "/>").matrix;
        for (std::size_t row = 0; row < 3; ++row)
            EXPECT_NEAR(std::accumulate(matrix.begin() + static_cast<std::ptrdiff_t>(row * 5),
                                        matrix.begin() + static_cast<std::ptrdiff_t>(row * 5 + 3), 0.0),
                        1, 1e-9)
                << values;
    }
}

TEST(Filters, ChangesInsideThemAreSmallAndTheRestStays) {
    const std::string text = svgFile(
        "<filter id='f'><feGaussianBlur stdDeviation='2'/></filter><g filter='url(#f) drop-shadow(1px 2px)'>"
        "<rect id='r' width='9' height='9' fill='red'/><path d='M0 0H9V9' "
        "style='filter:blur(1px);opacity:.5'/></g>");
    Drawing drawing = readOk(text);
    EXPECT_EQ(easel::svg::toBytes(drawing), text);
    CGradientData record;
    giveGradient(drawing, 0, record);
    giveGradient(drawing, 1, record);
    const std::string saved = easel::svg::toBytes(drawing);
    EXPECT_THAT(saved, HasSubstr("<g filter='url(#f) drop-shadow(1px 2px)'>"));
    EXPECT_THAT(saved, HasSubstr("filter:blur(1px);opacity:.5"));
    const Drawing again = readOk(saved);
    ASSERT_EQ(again.size(), 2U);
    EXPECT_TRUE(recordOf(again, 1));
    EXPECT_EQ(again.object(1)->group->opacity, 0.5);
    EXPECT_TRUE(again.object(1)->group->filter);
    EXPECT_EQ(again.object(1)->group->depth, 3U);
}

} // namespace
