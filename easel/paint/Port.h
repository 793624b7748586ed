// A drawing port with a pen, as dialogs draw: whole-pixel rectangles, lines and polygons on an image of any
// resolution.
#pragma once

#include "easel/drawing/Paint.h"
#include "easel/paint/pixels/PixelGeometry.h"

#include <array>
#include <cstdint>
#include <vector>

namespace easel::paint {

enum class PenMode : std::int16_t {
    Copy = 8,   // pixels take the pattern's colors
    Invert = 10 // pixels under the pattern's set bits are inverted, so drawing twice leaves them as they were
};

// Eight rows of eight pixels from the top, the leftmost in the highest bit; a set bit is foreground.
using PenPattern = std::array<std::uint8_t, 8>;
inline constexpr PenPattern kSolidPattern{0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff};

struct Pen {
    PixelPoint location;
    PixelPoint size{1, 1};
    PenMode mode = PenMode::Copy;
    PenPattern pattern = kSolidPattern;

    friend bool operator==(const Pen&, const Pen&) = default;
};

// The corners of a recorded polygon in the order they were drawn.
using PortPolygon = std::vector<PixelPoint>;

// Everything that drawing depends on apart from the image.
struct PortState {
    Pen pen;
    drawing::Rgb16 foreground;
    std::uint32_t background = 0xffffff; // 0xRRGGBB; what erasing leaves
    PixelRect clip;

    friend bool operator==(const PortState&, const PortState&) = default;
};

// Coordinates are port pixels; the image holds `scale` screen pixels for each, so a drawing is as sharp as
// its screen. At scale 1 the pixels are exactly those of the classic pen: a frame lies inside its rectangle,
// a line covers the pixels right of and below its points, a painted polygon leaves out the pixels of its
// right and bottom edges.
class Port {
  public:
    // The image shows the port pixels of `bounds`, which may begin anywhere, filled with the background
    // (0xRRGGBB).
    Port(const PixelRect& bounds, double scale, std::uint32_t background);

    const PixelRect& bounds() const { return bounds_; }
    double scale() const { return scale_; }
    PortState& state() { return state_; }
    const PortState& state() const { return state_; }

    // The image, in rows of `imageWidth` opaque 0xFFRRGGBB pixels from the top.
    int imageWidth() const { return imageWidth_; }
    int imageHeight() const { return imageHeight_; }
    std::uint32_t* pixels() { return pixels_.data(); }
    const std::uint32_t* pixels() const { return pixels_.data(); }
    // For each pixel of the image whether it is inverted at present, which cannot be seen over middle gray;
    // empty as long as none ever was.
    const std::vector<bool>& inverted() const { return inverted_; }
    // Where a rectangle of port pixels lies in the image; it may reach outside.
    PixelRect imageRect(const PixelRect& rect) const;
    // What has been drawn since the last call, in port pixels; empty when nothing was.
    PixelRect takeDamage();
    // To be called by those who draw into `pixels` themselves.
    void addDamage(const PixelRect& rect);

    void moveTo(PixelPoint point) { state_.pen.location = point; }
    // Draws with the pen from its location and leaves it at the point; while a polygon is open, records
    // instead.
    void lineTo(PixelPoint point);
    void paintRect(const PixelRect& rect);
    void frameRect(const PixelRect& rect);
    // Fills with the background, whatever the pen's mode.
    void eraseRect(const PixelRect& rect);

    // From here on lines are recorded and not drawn. An already open polygon is begun anew.
    void openPolygon();
    // Ends the recording and returns the corners; empty when no polygon was open.
    PortPolygon closePolygon();
    // Fills by the even-odd rule.
    void paintPolygon(const PortPolygon& polygon);
    void framePolygon(const PortPolygon& polygon);

    // Copies the image of another port of the same scale to the same port pixels, within the clip.
    void copyFrom(const Port& other);

  private:
    enum class Ink { Pen, Background };

    int imageH(int h) const;
    int imageV(int v) const;
    int scaled(int length) const;
    PixelRect imageClip() const;
    void fillSpan(int row, int from, int to, const PixelRect& clip, Ink ink);
    void fillRect(const PixelRect& rect, Ink ink);
    void drawLine(PixelPoint from, PixelPoint to);
    bool patternBit(int row, int column) const;
    void invert(int row, int column);

    PixelRect bounds_;
    double scale_;
    int imageWidth_;
    int imageHeight_;
    std::vector<std::uint32_t> pixels_;
    std::vector<bool> inverted_;
    PortState state_;
    PixelRect damage_;
    bool recording_ = false;
    PortPolygon recorded_;
};

} // namespace easel::paint
