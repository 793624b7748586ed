// Which corner a point snaps to, and what a fill pattern is to a drawing.
#include "easel/runtime/Snap.h"
#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/FillPatterns.h"
#include "tests/support/HostTest.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <utility>

namespace {

namespace drawing = easel::drawing;
namespace runtime = easel::runtime;

class SnapTest : public tests::HostTest {
  protected:
    void add(const drawing::Path& outline) {
        drawing::Object object;
        object.kind = drawing::Kind::Path;
        object.outline = outline;
        window.drawing().insert(window.drawing().size(), sealed(std::move(object)));
    }
    drawing::Point snappedToObjects(drawing::Point point) const {
        return snapped(window, point, {runtime::Switch::Off, runtime::Switch::On});
    }

    runtime::DrawingWindow window{drawing::Drawing::create(200, 200), process_};
};

TEST_F(SnapTest, TakesTheNearestOfSeveralCornersWhateverTheirOrder) {
    add(drawing::polylinePath({{10, 10}, {13, 10}, {16, 10}}));
    EXPECT_EQ(snappedToObjects({12.5, 10}), (drawing::Point{13, 10}));
    EXPECT_EQ(snappedToObjects({10.5, 10}), (drawing::Point{10, 10}));
    EXPECT_EQ(snappedToObjects({15.5, 10}), (drawing::Point{16, 10}));
}

TEST_F(SnapTest, TakesTheEndsOfCurvesAndNotTheirControls) {
    drawing::Path path;
    path.moveTo({20, 20});
    path.cubicTo({40, 20}, {60, 40}, {60, 60});
    path.close();
    path.moveTo({100, 100});
    path.lineTo({120, 120});
    add(path);
    EXPECT_EQ(snappedToObjects({21, 20}), (drawing::Point{20, 20}));
    EXPECT_EQ(snappedToObjects({61, 60}), (drawing::Point{60, 60}));
    EXPECT_EQ(snappedToObjects({101, 100}), (drawing::Point{100, 100}));
    EXPECT_EQ(snappedToObjects({121, 120}), (drawing::Point{120, 120})) << "after a close";
    EXPECT_EQ(snappedToObjects({41, 20}), (drawing::Point{41, 20}));
    EXPECT_EQ(snappedToObjects({60, 41}), (drawing::Point{60, 41}));
}

TEST_F(SnapTest, ReachesSixPixelsOfTheScreen) {
    add(drawing::polylinePath({{50, 50}, {150, 50}}));
    EXPECT_EQ(snappedToObjects({50, 56}), (drawing::Point{50, 50}));
    EXPECT_EQ(snappedToObjects({50, 56.1}), (drawing::Point{50, 56.1}));
    window.setView({.zoom = 3, .deviceScale = 1, .origin = {0, 0}, .width = 200, .height = 200});
    EXPECT_EQ(snappedToObjects({50, 52}), (drawing::Point{50, 50}));
    EXPECT_EQ(snappedToObjects({50, 52.1}), (drawing::Point{50, 52.1}));
}

TEST_F(SnapTest, LeavesAPointThatIsNowhere) {
    const double far = std::numeric_limits<double>::infinity();
    EXPECT_EQ(snapped(window, {far, 1}, {runtime::Switch::On, runtime::Switch::On}),
              (drawing::Point{far, 1}));
}

TEST(FillPatterns, OnlyTheOneWithAllRowsSetIsBlack) {
    EXPECT_EQ(runtime::fillPatternOf({}), drawing::FillPattern::None);
    EXPECT_EQ(runtime::fillPatternOf(runtime::blackPattern()), drawing::FillPattern::SolidBlack);
    for (std::size_t row = 0; row < 8; ++row) {
        std::array<std::uint8_t, 8> rows{0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff};
        const auto patternOf = [](const std::array<std::uint8_t, 8>& bits) {
            return SharedResourcePtr<CPatRecord>(std::make_unique<CPatRecord>(bits).release());
        };
        EXPECT_EQ(runtime::fillPatternOf(patternOf(rows)), drawing::FillPattern::SolidBlack);
        rows[row] = 0xfe;
        EXPECT_EQ(runtime::fillPatternOf(patternOf(rows)), drawing::FillPattern::Other) << row;
    }
}

} // namespace
