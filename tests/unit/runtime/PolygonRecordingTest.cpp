// Polygons that are recorded on a port.
#include "easel/runtime/PolygonRecording.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace easel::runtime {
namespace {

using paint::PixelPoint;

class PolygonRecordingTest : public testing::Test {
  protected:
    void drawTriangle() {
        port_.moveTo({1, 1});
        for (const PixelPoint to : {PixelPoint{6, 1}, {6, 5}, {1, 1}})
            port_.lineTo(to);
    }
    static auto isTriangle() { return testing::IsSupersetOf({PixelPoint{1, 1}, {6, 1}, {6, 5}}); }

    paint::Port port_{{.right = 10, .bottom = 10}, 1, 0xffffff};
    PolygonRecording recording_;
};

TEST_F(PolygonRecordingTest, APolygonHasItsLinesOnceItIsClosedAndNothingIsDrawn) {
    auto* const polygon = recording_.open(port_);
    ASSERT_NE(polygon, nullptr);
    drawTriangle();
    EXPECT_TRUE(polygon->empty());
    recording_.close(port_);
    EXPECT_THAT(*polygon, isTriangle());
    EXPECT_TRUE(port_.takeDamage().empty());
    recording_.free(polygon);
}

TEST_F(PolygonRecordingTest, AClosedPolygonStaysAsItIs) {
    auto* const polygon = recording_.open(port_);
    drawTriangle();
    recording_.close(port_);
    recording_.close(port_);
    EXPECT_THAT(*polygon, isTriangle());
    recording_.free(polygon);
}

TEST_F(PolygonRecordingTest, FreeingAnotherPolygonDoesNotDisturbTheRecording) {
    auto* const before = recording_.open(port_);
    recording_.close(port_);
    auto* const polygon = recording_.open(port_);
    recording_.free(before);
    recording_.free(nullptr);
    drawTriangle();
    recording_.close(port_);
    EXPECT_THAT(*polygon, isTriangle());
    recording_.free(polygon);
}

} // namespace
} // namespace easel::runtime
