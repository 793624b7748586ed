// Turns a record into what the painter takes.
#include "easel/runtime/GradientFill.h"

#include "easel/drawing/Gradient.h"
#include "easel/paint/Painter.h"
#include "easel/paint/Port.h"
#include "easel/runtime/HostPoint.h"

#include <utility>
#include <vector>

namespace easel::runtime {

namespace {

// The port's image with the port's clip.
paint::SurfaceView surfaceOf(paint::Port& port) {
    const paint::SurfaceView whole(port.pixels(), port.imageWidth(), port.imageHeight(),
                                   paint::kBytesPerPixel * port.imageWidth());
    return whole.clippedTo(port.imageRect(port.state().clip));
}

drawing::Affine toImage(const paint::Port& port) {
    const paint::PixelRect origin = port.imageRect({});
    return {
        port.scale(), 0, 0, port.scale(), static_cast<double>(origin.left), static_cast<double>(origin.top)};
}

drawing::Rgb16 toRgb(const RGBColor& color) {
    return {color.red, color.green, color.blue};
}

drawing::Gradient absoluteGradient(const CGradientData& record) {
    const drawing::Point start = toPoint(record.Start());
    const drawing::Point end = toPoint(record.End());
    std::vector<drawing::RampStop> stops;
    for (const CGradientColor& stop : record.ColorList())
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

void fillWithGradient(paint::Port& port, const drawing::Path& outline, const CGradientData& record) {
    const drawing::Gradient source = absoluteGradient(record);
    paint::Painter painter;
    painter.fill(surfaceOf(port), outline, drawing::FillRule::EvenOdd, toImage(port), &source);
    port.addDamage(port.bounds());
}

} // namespace easel::runtime
