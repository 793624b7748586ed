// The example of another host: what its pictures show after gestures, and that nothing of Easel is loaded by
// it.
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Point {
    double h;
    double v;
};

struct Box {
    double left;
    double top;
    double right;
    double bottom;
};

// What the example draws: one rectangle without a gradient, one with a radial gradient from red to blue.
constexpr int kWidth = 240;
constexpr int kHeight = 120;
constexpr Box kPlain{20, 20, 110, 100};
constexpr Box kRadial{130, 20, 220, 100};
constexpr Point kMiddleOfRadial{175, 60};

using Color = std::array<double, 3>;
constexpr Color kWhite{255, 255, 255};
constexpr Color kGray{128, 128, 128};

std::array<Point, 4> cornersOf(const Box& box) {
    return {{{box.left, box.top}, {box.right, box.top}, {box.right, box.bottom}, {box.left, box.bottom}}};
}

bool holds(const Box& box, const Point& point) {
    return point.h > box.left && point.h < box.right && point.v > box.top && point.v < box.bottom;
}

// Black to white along the line, from where a perpendicular to it first meets the box to where it last does.
Color risingAlong(const Point& from, const Point& to, const Box& box, const Point& point) {
    const auto along = [&](const Point& p) { return p.h * (to.h - from.h) + p.v * (to.v - from.v); };
    std::array<double, 4> ends{};
    const std::array<Point, 4> corners = cornersOf(box);
    std::transform(corners.begin(), corners.end(), ends.begin(), along);
    const auto [first, last] = std::minmax_element(ends.begin(), ends.end());
    const double level = 255 * (along(point) - *first) / (*last - *first);
    return {level, level, level};
}

// Red at the centre, blue at the corner that is farthest from it.
Color redToBlueFrom(const Point& centre, const Box& box, const Point& point) {
    const auto distance = [&](const Point& p) { return std::hypot(p.h - centre.h, p.v - centre.v); };
    double farthest = 0;
    for (const Point& corner : cornersOf(box))
        farthest = std::max(farthest, distance(corner));
    const double share = distance(point) / farthest;
    return {255 * (1 - share), 0, 255 * share};
}

class MinimalHost : public testing::Test {
  protected:
    // Lets the example make the gestures; its picture and its answers are there afterwards.
    void play(const std::string& gestures, const std::string& environment = "") {
        const std::string command = "exec env " + environment +
                                    " '" MINIMAL_HOST "' '" GRADIENT_MODULE "' '" +
                                    (folder_ / "picture.ppm").string() + "' " + gestures + " >'" +
                                    (folder_ / "answers").string() + "'";
        ASSERT_EQ(std::system(command.c_str()), 0) << command;
        answers_ = tests::contentOf(folder_ / "answers");
        readPicture();
    }

    // Every pixel's centre has the color that `colorAt` gives for it, as near as 8 bits come.
    template <typename ColorAt> void expectPicture(const ColorAt& colorAt) const {
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x) {
                const Color expected = colorAt(Point{x + 0.5, y + 0.5});
                for (std::size_t channel = 0; channel < expected.size(); ++channel)
                    ASSERT_NEAR(levelAt(x, y, channel), expected[channel], 1) << "at " << x << ", " << y;
            }
    }

    tests::TemporaryFolder folder_;
    std::string answers_;

  private:
    void readPicture() {
        std::istringstream in(tests::contentOf(folder_ / "picture.ppm"));
        std::string magic;
        int width = 0;
        int height = 0;
        int most = 0;
        in >> magic >> width >> height >> most;
        in.get();
        ASSERT_EQ(magic, "P6");
        ASSERT_EQ(width, kWidth);
        ASSERT_EQ(height, kHeight);
        ASSERT_EQ(most, 255);
        levels_.assign(std::istreambuf_iterator<char>(in), {});
        ASSERT_EQ(levels_.size(), std::size_t{kWidth} * kHeight * 3);
    }

    double levelAt(int x, int y, std::size_t channel) const {
        const std::size_t pixel = static_cast<std::size_t>(y) * kWidth + static_cast<std::size_t>(x);
        return static_cast<unsigned char>(levels_[pixel * 3 + channel]);
    }

    std::vector<char> levels_;
};

// The picture with one color rule for each of the two rectangles.
template <typename InPlain, typename InRadial> auto scene(const InPlain& inPlain, const InRadial& inRadial) {
    return [=](const Point& point) {
        if (holds(kPlain, point))
            return inPlain(point);
        return holds(kRadial, point) ? inRadial(point) : kWhite;
    };
}

