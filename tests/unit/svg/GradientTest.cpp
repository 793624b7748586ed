// Gradients of files: which become records, which records, and which stay as they are.
#include "tests/unit/svg/ReadHelp.h"

#include "easel/drawing/GradientDescription.h"
#include "easel/drawing/GradientFit.h"
#include "easel/drawing/ShapeGradient.h"
#include "easel/drawing/StandardGradient.h"
#include "easel/svg/text/RecordText.h"

#include <cmath>
#include <limits>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace easel::drawing;

const char* const kStops = "<stop stop-color='red'/><stop offset='1' stop-color='blue'/>";

Drawing gradientRect(const std::string& gradient,
                     const std::string& rect = "x='10' y='20' width='80' height='40'") {
    return readOk(svgFile("<defs>" + gradient + "</defs><rect " + rect + " fill='url(#g)'/>"));
}

const Gradient* foreignOf(const Drawing& drawing) {
    const auto* const fill = std::get_if<GradientPtr>(&drawing.object(0)->fill);
    return fill ? fill->get() : nullptr;
}

// The parameter of a standard gradient at a point, from the definition in its own space.
double parameterAt(const Gradient& gradient, Point p) {
    const Point q = gradient.toDrawing.inverse()(p);
    if (const auto* const line = std::get_if<LinearGeometry>(&gradient.geometry)) {
        const Point along = line->end - line->start;
        return dot(q - line->start, along) / dot(along, along);
    }
    const auto& c = std::get<RadialGeometry>(gradient.geometry);
    // The largest t whose circle passes through the point: |q - f - t (c - f)| = fr + t (r - fr).
    const Point d = c.centre - c.focus;
    const Point e = q - c.focus;
    const double dr = c.radius - c.focusRadius;
    const double A = dot(d, d) - dr * dr;
    const double B = dot(e, d) + c.focusRadius * dr;
    const double C = dot(e, e) - c.focusRadius * c.focusRadius;
    if (std::abs(A) < 1e-15)
        return C / (2 * B);
    const double root = std::sqrt(B * B - A * C);
    return std::max((B + root) / A, (B - root) / A);
}

double redAt(const std::vector<RampStop>& stops, double t) {
    if (t <= stops.front().position)
        return stops.front().color.red;
    for (std::size_t i = 1; i < stops.size(); ++i)
        if (t < stops[i].position) {
            const double u = (t - stops[i - 1].position) / (stops[i].position - stops[i - 1].position);
            return stops[i - 1].color.red +
                   u * (static_cast<double>(stops[i].color.red) - stops[i - 1].color.red);
        }
    return stops.back().color.red;
}

// The record, fitted and completed, has the gradient's colors all over the outline.
void expectSameColors(const Gradient& gradient, const CGradientData& record, const Path& outline) {
    const auto standard = standardGradient(record, nullptr, outline);
    ASSERT_TRUE(standard);
    const Box box = outline.bounds();
    for (int i = 0; i <= 20; ++i)
        for (int k = 0; k <= 20; ++k) {
            const Point p{box.left + box.width() * (i + 0.01) / 20.02,
                          box.top + box.height() * (k + 0.01) / 20.02};
            if (!contains(outline, FillRule::NonZero, p))
                continue;
            ASSERT_NEAR(redAt(gradient.ramp.stops(), parameterAt(gradient, p)),
                        redAt(standard->ramp.stops(), parameterAt(*standard, p)), 4)
                << p.x << ' ' << p.y;
        }
}

TEST(SvgGradient, ABoundingBoxGradientFromLeftToRightIsTheRecordWithAngleZero) {
    const Drawing drawing =
        gradientRect(std::string("<linearGradient id='g'>") + kStops + "</linearGradient>");
    const CGradientData* const record = recordOf(drawing);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->Type(), kLinearGradient);
    EXPECT_EQ(record->Angle(), 0);
    ASSERT_EQ(record->ColorList().size(), 2U);
    EXPECT_EQ(record->ColorList().front().Percent(), 0);
    EXPECT_EQ(record->ColorList().front().ColorRGB(), (RGBColor{65535, 0, 0}));
    EXPECT_EQ(record->ColorList().back().Percent(), 1);
    EXPECT_EQ(drawing.object(0)->fillPattern, FillPattern::SolidBlack);
}

