// Layers that are painted beside the window: what shows until they are there, what is given up, what is kept.
#include "easel/paint/BackgroundLayers.h"

#include <gtest/gtest.h>

#include <chrono>
#include <new>
#include <semaphore>
#include <vector>

namespace {

using namespace easel;
using namespace std::chrono_literals;
using paint::BackgroundLayers;
using paint::Unwanted;

using Semaphore = std::counting_semaphore<1000>;

constexpr auto kUntilItIsThere = 10min;

class BackgroundLayersTest : public testing::Test {
  protected:
    BackgroundLayers::Layer layer(const std::shared_ptr<const int>& what, int left = 0) const {
        return {what, {}, {{.left = left, .right = left + 4, .bottom = 4}, {}, {}, {}}, {0, 0, 4, 4}};
    }
    // Its pixels all have this value.
    static std::function<BackgroundLayers::Painting()> plain(std::uint32_t pixel, int side = 4) {
        return [=] {
            return [=](const Unwanted&) {
                auto pixels = std::make_shared<paint::Surface>(side, side);
                pixels->row(0)[0] = pixel;
                return pixels;
            };
        };
    }
    // Paints only when it may, unless nobody wants it any more.
    std::function<BackgroundLayers::Painting()> held(std::uint32_t pixel) {
        return [this, pixel] {
            return [this, pixel](const Unwanted& unwanted) {
                begun_.release();
                while (!goOn_.try_acquire_for(1ms))
                    paint::endIfUnwanted(&unwanted);
                return plain(pixel)()(unwanted);
            };
        };
    }
    static std::uint32_t pixelOf(const BackgroundLayers::Shown& shown) {
        return shown.picture.pixels ? shown.picture.pixels->row(0)[0] : 0;
    }

