// Any gradient on any shape, described as record and remainder, must look as its definition says.
#include "easel/drawing/GradientDescription.h"

#include "easel/drawing/GradientFit.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

namespace {

using namespace easel::drawing;

class Dice {
  public:
    explicit Dice(unsigned seed) : random_(seed) {}
    double number(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }
    Point point(double reach) { return {number(-reach, reach), number(-reach, reach)}; }

  private:
    std::mt19937 random_;
};

// The definition: the parameter of a point in the gradient's own space.
double parameterOf(const LinearGeometry& line, Point p) {
    const Point along = line.end - line.start;
    return dot(p - line.start, along) / dot(along, along);
}

// The largest t with |p - f - t (c - f)| = fr + t (r - fr), found by halving: the circle of parameter t holds
// the point from some t on, since the focus lies inside.
double parameterOf(const RadialGeometry& circles, Point p) {
    const auto holds = [&](double t) {
        const Point centre = circles.focus + (circles.centre - circles.focus) * t;
        return length(p - centre) <= circles.focusRadius + t * (circles.radius - circles.focusRadius);
    };
    double low = -circles.focusRadius / (circles.radius - circles.focusRadius);
    double high = 1;
    while (!holds(high))
        high = high * 2 + 1;
    for (int i = 0; i < 200; ++i) {
        const double middle = (low + high) / 2;
        (holds(middle) ? high : low) = middle;
    }
    return high;
}

double positionOf(double t, Spread spread) {
    if (spread == Spread::Repeat)
        return t - std::floor(t);
    if (spread == Spread::Reflect)
        return std::abs(t - 2 * std::round(t / 2));
    return t;
}

using Color = std::array<double, 4>; // levels 0 to 255 and opacity in the same scale

Color colorOfStop(const RampStop& stop) {
    return {stop.color.red / 257.0, stop.color.green / 257.0, stop.color.blue / 257.0, stop.opacity * 255};
}

Color colorAt(const std::vector<RampStop>& stops, double t) {
    if (t < stops.front().position)
        return colorOfStop(stops.front());
    for (std::size_t i = 1; i < stops.size(); ++i) {
        if (t >= stops[i].position)
            continue;
        const Color low = colorOfStop(stops[i - 1]);
        const Color high = colorOfStop(stops[i]);
        const double part = (t - stops[i - 1].position) / (stops[i].position - stops[i - 1].position);
        Color color;
        for (std::size_t k = 0; k < color.size(); ++k)
            color[k] = low[k] + (high[k] - low[k]) * part;
        return color;
    }
    return colorOfStop(stops.back());
}

Color seen(const Gradient& gradient, Point p) {
    const Point own = gradient.toDrawing.inverse()(p);
    const double t =
        std::visit([&](const auto& geometry) { return parameterOf(geometry, own); }, gradient.geometry);
    return colorAt(gradient.ramp.stops(), positionOf(t, gradient.spread));
}

Ramp anyRamp(Dice& dice) {
    std::vector<RampStop> stops;
    double position = dice.upTo(1) == 0 ? 0 : dice.number(0, 0.3);
    const int count = 2 + dice.upTo(4);
    for (int i = 0; i < count; ++i) {
        const auto channel = [&] { return static_cast<std::uint16_t>(dice.upTo(65535)); };
        stops.push_back(
            {position, {channel(), channel(), channel()}, dice.upTo(2) == 0 ? 1 : dice.number(0, 1)});
        // Now and then a hard step.
        if (dice.upTo(3) != 0)
            position = std::min(1.0, position + dice.number(0.05, 0.5));
    }
    return Ramp(std::move(stops));
}

Affine anyMap(Dice& dice) {
    for (;;) {
        const Affine map{dice.number(-2, 2), dice.number(-2, 2), dice.number(-2, 2),
                         dice.number(-2, 2), dice.number(-9, 9), dice.number(-9, 9)};
        if (std::abs(map.determinant()) > 0.1)
            return map;
    }
}

Path anyShape(Dice& dice) {
    const Point at = dice.point(50);
    if (dice.upTo(1) == 0)
        return rectanglePath({at.x, at.y, at.x + dice.number(5, 90), at.y + dice.number(5, 90)});
    std::vector<Point> corners;
    for (int i = 0; i < 6; ++i)
        corners.push_back(at + dice.point(60));
    return polygonPath(corners);
}

Gradient anyGradient(Dice& dice) {
    GradientGeometry geometry = LinearGeometry{dice.point(30), dice.point(30)};
    if (dice.upTo(1) == 0) {
        RadialGeometry circles;
        circles.centre = dice.point(30);
        circles.radius = dice.number(5, 60);
        circles.focusRadius = dice.upTo(2) == 0 ? dice.number(0, 0.4) * circles.radius : 0;
        const double angle = dice.number(0, 6.3);
        const double away =
            dice.upTo(1) == 0 ? 0 : dice.number(0, 0.95) * (circles.radius - circles.focusRadius);
        circles.focus = circles.centre + Point{std::cos(angle), std::sin(angle)} * away;
        geometry = circles;
    }
    return {geometry, anyMap(dice), static_cast<Spread>(dice.upTo(2)), anyRamp(dice)};
}

// The largest difference in levels over the shape, but for the few points that lie on a step.
double largestDifference(const Gradient& gradient, const Gradient& other, const Path& shape, int& onSteps) {
    const Box box = shape.bounds();
    double largest = 0;
    constexpr int kPoints = 30;
    for (int i = 0; i < kPoints; ++i) {
        for (int k = 0; k < kPoints; ++k) {
            const Point p{box.left + box.width() * (i + 0.37) / kPoints,
                          box.top + box.height() * (k + 0.41) / kPoints};
            if (!contains(shape, FillRule::NonZero, p))
                continue;
            const Color expected = seen(gradient, p);
            const Color found = seen(other, p);
            double difference = 0;
            for (std::size_t c = 0; c < expected.size(); ++c)
                difference = std::max(difference, std::abs(expected[c] - found[c]));
            // Within rounding of a step either side is right.
            const bool step =
                difference > 1 &&
                std::min({difference, [&] {
                              double least = 1e9;
                              for (const double away : {-1e-4, 1e-4})
                                  for (const Point to : {Point{p.x + away, p.y}, Point{p.x, p.y + away}}) {
                                      const Color near = seen(gradient, to);
                                      double off = 0;
                                      for (std::size_t c = 0; c < near.size(); ++c)
                                          off = std::max(off, std::abs(near[c] - found[c]));
                                      least = std::min(least, off);
                                  }
                              return least;
                          }()}) <= 1;
            onSteps += step;
            if (!step)
                largest = std::max(largest, difference);
        }
    }
    return largest;
}

TEST(GradientDescription, LooksAsTheDefinitionSaysForAnyGradientOnAnyShape) {
    Dice dice(11);
    int described = 0;
    int onSteps = 0;
    for (int round = 0; round < 400; ++round) {
        const Gradient gradient = anyGradient(dice);
        const Path shape = anyShape(dice);
        const GradientDescription description = describe(gradient, shape);
        if (description.loss == Loss::Repeats)
            continue;
        ASSERT_EQ(description.loss, Loss::None);
        ++described;
        const Gradient fitted = fitGradient(description.record, &description.remainder, shape);
        ASSERT_LE(largestDifference(gradient, fitted, shape, onSteps), 1) << "round " << round;
    }
    EXPECT_GT(described, 350);
    EXPECT_LT(onSteps, described);
}

TEST(GradientDescription, TheEllipseIsAStretchThatKeepsAreas) {
    Dice dice(12);
    for (int round = 0; round < 100; ++round) {
        Gradient gradient = anyGradient(dice);
        gradient.geometry = RadialGeometry{{0, 0}, 0, {0, 0}, 10};
        const auto ellipse = describe(gradient, anyShape(dice)).remainder.ellipse;
        ASSERT_TRUE(ellipse);
        EXPECT_NEAR(ellipse->determinant(), 1, 1e-9);
        EXPECT_EQ(ellipse->b, ellipse->c) << "no turn, which circles would not show";
    }
}

TEST(GradientDescription, RepeatsWithoutMeasureGiveTheNearestRecordAndSaySo) {
    const Ramp ramp({{0, {}}, {1, {65535, 65535, 65535}}});
    const Gradient dense{LinearGeometry{{0, 0}, {1e-5, 0}}, {}, Spread::Repeat, ramp};
    const GradientDescription description = describe(dense, rectanglePath({0, 0, 100, 50}));
    EXPECT_EQ(description.loss, Loss::Repeats);
    EXPECT_FALSE(description.record.ColorList().empty());
    EXPECT_EQ(description.record.Angle(), 0.0F);
}

TEST(GradientDescription, AFocusOnOrOutsideTheCircleIsMovedInsideAndSaidSo) {
    const Ramp ramp({{0, {}}, {1, {65535, 65535, 65535}}});
    for (const double focus : {10.0, 25.0, 1e9}) {
        const Gradient gradient{RadialGeometry{{focus, 0}, 0, {0, 0}, 10}, {}, Spread::Pad, ramp};
        const GradientDescription description = describe(gradient, rectanglePath({-20, -20, 20, 20}));
        EXPECT_EQ(description.loss, Loss::Focus);
        EXPECT_TRUE(std::isfinite(description.record.Start().h));
        EXPECT_GT(description.record.Start().h, 0.5) << "to the side that it was on";
    }
}

TEST(GradientDescription, AShapeWithoutExtentHasARecordToo) {
    const Ramp ramp({{0, {}}, {1, {65535, 65535, 65535}}});
    for (const Path& shape : {rectanglePath({3, 3, 3, 3}), rectanglePath({0, 0, 10, 0})}) {
        EXPECT_EQ(describe({LinearGeometry{{0, 5}, {0, 9}}, {}, Spread::Pad, ramp}, shape)
                      .record.ColorList()
                      .size(),
                  2U);
        EXPECT_EQ(describe({RadialGeometry{{1, 1}, 0, {1, 1}, 5}, {}, Spread::Pad, ramp}, shape)
                      .record.ColorList()
                      .empty(),
                  false);
    }
}

TEST(GradientFit, TheEndCircleReachesTheFarthestCornerWhereTheEllipsesAreCircles) {
    CGradientData record;
    record.SetType(kRadialGradient);
    // Twice as wide as high: in the circles' space the box is 50 by 100 (times the square root of 2).
    Remainder remainder;
    remainder.ellipse = Affine{std::sqrt(2.0), 0, 0, std::sqrt(0.5), 0, 0};
    const Gradient gradient = fitGradient(record, &remainder, rectanglePath({0, 0, 100, 100}));
    const auto& circles = std::get<RadialGeometry>(gradient.geometry);
    EXPECT_EQ(gradient.toDrawing(circles.centre), (Point{50, 50}));
    EXPECT_NEAR(circles.radius, std::sqrt(50 * 50 / 2.0 + 50 * 50 * 2.0), 1e-4);
}

} // namespace