TEST(SvgGradient, AGradientDownwardsHasTheAngleThatDraggingDownGives) {
    const Drawing drawing =
        gradientRect(std::string("<linearGradient id='g' x2='0' y2='1'>") + kStops + "</linearGradient>");
    // A line downwards has the angle 90, and the tool negates it.
    EXPECT_EQ(recordOf(drawing)->Angle(), -90);
}

TEST(SvgGradient, StopsMoveToWhereTheyLieOnTheFittedLine) {
    const Drawing drawing =
        gradientRect(std::string("<linearGradient id='g' gradientUnits='userSpaceOnUse' x1='30' x2='70'>") +
                     kStops + "</linearGradient>");
    const auto& stops = recordOf(drawing)->ColorList();
    EXPECT_NEAR(stops.front().Percent(), 0.25, 1e-12);
    EXPECT_NEAR(stops.back().Percent(), 0.75, 1e-12);
}

TEST(SvgGradient, ARampThatReachesBeyondTheShapeIsCutAtItsEdges) {
    const Drawing drawing =
        gradientRect(std::string("<linearGradient id='g' gradientUnits='userSpaceOnUse' x1='-70' x2='170'>") +
                     kStops + "</linearGradient>");
    const auto& stops = recordOf(drawing)->ColorList();
    EXPECT_EQ(stops.front().Percent(), 0);
    EXPECT_EQ(stops.front().ColorRGB(), (RGBColor{43690, 0, 21845}));
    EXPECT_EQ(stops.back().Percent(), 1);
    EXPECT_EQ(stops.back().ColorRGB(), (RGBColor{21845, 0, 43690}));
}

TEST(SvgGradient, AnyOpaqueLinearGradientLooksTheSameAsARecord) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> number(-100, 100);
    std::uniform_real_distribution<double> shear(-2, 2);
    for (int round = 0; round < 200; ++round) {
        Gradient gradient;
        gradient.geometry =
            LinearGeometry{{number(random), number(random)}, {number(random), number(random)}};
        gradient.toDrawing = {shear(random), shear(random),  shear(random),
                              shear(random), number(random), number(random)};
        if (std::abs(gradient.toDrawing.determinant()) < 0.05)
            continue;
        gradient.ramp = Ramp({{0.1, {65535, 0, 0}, 1}, {0.4, {0, 0, 0}, 1}, {0.9, {40000, 0, 0}, 1}});
        const Path outline = polygonPath({{0, 0}, {90, number(random)}, {number(random), 80}});
        const GradientDescription description = describe(gradient, outline);
        EXPECT_EQ(description.loss, Loss::None);
        EXPECT_TRUE(description.remainder.empty());
        expectSameColors(gradient, description.record, outline);
    }
}

TEST(SvgGradient, CircularGradientsWithFocusAndInnerRadiusLookTheSameAsRecords) {
    std::mt19937 random(4);
    std::uniform_real_distribution<double> number(0, 100);
    std::uniform_real_distribution<double> share(-0.5, 0.5);
    for (int round = 0; round < 200; ++round) {
        RadialGeometry circles;
        circles.centre = {number(random), number(random)};
        circles.radius = 20 + number(random);
        circles.focusRadius = round % 2 == 0 ? 0 : circles.radius * 0.2;
        circles.focus = circles.centre;
        if (round % 3 != 0)
            circles.focus = circles.centre + Point{share(random), share(random)} * circles.radius;
        Gradient gradient;
        gradient.geometry = circles;
        gradient.toDrawing =
            Affine::translation(5, 6) * Affine::rotation(number(random)) * Affine::scaling(1.5, -1.5);
        gradient.ramp = Ramp({{0, {65535, 0, 0}, 1}, {0.4, {0, 0, 0}, 1}, {1, {40000, 0, 0}, 1}});
        const Path outline = rectanglePath({0, 0, 40 + number(random), 90});
        const GradientDescription description = describe(gradient, outline);
        EXPECT_EQ(description.loss, Loss::None);
        EXPECT_TRUE(description.remainder.empty());
        expectSameColors(gradient, description.record, outline);
    }
}

