// Objects: their kinds, what tells two of them apart, and what belongs to a stroke.
#include "easel/drawing/Object.h"

#include "easel/drawing/Group.h"
#include "easel/drawing/ShapeGradient.h"
#include "easel/drawing/StrokeGradient.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <numbers>
#include <vector>

namespace {

using namespace easel::drawing;

ObjectGradient gradientAt(float degrees) {
    CGradientData record;
    record.SetAngle(degrees);
    return ObjectGradient(std::make_unique<CGradient>(record).release());
}

Object square() {
    Object object;
    object.kind = Kind::Rect;
    object.outline = rectanglePath({0, 0, 10, 10});
    object.fillPattern = FillPattern::SolidBlack;
    object.gradient = gradientAt(20);
    object.remainder = makeShared<const Remainder>(Remainder{{{0, 0.5}}, std::nullopt});
    return object;
}

Style penOf(double width) {
    Style style;
    style.stroke.paint = ColorPaint();
    style.stroke.width = width;
    return style;
}

TEST(Object, KindsHaveNamesThatLeadBackToThem) {
    EXPECT_EQ(kindName(Kind::Rect), "rect");
    EXPECT_EQ(kindName(Kind::Polyline), "polyline");
    EXPECT_EQ(kindName(Kind::Text), "text");
    for (const Kind kind : kAllKinds)
        EXPECT_EQ(kindFromName(kindName(kind)), kind);
    EXPECT_EQ(kindFromName("blob"), std::nullopt);
}

TEST(Object, ClosedKindsCarryGradients) {
    for (const Kind kind : {Kind::Rect, Kind::Ellipse, Kind::Polygon, Kind::Path})
        EXPECT_TRUE(carriesGradient(kind)) << kindName(kind);
    for (const Kind kind : {Kind::Polyline, Kind::Line, Kind::Picture, Kind::Text})
        EXPECT_FALSE(carriesGradient(kind)) << kindName(kind);
}

TEST(Object, KindsAreNumberedAsPluginsSeeThem) {
    int number = 0;
    for (const Kind kind : kAllKinds)
        EXPECT_EQ(static_cast<int>(kind), ++number);
    EXPECT_EQ(number, 8);
}

TEST(Object, ASetOfKindsHoldsThoseAdded) {
    for (const Kind one : kAllKinds) {
        KindSet set = KindSet::none();
        EXPECT_EQ(set, KindSet::none());
        set.add(one);
        for (const Kind other : kAllKinds)
            EXPECT_EQ(set.has(other), one == other);
        EXPECT_TRUE(KindSet::all().has(one));
        set.add(Kind::Path);
        EXPECT_TRUE(set.has(one) && set.has(Kind::Path));
    }
    EXPECT_FALSE(KindSet::all() == KindSet::none());
}

TEST(Object, IsInAFileIfItsTagTakesAnyRoom) {
    EXPECT_FALSE(ElementSpan().inFile());
    EXPECT_FALSE((ElementSpan{7, 7, 0}.inFile()));
    EXPECT_TRUE((ElementSpan{0, 1, 0}.inFile()));
    EXPECT_LT((ElementSpan{1, 9, 9}), (ElementSpan{2, 3, 0}));
    EXPECT_LT((ElementSpan{1, 3, 9}), (ElementSpan{1, 4, 0}));
    EXPECT_LT((ElementSpan{1, 3, 0}), (ElementSpan{1, 3, 1}));
}

TEST(Object, ANameIsATextOrNone) {
    const Name none;
    EXPECT_TRUE(none.empty());
    EXPECT_EQ(none.text(), "");
    EXPECT_TRUE(Name("").empty());
    Name name("a leaf");
    EXPECT_FALSE(name.empty());
    const Name copy = name;
    name = Name("another");
    EXPECT_EQ(name.text(), "another");
    EXPECT_EQ(copy.text(), "a leaf");
    name = none;
    EXPECT_TRUE(name.empty());
}

TEST(Object, APlainStyleAndTheDrawingsUnitsStandForNone) {
    Object object;
    EXPECT_EQ(styleOf(object), Style());
    EXPECT_EQ(unitsOf(object), Affine());
    EXPECT_EQ(penUnitsOf(object), Affine());
    object.units = makeShared<const Affine>(Affine::scaling(2, 3));
    Style style = penOf(4);
    object.style = makeShared<const Style>(style);
    EXPECT_EQ(styleOf(object).stroke.width, 4);
    EXPECT_EQ(unitsOf(object), Affine::scaling(2, 3));
    EXPECT_EQ(penUnitsOf(object), Affine::scaling(2, 3));
    style.stroke.inDrawingUnits = true;
    object.style = makeShared<const Style>(style);
    EXPECT_EQ(penUnitsOf(object), Affine());
}

TEST(Object, ARemainderIsEmptyWithoutOpacityAndEllipse) {
    EXPECT_TRUE(Remainder().empty());
    EXPECT_FALSE((Remainder{{{0, 1}}, std::nullopt}.empty()));
    EXPECT_FALSE((Remainder{{}, Affine()}.empty()));
}

TEST(Object, TheGradientOfAPaintIsThatOfAPaintThatIsOne) {
    const auto gradient = std::make_shared<const Gradient>();
    EXPECT_EQ(gradientIn(Paint(gradient)), gradient.get());
    EXPECT_EQ(gradientIn(Paint(ColorPaint())), nullptr);
    EXPECT_EQ(gradientIn(Paint()), nullptr);
}

TEST(Object, ANewGradientKeepsWhatTheRecordCannotHold) {
    Object object = square();
    const RemainderPtr remainder = object.remainder;
    object.setGradient(gradientAt(20));
    EXPECT_EQ(object.fillOrigin, PaintOrigin::File) << "it has an equal one already";
    object.setGradient(gradientAt(50));
    EXPECT_EQ(gradientIn(object.gradient)->GetGradientData().Angle(), 50);
    EXPECT_EQ(object.remainder, remainder);
    EXPECT_EQ(object.fillOrigin, PaintOrigin::Edited);
    object.setGradient({});
    EXPECT_FALSE(gradientIn(object.gradient));
    EXPECT_FALSE(object.remainder);
}

TEST(Object, ThePatternAndTheStrokeItHasAlreadyAreNoEdit) {
    Object object = square();
    object.setFillPattern(FillPattern::SolidBlack);
    EXPECT_EQ(object.fillOrigin, PaintOrigin::File);
    object.setFillPattern(FillPattern::Other);
    EXPECT_EQ(object.fillOrigin, PaintOrigin::Edited);
    object.style = makeShared<const Style>(penOf(3));
    object.setStrokePaint(ColorPaint());
    EXPECT_EQ(object.strokeOrigin, PaintOrigin::File);
    object.setStrokePaint(ColorPaint{{1, 2, 3}, 0.5});
    EXPECT_EQ(object.strokeOrigin, PaintOrigin::Edited);
    EXPECT_EQ(styleOf(object).stroke.paint, Paint(ColorPaint{{1, 2, 3}, 0.5}));
    EXPECT_EQ(styleOf(object).stroke.width, 3);
}

TEST(Object, SaysTheSameAsACopyWithEqualGradientAndRemainder) {
    const Object object = square();
    Object copy = object;
    EXPECT_TRUE(saysTheSame(object, copy));
    copy.gradient = gradientAt(20);
    copy.remainder = makeShared<const Remainder>(*object.remainder);
    EXPECT_TRUE(saysTheSame(object, copy)) << "though they are other objects in memory";
}

TEST(Object, SaysAnotherThingWhateverIsDifferent) {
    const std::vector<std::function<void(Object&)>> changes = {
        [](Object& object) { object.kind = Kind::Ellipse; },
        [](Object& object) { object.fillRule = FillRule::EvenOdd; },
        [](Object& object) { object.fillPattern = FillPattern::Other; },
        [](Object& object) { object.fillOrigin = PaintOrigin::Edited; },
        [](Object& object) { object.strokeOrigin = PaintOrigin::Edited; },
        [](Object& object) { object.source.tagEnd = 5; },
        [](Object& object) { object.id = std::string("other"); },
        [](Object& object) { object.units = makeShared<const Affine>(); },
        [](Object& object) { object.style = makeShared<const Style>(); },
        [](Object& object) { object.fill = ColorPaint(); },
        [](Object& object) { object.gradient = gradientAt(21); },
        [](Object& object) { object.gradient = {}; },
        [](Object& object) { object.remainder = nullptr; },
        [](Object& object) {
            object.remainder = makeShared<const Remainder>(Remainder{{{0, 0.75}}, std::nullopt});
        },
        [](Object& object) { object.group = makeShared<const Group>(); },
        [](Object& object) {
            object.outline = rectanglePath({0, 0, 10, 11});
        },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        Object other = square();
        changes[i](other);
        EXPECT_FALSE(saysTheSame(square(), other)) << "change " << i;
        EXPECT_FALSE(saysTheSame(other, square())) << "change " << i;
    }
}

TEST(Object, HasAPlainFillOfItsFileUntilTheUserGivesItAnother) {
    Object object = square();
    object.fill = ColorPaint{{65535, 0, 0}, 0.5};
    EXPECT_EQ(plainFillOf(object), object.fill) << "solid black is the host's word for any color of the file";
    object.setFillPattern(FillPattern::None);
    EXPECT_EQ(plainFillOf(object), Paint(NoPaint()));
    object.setFillPattern(FillPattern::SolidBlack);
    EXPECT_EQ(plainFillOf(object), Paint(ColorPaint()));
    object.setFillPattern(FillPattern::Other);
    EXPECT_EQ(plainFillOf(object), object.fill);
}

TEST(Group, BlendModesHaveNamesThatLeadBackToThem) {
    for (std::size_t i = 0; i < kBlendModeCount; ++i) {
        const auto mode = static_cast<BlendMode>(i);
        EXPECT_EQ(blendModeFromName(blendModeName(mode)), mode);
    }
    EXPECT_EQ(blendModeFromName("luminosity"), BlendMode::Luminosity);
    EXPECT_EQ(blendModeFromName("dissolve"), std::nullopt);
}

TEST(Stroke, MarksOnlyWithPaintWidthAndOpacity) {
    EXPECT_TRUE(strokes(penOf(2)));
    EXPECT_TRUE(strokes(penOf(0.5)));
    EXPECT_FALSE(strokes(penOf(0)));
    Style clear = penOf(2);
    clear.stroke.opacity = 0;
    EXPECT_FALSE(strokes(clear));
    Style bare = penOf(2);
    bare.stroke.paint = NoPaint();
    EXPECT_FALSE(strokes(bare));
    EXPECT_EQ(strokeReach(bare), 0);
}

TEST(Stroke, ReachesHalfItsWidthFartherAtTipsAndSquareEnds) {
    Style pen = penOf(6);
    pen.stroke.miterLimit = 5;
    EXPECT_EQ(strokeReach(pen), 15);
    pen.stroke.join = LineJoin::Round;
    EXPECT_EQ(strokeReach(pen), 3);
    pen.stroke.cap = LineCap::Square;
    EXPECT_DOUBLE_EQ(strokeReach(pen), 3 * std::numbers::sqrt2);
}

TEST(Stroke, FrameHoldsTheFourCornersOfThePenAtBothEndsOfALine) {
    Object line = square();
    line.kind = Kind::Line;
    line.outline = polylinePath({{10, 20}, {90, 20}});
    line.style = makeShared<const Style>(penOf(8));
    const Path outline = strokeFrame(line);
    const std::vector<Point> frame(outline.points().begin(), outline.points().end());
    for (const Point corner : {Point{6, 16}, Point{6, 24}, Point{94, 16}, Point{94, 24}})
        EXPECT_NE(std::find(frame.begin(), frame.end(), corner), frame.end()) << corner.x << ", " << corner.y;
}

} // namespace
