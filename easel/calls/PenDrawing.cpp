// The classic drawing calls on the current port, as the host interface names them.
#include "host/Drawing.h"

#include "easel/paint/Port.h"
#include "easel/runtime/CurrentPort.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/OpenDialogs.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

using easel::paint::PixelPoint;
using easel::paint::PixelRect;
using easel::paint::Port;
using easel::paint::PortPolygon;
using easel::runtime::currentPort;
using easel::runtime::journal;

namespace {

PixelRect fromHost(const TRect<short>& rect) {
    return {rect.top, rect.left, rect.bottom, rect.right};
}

// The nearest pixel corner that the 16 bits of a port's coordinates reach; 0 for what is no number.
int toPixel(double coordinate) {
    constexpr double kLowest = std::numeric_limits<short>::min();
    constexpr double kHighest = std::numeric_limits<short>::max();
    return std::isnan(coordinate) ? 0
                                  : static_cast<int>(std::lround(std::clamp(coordinate, kLowest, kHighest)));
}

PixelPoint fromHost(const TPoint<double>& point) {
    return {toPixel(point.h), toPixel(point.v)};
}

PortPolygon* polygonOf(OpaquePolyHandle* handle) {
    return reinterpret_cast<PortPolygon*>(handle);
}

// The polygon that is being recorded. There is one recording at a time, as there is one current port.
PortPolygon* gRecording = nullptr;

} // namespace

namespace QD {

void SetPort(OpaqueGrafPtr* port) {
    journal("QD::SetPort");
    easel::runtime::setCurrentPort(reinterpret_cast<Port*>(port));
}

void GetForeColor(RGBColor* color) {
    journal("QD::GetForeColor");
    const easel::paint::PortColor& now = currentPort().state().foreground;
    *color = {now.red, now.green, now.blue};
}

void RGBForeColor(RGBColor const* color) {
    journal("QD::RGBForeColor");
    currentPort().state().foreground = {color->red, color->green, color->blue};
}

void GetPenState(PenState* state) {
    journal("QD::GetPenState");
    const easel::paint::Pen& pen = currentPort().state().pen;
    state->location.Set(static_cast<short>(pen.location.h), static_cast<short>(pen.location.v));
    state->size.Set(static_cast<short>(pen.size.h), static_cast<short>(pen.size.v));
    state->mode = static_cast<short>(pen.mode);
    std::copy(pen.pattern.begin(), pen.pattern.end(), state->pattern.pat);
}

void SetPenState(PenState const* state) {
    journal("QD::SetPenState");
    easel::paint::Pen& pen = currentPort().state().pen;
    pen.location = {state->location.h, state->location.v};
    pen.size = {state->size.h, state->size.v};
    pen.mode = static_cast<easel::paint::PenMode>(state->mode);
    std::copy(std::begin(state->pattern.pat), std::end(state->pattern.pat), pen.pattern.begin());
}

void PenSize(short width, short height) {
    journal("QD::PenSize", width, height);
    currentPort().state().pen.size = {width, height};
}

void PenMode(short mode) {
    journal("QD::PenMode", mode);
    currentPort().state().pen.mode = static_cast<easel::paint::PenMode>(mode);
}

void PenPat(Pattern const* pattern) {
    journal("QD::PenPat");
    std::copy(std::begin(pattern->pat), std::end(pattern->pat), currentPort().state().pen.pattern.begin());
}

void PaintRect(TRect<short> const& rect) {
    journal("QD::PaintRect");
    currentPort().paintRect(fromHost(rect));
}

void FrameRect(TRect<short> const& rect) {
    journal("QD::FrameRect");
    currentPort().frameRect(fromHost(rect));
}

void EraseRect(TRect<short> const& rect) {
    journal("QD::EraseRect");
    currentPort().eraseRect(fromHost(rect));
}

void MoveTo(short h, short v) {
    journal("QD::MoveTo", h, v);
    currentPort().moveTo({h, v});
}

void MoveTo(TPoint<double> to) {
    journal("QD::MoveTo");
    currentPort().moveTo(fromHost(to));
}

void LineTo(short h, short v) {
    journal("QD::LineTo", h, v);
    currentPort().lineTo({h, v});
}

void LineTo(TPoint<double> to) {
    journal("QD::LineTo");
    currentPort().lineTo(fromHost(to));
}

OpaquePolyHandle* OpenPoly() {
    journal("QD::OpenPoly");
    currentPort().openPolygon();
    auto made = std::make_unique<PortPolygon>();
    gRecording = made.release();
    return reinterpret_cast<OpaquePolyHandle*>(gRecording);
}

void ClosePoly() {
    journal("QD::ClosePoly");
    PortPolygon recorded = currentPort().closePolygon();
    if (gRecording != nullptr)
        *gRecording = std::move(recorded);
    gRecording = nullptr;
}

void PaintPoly(OpaquePolyHandle* polygon) {
    journal("QD::PaintPoly");
    if (polygon != nullptr)
        currentPort().paintPolygon(*polygonOf(polygon));
}

void FramePoly(OpaquePolyHandle* polygon) {
    journal("QD::FramePoly");
    if (polygon != nullptr)
        currentPort().framePolygon(*polygonOf(polygon));
}

void KillPoly(OpaquePolyHandle* polygon) {
    journal("QD::KillPoly");
    if (gRecording == polygonOf(polygon))
        gRecording = nullptr;
    const std::unique_ptr<PortPolygon> last(polygonOf(polygon));
}

void ClipRect(TRect<short> const& rect) {
    journal("QD::ClipRect");
    currentPort().state().clip = fromHost(rect);
}

} // namespace QD