TEST(SvgGradient, WhatARecordAloneCannotHoldStaysAsTheFileSaysAndHasARecordAllTheSame) {
    for (const char* gradient :
         {"<linearGradient id='g'><stop stop-opacity='.5'/><stop offset='1'/></linearGradient>",
          "<linearGradient id='g' x2='.1' spreadMethod='repeat'><stop/><stop offset='1'/></linearGradient>",
          "<radialGradient id='g'><stop/><stop offset='1'/></radialGradient>"}) {
        const Drawing drawing = gradientRect(gradient);
        EXPECT_FALSE(recordOf(drawing)) << gradient;
        EXPECT_TRUE(foreignOf(drawing)) << gradient;
        EXPECT_EQ(drawing.object(0)->fillPattern, FillPattern::SolidBlack);
        const ShapeGradient held = shapeGradientOf(*drawing.object(0));
        EXPECT_TRUE(gradientIn(held.record)) << gradient;
        EXPECT_EQ(held.loss, Loss::None) << gradient;
    }
}

TEST(SvgGradient, AttributesAndStopsAreTakenOverAlongReferences) {
    const Drawing drawing = gradientRect(
        "<radialGradient id='g' xlink:href='#b' cx='40' r='20' fr='2'/>"
        "<linearGradient id='b' href='#c' gradientUnits='userSpaceOnUse' x1='3' spreadMethod='reflect'/>"
        "<radialGradient id='c' cy='30' fx='41'><stop stop-opacity='.5'/><stop offset='.8'/><stop "
        "offset='.2'/></radialGradient>");
    const Gradient* const gradient = foreignOf(drawing);
    ASSERT_TRUE(gradient);
    EXPECT_EQ(std::get<RadialGeometry>(gradient->geometry), (RadialGeometry{{41, 30}, 2, {40, 30}, 20}));
    EXPECT_EQ(gradient->spread, Spread::Reflect);
    ASSERT_EQ(gradient->ramp.stops().size(), 3U);
    EXPECT_EQ(gradient->ramp.stops()[2].position, 0.8) << "an offset never goes back";
}

TEST(SvgGradient, ShapesGetTheFirstElementWithTheirIdInWhateverOrderTheyAskForThem) {
    constexpr std::uint16_t kElements = 200;
    std::mt19937 random(5);
    std::uniform_int_distribution<int> anyId(0, kElements / 2); // so that many stand twice
    std::map<int, std::uint16_t> first;                         // red of the first element with an id
    std::string gradients;
    for (std::uint16_t i = 0; i < kElements; ++i) {
        const int id = anyId(random);
        first.try_emplace(id, i);
        gradients += "<linearGradient id='g" + std::to_string(id) + "'><stop stop-color='rgb(" +
                     std::to_string(i) + ",0,0)'/><stop offset='1' stop-color='blue'/></linearGradient>";
    }
    std::vector<int> asked;
    for (const auto& [id, red] : first)
        asked.push_back(id); // in order
    for (int i = 0; i < 1000; ++i)
        asked.push_back(anyId(random) + i % 2); // in none; some ids are not there
    std::string shapes;
    for (const int id : asked)
        shapes += "<rect width='50' height='50' fill='url(#g" + std::to_string(id) + ")'/>";
    const Drawing drawing = readOk(svgFile(gradients + shapes));
    ASSERT_EQ(drawing.size(), asked.size());
    for (std::size_t i = 0; i < asked.size(); ++i) {
        const CGradientData* const record = recordOf(drawing, i);
        const auto known = first.find(asked[i]);
        ASSERT_EQ(record != nullptr, known != first.end()) << asked[i];
        if (!record)
            continue;
        ASSERT_EQ(record->ColorList().front().ColorRGB().red, known->second * 257) << asked[i];
    }
}

