// Filters and pictures in the window, which are painted beside it and shown when they are there.
#include "tests/desktop/DesktopTest.h"

#include <fstream>

namespace desktop {
namespace {

// What the filter makes of the color of the shape, and the only color of the picture.
constexpr std::uint32_t kFiltered = 0xf02050;
constexpr std::uint32_t kPictured = 0xd06a1e;
// Inside the filtered shape, in the drawing.
constexpr Spot kInside{360, 90};

class EffectsTest : public DesktopTest {
  protected:
    // The test's drawing with a shape whose filter makes red of blue, green of red and blue of green, and a
    // picture.
    void startWithEffects() {
        std::string text = contents(drawing());
        text.insert(text.rfind("</svg>"), R"svg(
  <filter id="f" color-interpolation-filters="sRGB">
    <feColorMatrix values="0 0 1 0 0  1 0 0 0 0  0 1 0 0 0  0 0 0 1 0"/>
  </filter>
  <rect id="filtered" x="300" y="40" width="120" height="100" fill="#2050f0" filter="url(#f)"/>
  <image x="440" y="110" width="60" height="60" href="data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAAAAIAAAACCAIAAAD91JpzAAAAFklEQVQI12O8kCXHwMDAxMDAwMDAAAAQ/AFcNQkzXwAAAABJRU5ErkJggg=="/>
)svg");
        std::ofstream(drawing()) << text;
        startWithDrawing();
    }
    Spot inside() { return onScreen(kInside.x, kInside.y); }
};

TEST_F(EffectsTest, AFilterIsAppliedToWhatAShapeBecomes) {
    startWithEffects();
    waitForColor(kFiltered);
    screen().click(inside());
    EXPECT_TRUE(colorVanishes(kFiltered));
    screen().key("ctrl+z");
    waitForColor(kFiltered);
    EXPECT_EQ(quit(), 0);
}

TEST_F(EffectsTest, FiltersAndPicturesComeAtEveryZoom) {
    startWithEffects();
    const int before = waitForColor(kPictured).width();
    screen().key("ctrl+plus");
    EXPECT_TRUE(eventually([&] {
        const Picture shown = screen().picture();
        const auto picture = shown.find(kPictured);
        return picture && picture->width() > before && shown.find(kFiltered);
    }));
    EXPECT_EQ(quit(), 0);
}

} // namespace
} // namespace desktop
