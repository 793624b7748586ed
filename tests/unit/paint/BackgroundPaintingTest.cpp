// Whole drawings of which what takes long is painted beside the window.
#include "easel/drawing/Picture.h"
#include "easel/paint/BackgroundLayers.h"
#include "easel/paint/RenderDrawing.h"
#include "easel/svg/Document.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <future>
#include <semaphore>
#include <string>

namespace {

using namespace easel;
using namespace std::chrono_literals;
using drawing::Affine;
using paint::BackgroundLayers;
using Semaphore = std::counting_semaphore<1000>;

constexpr auto kUntilItIsThere = 10min;

constexpr int kSide = 120;

drawing::Drawing drawingOf(const std::string& content) {
    auto read = svg::readBytes(
        "<svg xmlns='http://www.w3.org/2000/svg' width='120' height='120'>" + content + "</svg>", "test.svg");
    return read ? std::move(*read) : drawing::Drawing::create(1, 1);
}

// Filtered groups in groups, a mask with a filter in it, a pattern with one.
const std::string kEffects =
    "<filter id='f'><feGaussianBlur stdDeviation='3'/></filter>"
    "<pattern id='p' width='30' height='20' patternUnits='userSpaceOnUse'>"
    "<circle cx='10' cy='10' r='8' fill='#36c' filter='url(#f)'/></pattern>"
    "<mask id='m'><rect x='20' y='20' width='60' height='60' fill='white' filter='url(#f)'/></mask>"
    "<rect width='120' height='120' fill='url(#p)'/>"
    "<g opacity='.8' filter='url(#f)'><circle cx='40' cy='40' r='30' fill='red'/>"
    "<g filter='url(#f)'><circle cx='60' cy='60' r='20' fill='blue'/></g></g>"
    "<g mask='url(#m)'><rect width='120' height='70' fill='green'/></g>";

paint::Surface paintedAtOnce(const drawing::Drawing& drawing, const Affine& toSurface) {
    paint::Surface surface(kSide, kSide);
    paint::renderDrawing(drawing, surface.view(), toSurface);
    return surface;
}

paint::Surface painted(const drawing::Drawing& drawing, const Affine& toSurface, BackgroundLayers& layers,
                       std::chrono::milliseconds patience = kUntilItIsThere) {
    paint::Surface surface(kSide, kSide);
    layers.beginFrame(patience);
    paint::renderDrawing(drawing, surface.view(), toSurface, 2, nullptr, &layers);
    return surface;
}

// The largest difference of any channel.
int difference(const paint::Surface& a, const paint::Surface& b) {
    int most = 0;
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            for (unsigned shift = 0; shift < 32; shift += 8)
                most = std::max(most, std::abs(static_cast<int>(a.row(y)[x] >> shift & 0xFF) -
                                               static_cast<int>(b.row(y)[x] >> shift & 0xFF)));
    return most;
}

bool isEmpty(const paint::Surface& surface) {
    return difference(surface, paint::Surface(kSide, kSide)) == 0;
}

TEST(BackgroundPainting, ShowsWhatPaintingAtOnceShows) {
    const auto drawing = drawingOf(kEffects);
    for (const Affine& toSurface : {Affine(), Affine::scaling(1.7, 1.7), Affine::translation(-33, 21)}) {
        BackgroundLayers layers([] {});
        const auto wanted = paintedAtOnce(drawing, toSurface);
        EXPECT_FALSE(isEmpty(wanted));
        EXPECT_LE(difference(painted(drawing, toSurface, layers), wanted), 1);
        EXPECT_TRUE(layers.idle());
    }
}

TEST(BackgroundPainting, NeedsNothingNewWhereItIsScrolledALittle) {
    const auto drawing = drawingOf(kEffects);
    BackgroundLayers layers([] {});
    painted(drawing, Affine::scaling(1.7, 1.7), layers);
    EXPECT_EQ(layers.takeReady().size(), 3U);
    // Scroll positions come with roundings.
    const Affine scrolled = Affine::translation(-17 + 1e-10, 9 - 1e-10) * Affine::scaling(1.7, 1.7);
    EXPECT_LE(difference(painted(drawing, scrolled, layers), paintedAtOnce(drawing, scrolled)), 1);
    EXPECT_TRUE(layers.takeReady().empty());
}

TEST(BackgroundPainting, ShowsAGroupUnfilteredAndThenAsItWasBefore) {
    const std::string group =
        "<filter id='f'><feColorMatrix values='0 0 0 0 0 0 0 0 0 1 0 0 0 0 0 0 0 0 1 0'/>"
        "</filter><g filter='url(#f)'><rect width='80' height='80' fill='red'/></g>";
    const auto drawing = drawingOf(group);
    Semaphore ready(0);
    BackgroundLayers layers([&] { ready.release(); });
    const auto first = painted(drawing, {}, layers, 0ms).row(40)[40];
    EXPECT_TRUE(first == 0xFFFF0000 || first == 0xFF00FF00) << "red, unless it was that quick";
    ready.acquire();
    EXPECT_EQ(painted(drawing, {}, layers, 0ms).row(40)[40], 0xFF00FF00) << "as the filter makes it";
    layers.beginView();
    // Zoomed, it is green at once, where it lies now and nowhere else.
    const auto zoomed = painted(drawing, Affine::scaling(0.5, 0.5), layers, 0ms);
    EXPECT_EQ(zoomed.row(30)[30], 0xFF00FF00);
    EXPECT_EQ(zoomed.row(60)[60], 0U);
    ready.acquire();
}

TEST(BackgroundPainting, FollowsAChangeInAFilteredGroup) {
    auto drawing =
        drawingOf("<filter id='f'><feOffset dx='10'/></filter><g filter='url(#f)'>"
                  "<rect width='40' height='40' fill='red'/><rect x='50' width='40' height='40'/></g>");
    BackgroundLayers layers([] {});
    painted(drawing, {}, layers);
    drawing::Object changed = *drawing.object(0);
    changed.fill = drawing::ColorPaint{{0, 0, 65535}, 1};
    drawing.erase(0);
    drawing.insert(0, sealed(std::move(changed)));
    const auto after = painted(drawing, {}, layers);
    EXPECT_EQ(after.row(20)[20], 0xFF0000FF);
    EXPECT_EQ(after.row(20)[70], 0xFF000000);
}

// A picture that takes as long as the test wants.
class SlowPicture : public drawing::Picture {
  public:
    int width() const override { return 1; }
    int height() const override { return 1; }
    std::shared_ptr<const drawing::PicturePixels> pixels() const override {
        const_cast<std::promise<void>&>(decoded).get_future().wait();
        return std::make_shared<const drawing::PicturePixels>(drawing::PicturePixels{1, 1, {0xFF123456}});
    }
    std::string_view bytes() const override { return {}; }
    std::string_view mediaType() const override { return "image/png"; }

