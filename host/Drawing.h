// Drawing: the classic pen and port, off-screen images, paths and the graphics environment that fills with
// gradients.
//
// Coordinates are local pixels of the current port unless said otherwise. A rectangle covers the pixels from
// its top left corner up to, not including, its bottom and right edges; a frame lies inside its rectangle;
// the pen hangs below and to the right of the points it goes through; a painted polygon leaves out the pixels
// on its right and bottom edge. Coordinates in double precision become those of the nearest pixel.
//
// There may be no current port; what is drawn then is nowhere to be seen.
#pragma once

#include "host/Geometry.h"
#include "host/Gradient.h"

#include <cstdint>
#include <memory>

#pragma GCC visibility push(default)

/// A drawing port, a clip or update region, a recorded polygon and a color table; all the host's.
struct OpaqueGrafPtr;
struct OpaqueRgnHandle;
struct OpaquePolyHandle;
struct OpaqueColorTable;
/// An outline of lines and curves; the host's.
struct CGPath;

/// A pattern of 8 rows of 8 pixels, the leftmost in the highest bit; a set bit is drawn in the foreground
/// color.
struct Pattern {
    std::uint8_t pat[8];
};

/// Transfer modes of the pen: the pattern as it is, and exclusive or (drawing twice leaves the picture as it
/// was).
inline constexpr short kPatternCopy = 8;
inline constexpr short kPatternXor = 10;

/// The pen of a port.
struct PenState {
    TPoint<short> location;
    TPoint<short> size;
    short mode = kPatternCopy;
    Pattern pattern{};
};

/// A 16.16 fixed-point number as a double. This one and the next are called while a module is being loaded.
[[nodiscard]] double Fix2X(std::int32_t fixed);
/// A whole number as a 16.16 fixed-point number; beyond what fits, the nearest that does.
[[nodiscard]] std::int32_t Long2Fix(std::int32_t number);

/// Sounds an alert; the argument is the classic duration and may be ignored.
void SysBeep(short duration);
/// Sets the cursor on the screen from a cursor resource; 0 is the arrow.
void SetIDCursor(long cursorId);

/// The classic drawing calls, on the current port.
namespace QD {
void SetPort(OpaqueGrafPtr* port);
/// The mouse in the current port's local coordinates. Never waits by itself.
void GetMouse(TPoint<short>& where);

void GetForeColor(RGBColor* color);
void RGBForeColor(RGBColor const* color);
void GetPenState(PenState* state);
void SetPenState(PenState const* state);
void PenSize(short width, short height);
void PenMode(short mode);
void PenPat(Pattern const* pattern);

void PaintRect(TRect<short> const& rect);
void FrameRect(TRect<short> const& rect);
/// Fills with the background of the port.
void EraseRect(TRect<short> const& rect);
void MoveTo(short h, short v);
void MoveTo(TPoint<double> to);
void LineTo(short h, short v);
void LineTo(TPoint<double> to);

/// Starts to record the lines that follow instead of drawing them.
[[nodiscard]] OpaquePolyHandle* OpenPoly();
/// Ends the recording.
void ClosePoly();
void PaintPoly(OpaquePolyHandle* polygon);
void FramePoly(OpaquePolyHandle* polygon);
/// Frees a recorded polygon.
void KillPoly(OpaquePolyHandle* polygon);

/// Restricts drawing to a rectangle.
void ClipRect(TRect<short> const& rect);
} // namespace QD

/// Draws the host's drop shadow of a rectangle on the current port, outside of the rectangle.
void DrawDropShadow(TRect<short> rect);

/// State of a graphics environment; the host's.
struct HostGraphics;

/// What drawing with paths and gradients goes into. The host makes it and keeps it.
class CGraphicsEnvironment {
  public:
    explicit CGraphicsEnvironment(HostGraphics& state) : state_(&state) {}

    /// Fills the path's interior with a gradient whose start, end and radii are absolute, in the
    /// environment's coordinates. The color is interpolated between adjacent stops along the line from start
    /// to end (type 1) or between start circle and end circle (any other type); beyond them it is that of the
    /// outermost stop. Degenerate or non-finite geometry draws something.
    void CGContextDrawGradient(CGPath const* path, CGradientData const& gradient);

    /// The state, for the host's own use.
    [[nodiscard]] HostGraphics& State() const { return *state_; }

  private:
    HostGraphics* state_;
};

/// A new path with the polygon's outline. The caller gives it back with CGPathRelease.
[[nodiscard]] CGPath const* CreatePolyPath(CFPolygonRef polygon);
/// Releases a path. Null is allowed.
void CGPathRelease(CGPath const* path);

/// Draws the host's feedback line between two points in drawing coordinates.
void DrawConstructionLine(CGraphicsEnvironment* environment, TPoint<double> const& from,
                          TPoint<double> const& to);

/// An off-screen image over a rectangle of the current port.
class CSimplePixMap {
  public:
    /// `depth` is in bits per pixel; at 32 no color table is needed. The image is as sharp as the port behind
    /// it.
    CSimplePixMap(TRect<short> const& bounds, short depth, OpaqueColorTable* colors = nullptr);
    CSimplePixMap(CSimplePixMap const&) = delete;
    CSimplePixMap& operator=(CSimplePixMap const&) = delete;
    ~CSimplePixMap();

    /// Makes the image the current port, in the same coordinates as the port it lies over.
    void BeginDrawing();
    /// The environment that draws into the image, valid between BeginDrawing and EndDrawing.
    [[nodiscard]] CGraphicsEnvironment* GetGEnv();
    /// Makes the port current again that was current before BeginDrawing.
    void EndDrawing();
    /// Copies the image onto the current port at its rectangle.
    void CopyFrom();

  private:
    struct State;
    std::unique_ptr<State> state_;
};

/// Saves the current port, or that there is none, and makes it current again at the end of the scope. If the
/// port is gone by then, none is current.
class StGrafPortSaver {
  public:
    StGrafPortSaver();
    StGrafPortSaver(StGrafPortSaver const&) = delete;
    StGrafPortSaver& operator=(StGrafPortSaver const&) = delete;
    ~StGrafPortSaver();

  private:
    OpaqueGrafPtr* port_;
};

/// Saves colors, pen and background of the current port and restores them at the end of the scope.
class StThemeDrawingState {
  public:
    StThemeDrawingState();
    StThemeDrawingState(StThemeDrawingState const&) = delete;
    StThemeDrawingState& operator=(StThemeDrawingState const&) = delete;
    ~StThemeDrawingState();

  private:
    struct State;
    std::unique_ptr<State> state_;
};

/// Saves the clip region of the current port and restores it at the end of the scope.
class StClipRgnState {
  public:
    StClipRgnState();
    StClipRgnState(StClipRgnState const&) = delete;
    StClipRgnState& operator=(StClipRgnState const&) = delete;
    ~StClipRgnState();

  private:
    struct State;
    std::unique_ptr<State> state_;
};

/// Sets a variable for a scope and gives it its old value back at the end.
template <typename T> class StValueChanger {
  public:
    StValueChanger(T& variable, T const& value) : variable_(variable), saved_(variable) { variable_ = value; }
    StValueChanger(StValueChanger const&) = delete;
    StValueChanger& operator=(StValueChanger const&) = delete;
    ~StValueChanger() { variable_ = saved_; }

  private:
    T& variable_;
    T saved_;
};

#pragma GCC visibility pop
