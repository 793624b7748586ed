// Whole drawings: what shows where, layers and clips, and that no way of cutting up the work changes a pixel.
#include "easel/paint/RenderDrawing.h"

#include "host/Gradient.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <random>

namespace {

using namespace easel::drawing;
using easel::paint::PixelRect;
using easel::paint::renderDrawing;
using easel::paint::renderObjects;
using easel::paint::Surface;

constexpr Rgb16 kRed{65535, 0, 0};
constexpr Rgb16 kBlue{0, 0, 65535};

Object filled(Path outline, Paint paint) {
    Object object;
    object.outline = std::move(outline);
    object.fillPattern = FillPattern::Other;
    object.fill = std::move(paint);
    return object;
}

Object square(const Box& box, Rgb16 color) {
    return filled(rectanglePath(box), ColorPaint{color, 1});
}

SharedPtr<const Style> styled(const Style& style) {
    return makeShared<const Style>(style);
}

Surface rendered(const std::vector<ObjectPtr>& objects, int side = 100, const Affine& toSurface = {}) {
    Surface surface(side, side);
    renderObjects(objects, surface.view(), toSurface);
    return surface;
}

TEST(RenderDrawing, ObjectsCoverThoseBehindThem) {
    const Surface surface =
        rendered({sealed(square({10, 10, 60, 60}, kRed)), sealed(square({40, 40, 90, 90}, kBlue))});
    EXPECT_EQ(surface.row(20)[20], 0xFFFF0000u);
    EXPECT_EQ(surface.row(50)[50], 0xFF0000FFu);
    EXPECT_EQ(surface.row(5)[5], 0u);
}

TEST(RenderDrawing, TheMapToTheSurfaceScalesAndScrolls) {
    const Surface surface =
        rendered({sealed(square({10, 10, 20, 20}, kRed))}, 100, Affine{2, 0, 0, 2, 5, -10});
    EXPECT_EQ(surface.row(10)[25], 0xFFFF0000u);
    EXPECT_EQ(surface.row(29)[44], 0xFFFF0000u);
    EXPECT_EQ(surface.row(30)[44], 0u);
    EXPECT_EQ(surface.row(29)[45], 0u);
}

TEST(RenderDrawing, AnObjectsGradientIsFittedToItsOutline) {
    CGradientData record;
    record.SetType(kLinearGradient);
    record.ColorList().clear();
    record.ColorList().emplace_back(RGBColor{0, 0, 0}, 0.0);
    record.ColorList().emplace_back(RGBColor{65535, 65535, 65535}, 1.0);
    Object object = square({20, 20, 80, 80}, kRed);
    object.setGradient(ObjectGradient(new CGradient(record)));
    const Surface surface = rendered({sealed(object)});
    // Black at the left edge, white at the right: the level at a pixel's centre is its share of the way,
    // times 255.
    for (int x = 20; x < 80; ++x) {
        const double exact = (x + 0.5 - 20) / 60 * 255;
        EXPECT_NEAR(surface.row(50)[x] & 255, exact, 0.51) << x;
    }
}

TEST(RenderDrawing, WithoutAPatternNeitherColorNorGradientShows) {
    Object object = square({20, 20, 80, 80}, kRed);
    object.setGradient(ObjectGradient(new CGradient(CGradientData())));
    object.setFillPattern(FillPattern::None);
    EXPECT_EQ(rendered({sealed(object)}).row(50)[50], 0u);
}

TEST(RenderDrawing, ABlackPatternThatWasSetIsBlack) {
    Object object = square({20, 20, 80, 80}, kRed);
    object.setFillPattern(FillPattern::SolidBlack);
    EXPECT_EQ(rendered({sealed(object)}).row(50)[50], 0xFF000000u);
}

TEST(RenderDrawing, FillAndStrokeFadeTogether) {
    Style style;
    style.stroke.paint = ColorPaint{kBlue, 1};
    style.stroke.width = 20;
    style.opacity = 0.5;
    Object object = square({30, 30, 70, 70}, kRed);
    object.style = styled(style);
    const Surface surface = rendered({sealed(object)});
    EXPECT_EQ(surface.row(50)[50], 0x80800000u);
    // Where the stroke lies over the fill, none of the fill shines through.
    EXPECT_EQ(surface.row(50)[35], 0x80000080u);
    EXPECT_EQ(surface.row(50)[25], 0x80000080u);
}

TEST(RenderDrawing, PaintOrderPutsTheFillOverTheStroke) {
    Style style;
    style.stroke.paint = ColorPaint{kBlue, 1};
    style.stroke.width = 20;
    style.first = PaintStep::Stroke;
    Object object = square({30, 30, 70, 70}, kRed);
    object.style = styled(style);
    const Surface surface = rendered({sealed(object)});
    EXPECT_EQ(surface.row(50)[35], 0xFFFF0000u);
    EXPECT_EQ(surface.row(50)[25], 0xFF0000FFu);
}

TEST(RenderDrawing, AStrokeIsShapedByTheObjectsOwnUnits) {
    Style style;
    style.stroke.paint = ColorPaint{kBlue, 1};
    style.stroke.width = 2;
    Object object = square({40, 40, 60, 60}, kRed);
    object.style = styled(style);
    object.units = makeShared<const Affine>(Affine::scaling(10, 1));
    const Surface surface = rendered({sealed(object)});
    EXPECT_EQ(surface.row(50)[31], 0xFF0000FFu); // ten to the left
    EXPECT_EQ(surface.row(50)[29], 0u);
    EXPECT_EQ(surface.row(38)[50], 0u); // one upwards
    EXPECT_EQ(surface.row(39)[50], 0xFF0000FFu);
}

TEST(RenderDrawing, AGroupFadesAsOne) {
    Group group;
    group.opacity = 0.5;
    const GroupPtr shared = makeShared<const Group>(group);
    Object back = square({10, 10, 60, 60}, kRed);
    Object front = square({40, 40, 90, 90}, kBlue);
    back.group = front.group = shared;
    const Surface surface = rendered({sealed(back), sealed(front)});
    EXPECT_EQ(surface.row(20)[20], 0x80800000u);
    EXPECT_EQ(surface.row(50)[50], 0x80000080u);
}

TEST(RenderDrawing, GroupsWithinGroupsMultiply) {
    Group outer;
    outer.opacity = 0.5;
    Group inner;
    inner.opacity = 0.5;
    inner.parent = makeShared<const Group>(outer);
    inner.depth = 2;
    Object faint = square({10, 10, 60, 60}, kRed);
    faint.group = makeShared<const Group>(inner);
    Object half = square({70, 10, 90, 60}, kRed);
    half.group = inner.parent;
    const Surface surface = rendered({sealed(faint), sealed(half)});
    EXPECT_NEAR(static_cast<int>(surface.row(20)[20] >> 24), 63.75, 0.76);
    EXPECT_EQ(surface.row(20)[80], 0x80800000u);
}

std::shared_ptr<const ClipPath> clipTo(std::vector<Path> outlines,
                                       std::shared_ptr<const ClipPath> within = nullptr) {
    ClipPath clip;
    for (Path& outline : outlines)
        clip.shapes.push_back({std::move(outline), FillRule::NonZero, nullptr});
    clip.clip = std::move(within);
    return std::make_shared<const ClipPath>(clip);
}

Surface clipped(const std::shared_ptr<const ClipPath>& clip) {
    Group group;
    group.clip = clip;
    Object object = square({0, 0, 100, 100}, kRed);
    object.group = makeShared<const Group>(group);
    return rendered({sealed(object)});
}

TEST(RenderDrawing, AClipPathLeavesTheUnionOfItsShapes) {
    const Surface surface =
        clipped(clipTo({rectanglePath({10, 10, 40, 40}), rectanglePath({30, 30, 80, 80})}));
    EXPECT_EQ(surface.row(20)[20], 0xFFFF0000u);
    EXPECT_EQ(surface.row(35)[35], 0xFFFF0000u);
    EXPECT_EQ(surface.row(70)[70], 0xFFFF0000u);
    EXPECT_EQ(surface.row(20)[70], 0u);
}

TEST(RenderDrawing, AClipPathOfAClipPathNarrowsIt) {
    const auto narrow = clipTo({rectanglePath({20, 0, 30, 100})});
    const Surface surface = clipped(clipTo({rectanglePath({10, 10, 40, 40})}, narrow));
    EXPECT_EQ(surface.row(20)[25], 0xFFFF0000u);
    EXPECT_EQ(surface.row(20)[15], 0u);
    EXPECT_EQ(surface.row(50)[25], 0u);
}

TEST(RenderDrawing, AClippedShapeNarrowsOnlyItself) {
    ClipPath clip;
    clip.shapes.push_back(
        {rectanglePath({10, 10, 40, 40}), FillRule::NonZero, clipTo({rectanglePath({20, 20, 30, 30})})});
    clip.shapes.push_back({rectanglePath({60, 10, 90, 40}), FillRule::NonZero, nullptr});
    const Surface surface = clipped(std::make_shared<const ClipPath>(clip));
    EXPECT_EQ(surface.row(25)[25], 0xFFFF0000u);
    EXPECT_EQ(surface.row(12)[12], 0u);
    EXPECT_EQ(surface.row(12)[70], 0xFFFF0000u);
}

TEST(RenderDrawing, AClipPathWithoutShapesHidesAll) {
    EXPECT_EQ(clipped(clipTo({})).row(50)[50], 0u);
}

// A few hundred objects of every sort, some in faint or clipped groups.
Drawing crowd() {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> place(-50, 950);
    std::uniform_real_distribution<double> size(5, 120);
    const auto color = [&] {
        return Rgb16{static_cast<std::uint16_t>(random()), static_cast<std::uint16_t>(random()), 0};
    };
    std::vector<ObjectPtr> objects;
    GroupPtr group;
    for (int i = 0; i < 400; ++i) {
        if (i % 20 == 0) {
            Group made;
            made.opacity = i % 40 == 0 ? 0.6 : 1;
            made.clip = i % 60 == 0 ? clipTo({ellipsePath({450, 450}, 400, 300)}) : nullptr;
            group = makeShared<const Group>(made);
        }
        const Point center{place(random), place(random)};
        Object object = filled(ellipsePath(center, size(random), size(random)), ColorPaint{color(), 0.8});
        if (i % 3 == 0)
            object.setGradient(ObjectGradient(new CGradient(CGradientData())));
        Style style;
        style.stroke.paint = ColorPaint{color(), 1};
        style.stroke.width = size(random) / 8;
        style.opacity = i % 7 == 0 ? 0.5 : 1;
        object.style = styled(style);
        if (i % 20 < 10)
            object.group = group;
        objects.push_back(sealed(object));
    }
    return Drawing(900, 900, std::move(objects), nullptr, {});
}

TEST(RenderDrawing, TheNumberOfThreadsChangesNoPixel) {
    const Drawing drawing = crowd();
    std::vector<Surface> surfaces;
    for (const unsigned threads : {1u, 2u, 5u}) {
        surfaces.emplace_back(900, 900);
        renderDrawing(drawing, surfaces.back().view(), {}, threads);
    }
    for (int y = 0; y < 900; ++y)
        for (int x = 0; x < 900; ++x) {
            ASSERT_EQ(surfaces[0].row(y)[x], surfaces[1].row(y)[x]) << x << "," << y;
            ASSERT_EQ(surfaces[0].row(y)[x], surfaces[2].row(y)[x]) << x << "," << y;
        }
}

int largestDifference(std::uint32_t a, std::uint32_t b) {
    int most = 0;
    for (const unsigned shift : {0u, 8u, 16u, 24u})
        most =
            std::max(most, std::abs(static_cast<int>(a >> shift & 255) - static_cast<int>(b >> shift & 255)));
    return most;
}

TEST(RenderDrawing, APartPaintedAloneIsThePartOfTheWhole) {
    const Drawing drawing = crowd();
    Surface whole(900, 900);
    renderDrawing(drawing, whole.view(), {});
    std::mt19937 random(8);
    for (int i = 0; i < 40; ++i) {
        const int left = static_cast<int>(random() % 800);
        const int top = static_cast<int>(random() % 800);
        const PixelRect box{.left = left,
                            .top = top,
                            .right = left + 1 + static_cast<int>(random() % 100),
                            .bottom = top + 1 + static_cast<int>(random() % 100)};
        Surface part(900, 900);
        renderDrawing(drawing, part.view().clippedTo(box), {});
        for (int y = 0; y < 900; ++y)
            for (int x = 0; x < 900; ++x) {
                const bool inside = x >= box.left && x < box.right && y >= box.top && y < box.bottom;
                // Edges cut at another row may differ in their last bit, once for each of the layers over
                // each other.
                ASSERT_LE(largestDifference(part.row(y)[x], inside ? whole.row(y)[x] : 0u), inside ? 2 : 0)
                    << x << "," << y;
            }
    }
}

TEST(RenderDrawing, NumbersThatAreNoneAndHugeOnesNeverHang) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    CGradientData record;
    record.SetAngle(std::numeric_limits<float>::quiet_NaN());
    record.ColorList().emplace_back(RGBColor{1, 2, 3}, kNan);
    for (const double odd : {kInfinity, -kInfinity, kNan, 1e300, -1e300, 1e-300}) {
        Style style;
        style.stroke.paint = ColorPaint{kBlue, odd};
        style.stroke.width = odd;
        style.opacity = odd;
        style.fillOpacity = odd;
        Group group;
        group.opacity = odd;
        group.clip = clipTo({rectanglePath({odd, 10, 90, 90})});
        Object object = filled(ellipsePath({odd, 50}, 40, odd), ColorPaint{kRed, odd});
        object.style = styled(style);
        object.units = makeShared<const Affine>(Affine{odd, 0, 0, 1, odd, 0});
        object.group = makeShared<const Group>(group);
        Object withRecord = object;
        withRecord.setGradient(ObjectGradient(new CGradient(record)));
        rendered({sealed(object), sealed(withRecord)});
        rendered({sealed(object), sealed(withRecord)}, 100, Affine{odd, 1, 1, odd, 3, odd});
    }
}

} // namespace
