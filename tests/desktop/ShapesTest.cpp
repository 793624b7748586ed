// Selecting with the mouse, looking at pixels.
#include "tests/desktop/ShapesTest.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <utility>

namespace desktop {

int difference(std::uint32_t a, std::uint32_t b) {
    int most = 0;
    for (const int shift : {0, 8, 16})
        most = std::max(most,
                        std::abs(static_cast<int>(a >> shift & 0xff) - static_cast<int>(b >> shift & 0xff)));
    return most;
}

// The window manager hands a press on a little later, but not the keys that follow it.
void ShapesTest::clickAndSee(Spot place) {
    screen().moveTo(place);
    Picture before = screen().picture();
    eventually([&] {
        Picture now = screen().picture();
        const bool still = now.pixels == before.pixels;
        before = std::move(now);
        return still;
    });
    screen().click(place);
    // What is selected already looks the same afterwards.
    eventually([&] { return screen().picture().pixels != before.pixels; }, 700ms);
}

void ShapesTest::select(const std::vector<Spot>& places) {
    clickAndSee(onScreen(places.front().x, places.front().y));
    screen().keyDown("Shift_L");
    for (std::size_t i = 1; i < places.size(); ++i)
        clickAndSee(onScreen(places[i].x, places[i].y));
    screen().keyUp("Shift_L");
}

bool ShapesTest::becomes(Spot place, std::uint32_t color) {
    constexpr int kAbout = 0x14;
    return eventually([&] { return difference(pixelAt(place.x, place.y), color) < kAbout; });
}

void ShapesTest::replaceInDrawing(const std::string& what, const std::string& by) const {
    std::string svg = contents(drawing());
    svg.replace(svg.find(what), what.size(), by);
    std::ofstream(drawing()) << svg;
}

// A shape refers to its gradient by name.
std::string ShapesTest::gradientOf(const std::string& svg, const std::string& id) {
    const std::size_t element = svg.find("id=\"" + id + "\"");
    const std::size_t begin = svg.find("url(#", element) + 5;
    const std::string name = svg.substr(begin, svg.find(')', begin) - begin);
    const std::size_t at = svg.find("id=\"" + name + "\"");
    return at == std::string::npos ? std::string() : svg.substr(at, svg.find("Gradient>", at) - at);
}

std::vector<std::uint32_t> ShapesTest::statusLine() {
    constexpr int kHeight = 20;
    constexpr int kWidth = 600;
    const Window window = drawingWindow();
    const Picture shown = screen().picture();
    std::vector<std::uint32_t> pixels;
    for (int y = window.content.bottom - kHeight; y < window.content.bottom; ++y)
        for (int x = window.content.left + 4; x < window.content.left + kWidth; ++x)
            pixels.push_back(shown.at({x, y}));
    return pixels;
}

std::vector<std::uint32_t> ShapesTest::statusLineAfter(const std::vector<std::uint32_t>& before) {
    std::vector<std::uint32_t> now;
    EXPECT_TRUE(eventually([&] { return (now = statusLine()) != before; }));
    return now;
}

std::string ShapesTest::notice() {
    const Window window = drawingWindow();
    const Spot words{window.content.left + 110, window.content.top + 71};
    std::string text;
    // Three clicks select all of it.
    eventually([&] {
        screen().doubleClick(words);
        screen().click(words);
        screen().key("ctrl+c");
        text = screen().clipboard();
        return text.find(' ') != std::string::npos;
    });
    return text;
}

} // namespace desktop