const auto kAsItWas = [](const Point& point) { return redToBlueFrom(kMiddleOfRadial, kRadial, point); };

TEST_F(MinimalHost, DrawsItsObjectsUntouchedWhenAClickMissesThem) {
    play("5,5");
    EXPECT_EQ(answers_, "Gradient\nbeep\n5,5: not handled\n");
    expectPicture(scene([](const Point&) { return kGray; }, kAsItWas));
}

TEST_F(MinimalHost, ShowsBlackToWhiteFromLeftToRightAfterAClick) {
    play("65,60");
    EXPECT_EQ(answers_, "Gradient\n65,60: handled\n");
    const auto leftToRight = [](const Point& point) {
        const double level = 255 * (point.h - kPlain.left) / (kPlain.right - kPlain.left);
        return Color{level, level, level};
    };
    expectPicture(scene(leftToRight, kAsItWas));
}

TEST_F(MinimalHost, ShowsColorsRisingAlongADraggedLine) {
    struct Line {
        Point from;
        Point to;
    };
    const std::vector<Line> lines = {{{30, 90}, {100, 30}},
                                     {{100, 30}, {30, 90}},
                                     {{40, 30}, {60, 95}},
                                     {{65, 90}, {65, 30}},
                                     {{90, 50}, {30, 45}}};
    for (const Line& line : lines) {
        std::ostringstream drag;
        drag << line.from.h << ',' << line.from.v << ':' << line.to.h << ',' << line.to.v;
        SCOPED_TRACE(drag.str());
        play("65,60 " + drag.str());
        expectPicture(scene(
            [&](const Point& point) { return risingAlong(line.from, line.to, kPlain, point); }, kAsItWas));
    }
}

TEST_F(MinimalHost, TakesTheLineFromThePressToTheReleaseWhateverLiesBetween) {
    play("65,60 30,90:31,90:90,95:50,40:100,30");
    expectPicture(scene(
        [](const Point& point) {
            return risingAlong({30, 90}, {100, 30}, kPlain, point);
        },
        kAsItWas));
}

TEST_F(MinimalHost, LeavesALinearGradientAsItIsWhenThePressIsNoDrag) {
    play("65,60 65,60:66,61");
    EXPECT_THAT(answers_, testing::EndsWith("65,60:66,61: handled\n"));
    expectPicture(scene(
        [](const Point& point) {
            return risingAlong({0, 0}, {1, 0}, kPlain, point);
        },
        kAsItWas));
}

TEST_F(MinimalHost, ShowsARadialGradientAboutThePointThatWasPressed) {
    play("150,80");
    expectPicture(scene([](const Point&) { return kGray; },
                        [](const Point& point) {
                            return redToBlueFrom({150, 80}, kRadial, point);
                        }));
}

// The libraries of which the loader itself says in its record that it did this to them, in order.
std::vector<std::string> inRecord(const std::filesystem::path& folder, const std::string& what) {
    std::vector<std::string> libraries;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (!entry.path().filename().string().starts_with("loader."))
            continue;
        std::istringstream record(tests::contentOf(entry.path()));
        for (std::string line; std::getline(record, line);)
            if (const auto at = line.find(what); at != std::string::npos) {
                std::istringstream rest(line.substr(at + what.size()));
                rest >> libraries.emplace_back();
            }
    }
    return libraries;
}

TEST_F(MinimalHost, LoadsOneHostLibraryItsOwnAndUnloadsTheModule) {
    play("65,60", "LD_DEBUG=files LD_DEBUG_OUTPUT='" + (folder_ / "loader").string() + "'");
    const std::vector<std::string> loaded = inRecord(folder_.path(), "calling init: ");
    EXPECT_THAT(loaded, testing::Contains(GRADIENT_MODULE));
    std::vector<std::string> hosts;
    std::copy_if(loaded.begin(), loaded.end(), std::back_inserter(hosts), [](const std::string& library) {
        return std::filesystem::path(library).filename().string().find("kestrad") != std::string::npos;
    });
    EXPECT_THAT(hosts, testing::ElementsAre(MINIMAL_HOST_LIBRARY));

    const std::vector<std::string> unloaded = inRecord(folder_.path(), "calling fini: ");
    ASSERT_FALSE(unloaded.empty());
    // Unloaded, that is, before the program itself ends.
    EXPECT_EQ(unloaded.front(), GRADIENT_MODULE);
}

} // namespace
