// The graphics environment: filling paths with gradients, feedback lines, and small numbers and sounds beside
// them.
#include "easel/drawing/Gradient.h"
#include "easel/paint/Painter.h"
#include "easel/runtime/Host.h"
#include "easel/runtime/HostGraphics.h"
#include "easel/runtime/HostPoint.h"
#include "easel/runtime/HostPolygon.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/User.h"
#include "host/Drawing.h"

#include <algorithm>
#include <limits>
#include <memory>

namespace drawing = easel::drawing;
namespace paint = easel::paint;
using easel::runtime::journal;
using easel::runtime::theHost;

namespace {

constexpr double kFixedOne = 65536;

// The port's image with the port's clip.
paint::SurfaceView surfaceOf(paint::Port& port) {
    const paint::SurfaceView whole(port.pixels(), port.imageWidth(), port.imageHeight(),
                                   std::ptrdiff_t{4} * port.imageWidth());
    const paint::PixelRect clip = port.imageRect(port.state().clip);
    return whole.clippedTo({clip.left, clip.top, clip.right, clip.bottom});
}

drawing::Affine toImage(paint::Port const& port) {
    const paint::PixelRect origin = port.imageRect({});
    return {
        port.scale(), 0, 0, port.scale(), static_cast<double>(origin.left), static_cast<double>(origin.top)};
}

drawing::Rgb16 toRgb(RGBColor const& color) {
    return {color.red, color.green, color.blue};
}

// A record whose start, end and radii are absolute already.
drawing::Gradient absoluteGradient(CGradientData const& record) {
    const drawing::Point start = easel::runtime::toPoint(record.Start());
    const drawing::Point end = easel::runtime::toPoint(record.End());
    std::vector<drawing::RampStop> stops;
    for (CGradientColor const& stop : record.ColorList())
        stops.push_back({stop.Percent(), toRgb(stop.ColorRGB())});
    drawing::Gradient gradient{.geometry = drawing::LinearGeometry{start, end},
                               .toDrawing = {},
                               .spread = drawing::Spread::Pad,
                               .ramp = drawing::Ramp(std::move(stops))};
    if (record.Type() != kLinearGradient)
        gradient.geometry = drawing::RadialGeometry{start, record.StartRadius(), end, record.EndRadius()};
    return gradient;
}

} // namespace

double Fix2X(std::int32_t fixed) {
    return fixed / kFixedOne;
}

std::int32_t Long2Fix(std::int32_t number) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t fixed = std::int64_t{number} * 65536;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(fixed, Limits::min(), Limits::max()));
}

void SysBeep(short duration) {
    journal("SysBeep", duration);
    theHost().user->beep();
}

void CGraphicsEnvironment::CGContextDrawGradient(CGPath const* path, CGradientData const& gradient) {
    journal("CGraphicsEnvironment::CGContextDrawGradient");
    paint::Port* port = state_->port;
    // Feedback over a drawing window is made of lines and takes no fills.
    if (!port || !path || gradient.ColorList().empty())
        return;
    const drawing::Gradient ink = absoluteGradient(gradient);
    paint::Painter painter;
    painter.fill(surfaceOf(*port), path->outline, drawing::FillRule::EvenOdd, toImage(*port), &ink);
    port->addDamage(port->bounds());
}

CGPath const* CreatePolyPath(CFPolygonRef polygon) {
    journal("CreatePolyPath");
    std::vector<drawing::Point> corners;
    for (TPoint<double> const& vertex : polygon.Storage()->vertices)
        corners.push_back(easel::runtime::toPoint(vertex));
    return std::make_unique<CGPath>(CGPath{drawing::polygonPath(corners)}).release();
}

void CGPathRelease(CGPath const* path) {
    journal("CGPathRelease");
    const std::unique_ptr<CGPath const> storage(path);
}

void DrawConstructionLine(CGraphicsEnvironment* environment, TPoint<double> const& from,
                          TPoint<double> const& to) {
    journal("DrawConstructionLine");
    if (environment)
        environment->State().lines.push_back({easel::runtime::toPoint(from), easel::runtime::toPoint(to)});
}
