// Gradients that no drawing should have: they are read, changed, saved and read again like any other.
#include "tests/unit/svg/ReadHelp.h"

#include "easel/drawing/ShapeGradient.h"
#include "easel/svg/write/ReadBack.h"

#include <ctime>

namespace {

using namespace easel::drawing;
using easel::svg::lostIn;
using easel::svg::toBytes;

constexpr const char* kStops =
    "<stop stop-color='red'/><stop offset='1' stop-color='blue' stop-opacity='.5'/>";

std::string linear(const std::string& attributes, const std::string& stops = kStops) {
    return "<linearGradient id='g' " + attributes + ">" + stops + "</linearGradient>";
}
std::string radial(const std::string& attributes, const std::string& stops = kStops) {
    return "<radialGradient id='g' " + attributes + ">" + stops + "</radialGradient>";
}

std::string manyStops(int count) {
    std::string stops;
    for (int i = 0; i < count; ++i)
        stops += "<stop offset='" + std::to_string(static_cast<double>(i) / count) + "' stop-color='#" +
                 (i % 2 == 0 ? "123" : "fed") + "' stop-opacity='." + std::to_string(i % 10) + "'/>";
    return stops;
}

// Turns the record that the shape has, or gives it one, and looks whether everything comes back.
void changeSaveAndReopen(const std::string& gradient, const std::string& shape) {
    const std::string text = svgFile("<defs>" + gradient + "</defs>" + shape);
    Drawing drawing = readOk(text);
    ASSERT_EQ(drawing.size(), 1U);
    const ShapeGradient held = shapeGradientOf(*drawing.object(0));
    for (const KGradientType type : {kLinearGradient, kRadialGradient}) {
        CGradientData record =
            gradientIn(held.record) ? gradientIn(held.record)->GetGradientData() : CGradientData();
        record.SetType(type);
        record.SetAngle(77);
        record.SetEnd({0.75, 0.25});
        giveGradient(drawing, 0, record);
        EXPECT_EQ(lostIn(toBytes(drawing), drawing.snapshot()), std::nullopt);
        EXPECT_TRUE(recordOf(readOk(toBytes(drawing))));
    }
    EXPECT_TRUE(drawing.undo() && drawing.undo());
    EXPECT_EQ(toBytes(drawing), text);
}

TEST(HostileGradient, IsChangedSavedAndReadAgain) {
    const std::string gradients[] = {
        linear("", "<stop/><stop offset='1'/>"),
        linear("", "<stop offset='.9' stop-color='red'/><stop offset='.1' stop-color='blue'/>"),
        linear("", "<stop offset='-5' stop-color='red'/><stop offset='7' stop-color='blue'/>"),
        linear("", "<stop offset='nan' stop-color='x'/><stop offset='inf' stop-opacity='nan'/>"),
        linear("", "<stop offset='1e999' stop-color='rgb(1e999,-1e999,nan)'/><stop stop-opacity='-3'/>"),
        linear("", "<stop offset='.5' stop-color='red'/>"),
        linear("", ""),
        linear("x1='nan' x2='1e400' y1='-1e308' y2='1e308'"),
        linear("x2='0'"),
        linear("gradientUnits='userSpaceOnUse' x1='1e-300' x2='2e-300'"),
        linear("gradientUnits='userSpaceOnUse' x1='-1e8' x2='1e8'"),
        linear("gradientTransform='scale(0)'"),
        linear("gradientTransform='matrix(1 2 2 4 0 0)'"),
        linear("gradientTransform='matrix(1e-200 0 0 1e-200 0 0)'"),
        linear("gradientTransform='matrix(1e200 0 0 1e-200 1e300 0)'"),
        linear("gradientTransform='matrix(nan 0 0 inf 0 0)'"),
        linear("spreadMethod='repeat' x2='1e-6'"),
        linear("spreadMethod='reflect' x2='1e-300'"),
        linear("spreadMethod='repeat' x1='1e15' x2='1000000000000001'"),
        radial("r='0'"),
        radial("r='-1'"),
        radial("r='inf'"),
        radial("r='1e300'"),
        radial("r='1e-300' spreadMethod='repeat'"),
        radial("r='1e-6' spreadMethod='reflect'"),
        radial("fx='5' fy='5'"),
        radial("fx='1' fr='.5'"),
        radial("fr='3'"),
        radial("fr='-1' r='.2'"),
        radial("fr='.2499999' r='.25' spreadMethod='repeat'"),
        radial("gradientTransform='matrix(1 1 1 1.0000000001 0 0)'"),
        radial("gradientTransform='scale(1e-9 1e9)'"),
        radial("cx='nan' cy='1e400'"),
    };
    const char* const shapes[] = {
        "<rect width='50' height='40' fill='url(#g)'/>",
        "<path d='M10 10h30z' fill='url(#g)'/>",
        "<path d='M10 10z' fill='url(#g)'/>",
        "<circle r='30' transform='matrix(1e-7 0 3 1e-7 5 5)' fill='url(#g)'/>",
        "<rect width='9' height='9' transform='scale(0)' fill='url(#g)'/>",
    };
    for (const std::string& gradient : gradients)
        for (const char* const shape : shapes) {
            SCOPED_TRACE(gradient + shape);
            changeSaveAndReopen(gradient, shape);
        }
}

TEST(HostileGradient, OfAHundredThousandStopsOrAMillionRepeatsTakesNoTimeToSpeakOf) {
    const std::clock_t begin = std::clock();
    for (const char* const spread : {"", "spreadMethod='reflect' x2='1e-6' r='1e-6'"}) {
        const std::string shape = "<rect width='50' height='40' fill='url(#g)'/>";
        changeSaveAndReopen(linear(spread, manyStops(100'000)), shape);
        changeSaveAndReopen(radial(spread, manyStops(100'000)), shape);
        changeSaveAndReopen(linear(spread, manyStops(300)), shape);
    }
    EXPECT_LT(std::clock() - begin, 60 * CLOCKS_PER_SEC);
}

} // namespace