TEST(SvgGradient, AnEmptyIdIsNotWhatGradientsWithoutReferenceReferTo) {
    const Drawing drawing =
        readOk(svgFile("<radialGradient id='' spreadMethod='reflect'>" + std::string(kStops) +
                       "</radialGradient><linearGradient id='g'/>"
                       "<rect width='50' height='50' fill='url(#g)'/>"));
    EXPECT_FALSE(recordOf(drawing));
    EXPECT_TRUE(std::holds_alternative<NoPaint>(drawing.object(0)->fill)); // without stops
}

TEST(SvgGradient, GradientsWithoutExtentShowOneColor) {
    const auto colorOf = [](const std::string& gradient) {
        return std::get<ColorPaint>(gradientRect(gradient).object(0)->fill).color;
    };
    const Rgb16 blue{0, 0, 65535};
    EXPECT_EQ(colorOf(std::string("<linearGradient id='g' x2='0'>") + kStops + "</linearGradient>"), blue);
    EXPECT_EQ(colorOf(std::string("<radialGradient id='g' r='0'>") + kStops + "</radialGradient>"), blue);
    EXPECT_EQ(colorOf("<linearGradient id='g'><stop stop-color='blue'/></linearGradient>"), blue);
}

TEST(SvgGradient, ARecordAsTextReadsBackExactlyWhateverItsNumbers) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    CGradientData record;
    record.SetType(static_cast<KGradientType>(7));
    record.SetAngle(0.1F);
    record.SetStart({1.0 / 3, -kInfinity});
    record.SetEnd({std::numeric_limits<double>::quiet_NaN(), 1e-300});
    record.SetStartRadius(2.5F);
    record.SetEndRadius(std::numeric_limits<float>::infinity());
    record.ColorList() = {{{1, 2, 3}, -0.25}, {{65535, 0, 9}, 0.1}, {{4, 5, 6}, 1.5}};
    const auto back = easel::svg::parseRecord(easel::svg::recordText(record));
    ASSERT_TRUE(back);
    EXPECT_EQ(back->Type(), record.Type());
    EXPECT_EQ(back->Angle(), record.Angle());
    EXPECT_EQ(back->Start(), record.Start());
    EXPECT_TRUE(std::isnan(back->End().h));
    EXPECT_EQ(back->End().v, 1e-300);
    EXPECT_EQ(back->EndRadius(), record.EndRadius());
    EXPECT_EQ(easel::svg::recordText(*back), easel::svg::recordText(record));
    for (const char* damaged :
         {"", "1", "1 0 0 0 0 0 0 0", "1 0 0 0 0 0 0 0;2 3", "1 0 0 0 0 0 0 0;0 1 2 70000"})
        EXPECT_FALSE(easel::svg::parseRecord(damaged)) << damaged;
}

TEST(SvgGradient, AWrittenRecordCountsOnlyAsLongAsTheGradientBesideItTellsTheSame) {
    const auto file = [](const char* x2) {
        return std::string(
                   "<linearGradient id='g' gradientUnits='userSpaceOnUse' x1='10' y1='40' y2='40' x2='") +
               x2 + "' data-easel-record='1 0 0.25 0.5 0.5 0.5 3 4;0 65535 0 0;1 0 0 65535'>" + kStops +
               "</linearGradient>";
    };
    EXPECT_EQ(recordOf(gradientRect(file("90")))->Start().h, 0.25);
    const Drawing moved = gradientRect(file("50"));
    EXPECT_EQ(recordOf(moved)->Start().h, 0.5);
    EXPECT_NEAR(recordOf(moved)->ColorList().back().Percent(), 0.5, 1e-12);
}

} // namespace
