// Draws the line between groups of items and the shadow of swatches.
#include "easel/runtime/DialogOrnaments.h"

#include "easel/paint/Port.h"
#include "easel/runtime/ThemeColor.h"

namespace easel::runtime {

namespace {

constexpr int kShadowWidth = 2;

// Gives the port a plain pen of that color (0xRRGGBB) for a scope.
class PlainPen {
  public:
    PlainPen(paint::Port& port, std::uint32_t color) : port_(port), saved_(port.state()) {
        port_.state().pen = {};
        port_.state().foreground = portColorOf(color);
    }
    PlainPen(const PlainPen&) = delete;
    PlainPen& operator=(const PlainPen&) = delete;
    ~PlainPen() { port_.state() = saved_; }

  private:
    paint::Port& port_;
    paint::PortState saved_;
};

// Two bars, below and to the right, as if the light came from the upper left.
void drawBars(paint::Port& port, std::uint32_t color, const paint::PixelRect& swatch) {
    const PlainPen pen(port, color);
    port.paintRect({.left = swatch.right,
                    .top = swatch.top + kShadowWidth,
                    .right = swatch.right + kShadowWidth,
                    .bottom = swatch.bottom + kShadowWidth});
    port.paintRect({.left = swatch.left + kShadowWidth,
                    .top = swatch.bottom,
                    .right = swatch.right,
                    .bottom = swatch.bottom + kShadowWidth});
}

} // namespace

void drawSeparator(paint::Port& port, const DialogTheme& theme, const paint::PixelRect& bounds) {
    const PlainPen pen(port, theme.separator);
    const int middle = (bounds.top + bounds.bottom) / 2;
    port.paintRect({.left = bounds.left, .top = middle, .right = bounds.right, .bottom = middle + 1});
}

void drawShadow(paint::Port& port, const DialogTheme& theme, const paint::PixelRect& swatch) {
    drawBars(port, theme.shadow, swatch);
    if (!theme.rim)
        return;
    const PlainPen pen(port, *theme.rim);
    port.frameRect({.left = swatch.left - 1,
                    .top = swatch.top - 1,
                    .right = swatch.right + 1,
                    .bottom = swatch.bottom + 1});
}

} // namespace easel::runtime