    std::promise<void> decoded;
};

TEST(BackgroundPainting, ShowsThePlaceOfAPictureEmptyUntilItIsDecoded) {
    const auto picture = std::make_shared<SlowPicture>();
    auto drawing = drawingOf("<rect width='20' height='120' fill='red'/>");
    drawing::Object object;
    object.kind = drawing::Kind::Picture;
    object.outline = drawing::rectanglePath({40, 40, 100, 100});
    object.fillPattern = drawing::FillPattern::Other;
    object.fill = std::make_shared<const drawing::PlacedPicture>(
        drawing::PlacedPicture{picture, Affine::translation(40, 40) * Affine::scaling(60, 60), true});
    drawing.insert(1, sealed(std::move(object)));
    Semaphore ready(0);
    BackgroundLayers layers([&] { ready.release(); });
    const auto before = painted(drawing, {}, layers, 0ms);
    EXPECT_EQ(before.row(60)[10], 0xFFFF0000);
    EXPECT_EQ(before.row(60)[60], 0U);
    picture->decoded.set_value();
    ready.acquire();
    EXPECT_EQ(layers.takeReady(), (std::vector<drawing::Box>{{40, 40, 100, 100}}));
    const auto after = painted(drawing, {}, layers);
    EXPECT_EQ(after.row(60)[60], 0xFF123456);
    EXPECT_EQ(after.row(40)[40], 0xFF123456);
    EXPECT_EQ(after.row(39)[60], 0U);
}

} // namespace