    const std::shared_ptr<const int> what_ = std::make_shared<const int>(1);
    const std::shared_ptr<const int> other_ = std::make_shared<const int>(2);
    Semaphore begun_{0};
    Semaphore goOn_{0};
    Semaphore ready_{0};
};

TEST_F(BackgroundLayersTest, AreShownAtOnceIfTheyAreThereInTime) {
    BackgroundLayers layers([] {});
    layers.beginFrame(kUntilItIsThere);
    const auto shown = layers.layer(layer(what_), plain(7));
    EXPECT_TRUE(shown.exact);
    EXPECT_EQ(pixelOf(shown), 7U);
}

TEST_F(BackgroundLayersTest, ArePaintedOnceAndReportedWhenTheyAreThere) {
    int paintings = 0;
    BackgroundLayers layers([this] { ready_.release(); });
    const auto ask = [&] {
        layers.beginFrame(0ms);
        return layers.layer(layer(what_), [&] {
            ++paintings;
            return held(7)();
        });
    };
    EXPECT_FALSE(ask().exact);
    EXPECT_EQ(pixelOf(ask()), 0U);
    EXPECT_FALSE(layers.idle());
    EXPECT_TRUE(layers.takeReady().empty());
    goOn_.release();
    ready_.acquire();
    EXPECT_EQ(layers.takeReady(), (std::vector<drawing::Box>{{0, 0, 4, 4}}));
    EXPECT_TRUE(layers.idle());
    EXPECT_EQ(pixelOf(ask()), 7U);
    EXPECT_TRUE(ask().exact);
    EXPECT_EQ(paintings, 1);
    EXPECT_TRUE(layers.takeReady().empty());
}

TEST_F(BackgroundLayersTest, ShowWhatWasThereBeforeUntilAnotherPartIsThere) {
    BackgroundLayers layers([this] { ready_.release(); });
    layers.beginFrame(0ms);
    layers.layer(layer(what_), plain(7));
    ready_.acquire();
    layers.beginFrame(0ms);
    const auto before = layers.layer(layer(what_, 4), held(8));
    EXPECT_EQ(pixelOf(before), 7U);
    EXPECT_FALSE(before.exact);
    EXPECT_EQ(before.picture.grid.place.left, 0) << "where it was painted";
    EXPECT_EQ(pixelOf(layers.layer(layer(other_), held(9))), 0U) << "of another thing nothing is known";
    goOn_.release(2);
    ready_.acquire();
    EXPECT_EQ(pixelOf(layers.layer(layer(what_, 4), plain(1))), 8U);
}

TEST_F(BackgroundLayersTest, GiveUpWhatWasBegunForAnotherZoom) {
    BackgroundLayers layers([this] { ready_.release(); });
    auto far = layer(what_);
    far.grid.drawingTo = drawing::Affine::scaling(0.5, 0.5);
    layers.beginFrame(0ms);
    layers.layer(far, held(7));
    begun_.acquire();
    layers.beginFrame(0ms);
    layers.layer(layer(what_), plain(8));
    // Were the first one not given up, the second would never come.
    ready_.acquire();
    EXPECT_EQ(pixelOf(layers.layer(layer(what_), plain(1))), 8U);
}

TEST_F(BackgroundLayersTest, GiveUpWhatAnotherViewNeedsNoLongerUnlessItHasBegun) {
    BackgroundLayers layers([this] { ready_.release(); });
    bool painted = false;
    layers.beginFrame(0ms);
    layers.layer(layer(what_), held(7));
    layers.layer(layer(other_), [&] {
        return [&](const Unwanted&) {
            painted = true;
            return BackgroundLayers::Pixels();
        };
    });
    begun_.acquire();
    layers.beginView();
    goOn_.release();
    ready_.acquire();
    EXPECT_TRUE(layers.idle());
    EXPECT_FALSE(painted);
    EXPECT_EQ(pixelOf(layers.layer(layer(what_), plain(1))), 7U);
}

TEST_F(BackgroundLayersTest, AreWaitedForByTheFrameThatNeedsThemFirstAndByNoOther) {
    BackgroundLayers layers([] {});
    layers.beginFrame(0ms);
    layers.layer(layer(what_), held(7));
    layers.beginFrame(kUntilItIsThere);
    EXPECT_FALSE(layers.layer(layer(what_), plain(1)).exact);
}

TEST_F(BackgroundLayersTest, ForgetEverythingOfAnotherDrawing) {
    BackgroundLayers layers([this] { ready_.release(); });
    layers.beginFrame(0ms);
    layers.layer(layer(what_), plain(7));
    ready_.acquire();
    layers.layer(layer(other_), held(8));
    begun_.acquire();
    layers.clear();
    EXPECT_TRUE(layers.takeReady().empty());
    EXPECT_TRUE(layers.idle());
    EXPECT_EQ(pixelOf(layers.layer(layer(what_), plain(9))), 0U);
    ready_.acquire();
    EXPECT_EQ(pixelOf(layers.layer(layer(what_), plain(1))), 9U);
}

TEST_F(BackgroundLayersTest, LeaveOutWhatFindsNoRoomInThisView) {
    constexpr int kSide = 4000; // 64 MB
    BackgroundLayers layers([] {});
    layers.beginFrame(kUntilItIsThere);
    EXPECT_EQ(pixelOf(layers.layer(layer(what_), plain(7, kSide))), 7U);
    const auto second = layers.layer(layer(other_), plain(8, kSide));
    EXPECT_TRUE(second.exact) << "it is not painted again and again";
    EXPECT_EQ(pixelOf(second), 0U);
    EXPECT_EQ(pixelOf(layers.layer(layer(what_), plain(1))), 7U) << "what is seen stays";
    layers.beginView();
    layers.beginFrame(kUntilItIsThere);
    EXPECT_EQ(pixelOf(layers.layer(layer(other_), plain(9, kSide))), 9U) << "what is seen no longer goes";
}

TEST_F(BackgroundLayersTest, StayEmptyWithoutMemoryWhichIsSaidOnce) {
    BackgroundLayers layers([] {});
    layers.beginFrame(kUntilItIsThere);
    layers.layer(layer(other_), plain(7));
    EXPECT_FALSE(layers.takeShortage());
    const auto shown = layers.layer(layer(what_), [] {
        return [](const Unwanted&) -> BackgroundLayers::Pixels { throw std::bad_alloc(); };
    });
    EXPECT_TRUE(shown.exact);
    EXPECT_EQ(pixelOf(shown), 0U);
    EXPECT_TRUE(layers.takeShortage());
    EXPECT_FALSE(layers.takeShortage());
}

} // namespace
