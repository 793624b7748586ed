// Where transforms have their origin: in a viewport of 100 by 200, for an element from (10, 20) to (30, 60).
#include "easel/svg/style/PlacedTransform.h"

#include <gtest/gtest.h>

using namespace easel::svg;
using easel::drawing::Affine;
using easel::drawing::Box;
using easel::drawing::Point;

namespace {

constexpr LengthContext kLengths{100, 200, 16, 16};
constexpr Box kElement{10, 20, 30, 60};

Affine twiceAbout(std::string_view origin, std::string_view box, const Box& element = kElement) {
    StatedStyle stated;
    stated.set(Property::Transform, "scale(2)", Importance::Normal);
    stated.set(Property::TransformOrigin, origin, Importance::Normal);
    stated.set(Property::TransformBox, box, Importance::Normal);
    return transformOf(stated, kLengths, element);
}

// The point that stays where it is when everything is twice as large.
void expectOrigin(std::string_view origin, std::string_view box, double x, double y,
                  const Box& element = kElement) {
    const Affine map = twiceAbout(origin, box, element);
    EXPECT_EQ(map.a, 2);
    EXPECT_NEAR(-map.e, x, 1e-9) << origin << " in " << box;
    EXPECT_NEAR(-map.f, y, 1e-9) << origin << " in " << box;
}

TEST(TransformOrigin, IsMeasuredInTheViewportUnlessItIsTheElements) {
    const struct {
        const char* text;
        Point inViewport, inElement;
    } origins[] = {{"left top", {0, 0}, {10, 20}},
                   {"top left", {0, 0}, {10, 20}},
                   {"right bottom", {100, 200}, {30, 60}},
                   {"bottom right", {100, 200}, {30, 60}},
                   {"center", {50, 100}, {20, 40}},
                   {"center center", {50, 100}, {20, 40}},
                   {"25%", {25, 100}, {15, 40}},
                   {"25% 50%", {25, 100}, {15, 40}},
                   {"5px 7", {5, 7}, {15, 27}},
                   {"1em,2em", {16, 32}, {26, 52}},
                   {"bottom", {50, 200}, {20, 60}},
                   {"10 top", {10, 0}, {20, 20}}};
    for (const auto& [text, inViewport, inElement] : origins) {
        expectOrigin(text, "", inViewport.x, inViewport.y);
        expectOrigin(text, "view-box", inViewport.x, inViewport.y);
        for (const char* box : {"fill-box", "content-box", "stroke-box", "BORDER-BOX"})
            expectOrigin(text, box, inElement.x, inElement.y);
    }
}

TEST(TransformOrigin, IsTheCornerOfWhatMeasuresItWhereNoneIsStated) {
    expectOrigin("", "", 0, 0);
    expectOrigin("", "fill-box", 10, 20);
}

TEST(TransformOrigin, OfAnElementWhoseBoxIsNotKnownIsMeasuredInTheViewport) {
    expectOrigin("right", "fill-box", 100, 100, Box{});
    expectOrigin("", "fill-box", 0, 0, Box{});
}

TEST(TransformOrigin, ThatIsNoneChangesNothing) {
    for (const char* text : {"far", "left far", "x%", "1 y%", "top bottom"})
        expectOrigin(text, "", 0, 0);
}

TEST(TransformOrigin, WithoutATransformMovesNothing) {
    StatedStyle stated;
    stated.set(Property::TransformOrigin, "50% 50%", Importance::Normal);
    EXPECT_TRUE(transformOf(stated, kLengths, kElement) == Affine());
    stated.set(Property::Transform, "no transform", Importance::Normal);
    EXPECT_TRUE(transformOf(stated, kLengths, kElement) == Affine());
}

} // namespace
