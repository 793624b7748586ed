// The transform language, by what it does to points.
#include "easel/svg/text/Transform.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using namespace easel::svg;
using easel::drawing::Affine;
using easel::drawing::Point;

namespace {

// Where the transform takes the point (3, 5).
void expectMoves(const char* text, double x, double y) {
    const auto map = parseTransform(text);
    ASSERT_TRUE(map) << text;
    const Point moved = (*map)({3, 5});
    EXPECT_NEAR(moved.x, x, 1e-9) << text;
    EXPECT_NEAR(moved.y, y, 1e-9) << text;
}

TEST(TransformText, EachFunctionMapsAsTheStandardDefinesIt) {
    expectMoves("matrix(1 2 3 4 5 6)", 3 + 15 + 5, 6 + 20 + 6);
    expectMoves("translate(10)", 13, 5);
    expectMoves("translate(10, -20)", 13, -15);
    expectMoves("scale(2)", 6, 10);
    expectMoves("scale(2 .5)", 6, 2.5);
    expectMoves("rotate(90)", -5, 3);
    expectMoves("rotate(90 1 1)", -3, 3);
    expectMoves("skewX(45)", 8, 5);
    expectMoves("skewY(45)", 3, 8);
    expectMoves("translateX(7px)", 10, 5);
    expectMoves("translateY(7px)", 3, 12);
    expectMoves("scaleX(-1)", -3, 5);
    expectMoves("scaleY(-1)", 3, -5);
}

TEST(TransformText, TheLastOfSeveralComesFirst) {
    expectMoves("translate(10) scale(2)", 16, 10);
    expectMoves("scale(2),translate(10)", 26, 10);
}

TEST(TransformText, NoTextAndNoneChangeNothing) {
    for (const char* text : {"", "  ", "none", "NONE"}) {
        ASSERT_TRUE(parseTransform(text)) << text;
        EXPECT_TRUE(*parseTransform(text) == Affine()) << text;
    }
}

TEST(TransformText, AnglesHaveTheUnitsOfCss) {
    for (const char* text :
         {"rotate(90deg)", "rotate(100grad)", "rotate(.25turn)", "ROTATE(1.5707963267948966rad)"})
        expectMoves(text, -5, 3);
    EXPECT_NEAR(parseDegrees("3.14159265358979rad").value(), 180, 1e-9);
    EXPECT_EQ(parseDegrees("-0.5turn"), -180);
    EXPECT_EQ(parseDegrees(" 12 "), 12);
    EXPECT_FALSE(parseDegrees("12 apples"));
    EXPECT_FALSE(parseDegrees("steep"));
    EXPECT_FALSE(parseDegrees(""));
}

TEST(TransformText, WhatIsNoListOfTransformsIsNone) {
    for (const char* text :
         {"rotate",           "rotate(",          "rotate(a)",         "rotate()",
          "rotate(1 2)",      "rotate(1 2 3 4)",  "matrix(1 2 3 4 5)", "matrix(1 2 3 4 5 6 7)",
          "translate()",      "translate(1 2 3)", "scale()",           "scale(1 2 3)",
          "skewX()",          "skewX(1 2)",       "skewY()",           "skewY(1 2)",
          "translateX()",     "translateX(1 2)",  "translateY(1 2)",   "scaleX(1 2)",
          "scaleY()",         "scaleY(1 2)",      "spin(3)",           "(3)",
          "scale(2) and more"})
        EXPECT_FALSE(parseTransform(text)) << text;
}

TEST(TransformText, AWrittenMapReadsBackAsTheSame) {
    const Affine map{1.0 / 3, -2e-9, std::numbers::pi, 1e15, -0.1, 123456.789};
    EXPECT_TRUE(parseTransform(transformText(map)) == map);
}

} // namespace
