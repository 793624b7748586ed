// Implements host/Drawing.h.
#include "host/Drawing.h"

#include "easel/paint/Port.h"
#include "easel/runtime/DialogOrnaments.h"
#include "easel/runtime/GradientFill.h"
#include "easel/runtime/HostGraphics.h"
#include "easel/runtime/HostPixels.h"
#include "easel/runtime/HostPoint.h"
#include "easel/runtime/HostPolygon.h"
#include "easel/runtime/OffscreenImage.h"
#include "easel/runtime/PortScopes.h"
#include "easel/runtime/Process.h"
#include "easel/runtime/User.h"

#include <algorithm>
#include <limits>
#include <memory>

namespace drawing = easel::drawing;
namespace paint = easel::paint;
using easel::runtime::fromHost;
using easel::runtime::journal;
using easel::runtime::process;

namespace {

constexpr double kFixedOne = 65536;

paint::Port& target() {
    return process().ports().target();
}

// The dialog that is being drawn in, or null.
easel::runtime::Dialog* targetDialog() {
    return process().dialogs().owning(target());
}

// What the item shows in which the polygon begins, or null.
easel::runtime::ItemContent* contentUnder(const paint::PortPolygon& polygon) {
    easel::runtime::Dialog* const dialog = targetDialog();
    return dialog && !polygon.empty() ? dialog->contentAt(polygon.front()) : nullptr;
}

paint::PortPolygon* polygonOf(OpaquePolyHandle* handle) {
    return reinterpret_cast<paint::PortPolygon*>(handle);
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
    process().user().beep();
}

void SetIDCursor(long cursorId) {
    journal("SetIDCursor", cursorId);
    process().user().setDialogCursor(cursorId);
}

namespace QD {

void SetPort(OpaqueGrafPtr* port) {
    journal("QD::SetPort");
    process().ports().makeCurrent(reinterpret_cast<paint::Port*>(port));
}

void GetMouse(TPoint<short>& where) {
    journal("QD::GetMouse");
    const drawing::Point at = process().user().mouse().at;
    where.Set(easel::runtime::pixelAt(at.x), easel::runtime::pixelAt(at.y));
}

void GetForeColor(RGBColor* color) {
    journal("QD::GetForeColor");
    const drawing::Rgb16& now = target().state().foreground;
    *color = {now.red, now.green, now.blue};
}

void RGBForeColor(const RGBColor* color) {
    journal("QD::RGBForeColor");
    target().state().foreground = {color->red, color->green, color->blue};
}

void GetPenState(PenState* state) {
    journal("QD::GetPenState");
    const paint::Pen& pen = target().state().pen;
    state->location.Set(static_cast<short>(pen.location.h), static_cast<short>(pen.location.v));
    state->size.Set(static_cast<short>(pen.size.h), static_cast<short>(pen.size.v));
    state->mode = static_cast<short>(pen.mode);
    std::copy(pen.pattern.begin(), pen.pattern.end(), state->pattern.pat);
}

void SetPenState(const PenState* state) {
    journal("QD::SetPenState");
    paint::Pen& pen = target().state().pen;
    pen.location = {state->location.h, state->location.v};
    pen.size = {state->size.h, state->size.v};
    pen.mode = static_cast<paint::PenMode>(state->mode);
    std::copy(std::begin(state->pattern.pat), std::end(state->pattern.pat), pen.pattern.begin());
}

void PenSize(short width, short height) {
    journal("QD::PenSize", width, height);
    target().state().pen.size = {width, height};
}

void PenMode(short mode) {
    journal("QD::PenMode", mode);
    target().state().pen.mode = static_cast<paint::PenMode>(mode);
}

void PenPat(const Pattern* pattern) {
    journal("QD::PenPat");
    std::copy(std::begin(pattern->pat), std::end(pattern->pat), target().state().pen.pattern.begin());
}

void PaintRect(const TRect<short>& rect) {
    journal("QD::PaintRect");
    target().paintRect(fromHost(rect));
    if (easel::runtime::Dialog* const dialog = targetDialog())
        dialog->painted(fromHost(rect), target().state().foreground);
}

void FrameRect(const TRect<short>& rect) {
    journal("QD::FrameRect");
    target().frameRect(fromHost(rect));
}

void EraseRect(const TRect<short>& rect) {
    journal("QD::EraseRect");
    target().eraseRect(fromHost(rect));
    if (easel::runtime::Dialog* const dialog = targetDialog())
        dialog->erased(fromHost(rect));
}

void MoveTo(short h, short v) {
    journal("QD::MoveTo", h, v);
    target().moveTo({h, v});
}

void MoveTo(TPoint<double> to) {
    journal("QD::MoveTo");
    target().moveTo(fromHost(to));
}

void LineTo(short h, short v) {
    journal("QD::LineTo", h, v);
    target().lineTo({h, v});
}

void LineTo(TPoint<double> to) {
    journal("QD::LineTo");
    target().lineTo(fromHost(to));
}

OpaquePolyHandle* OpenPoly() {
    journal("QD::OpenPoly");
    return reinterpret_cast<OpaquePolyHandle*>(process().recording().open(target()));
}

void ClosePoly() {
    journal("QD::ClosePoly");
    process().recording().close(target());
}

void PaintPoly(OpaquePolyHandle* polygon) {
    journal("QD::PaintPoly");
    if (!polygon)
        return;
    target().paintPolygon(*polygonOf(polygon));
    if (easel::runtime::ItemContent* const content = contentUnder(*polygonOf(polygon)))
        content->paintedMark(polygonOf(polygon)->front());
}

void FramePoly(OpaquePolyHandle* polygon) {
    journal("QD::FramePoly");
    if (!polygon)
        return;
    target().framePolygon(*polygonOf(polygon));
    if (easel::runtime::ItemContent* const content = contentUnder(*polygonOf(polygon)))
        content->framedMark(polygonOf(polygon)->front());
}

void KillPoly(OpaquePolyHandle* polygon) {
    journal("QD::KillPoly");
    process().recording().free(polygonOf(polygon));
}

void ClipRect(const TRect<short>& rect) {
    journal("QD::ClipRect");
    target().state().clip = fromHost(rect);
}

} // namespace QD

void DrawDropShadow(TRect<short> rect) {
    journal("DrawDropShadow");
    const easel::runtime::Dialog* const dialog = process().dialogs().owning(target());
    const auto theme = dialog ? dialog->screen().theme : easel::runtime::DialogTheme{};
    easel::runtime::drawShadow(target(), theme, fromHost(rect));
}

void CGraphicsEnvironment::CGContextDrawGradient(const CGPath* path, const CGradientData& gradient) {
    journal("CGraphicsEnvironment::CGContextDrawGradient");
    paint::Port* port = state_->port;
    // Feedback over a drawing window is made of lines and takes no fills.
    if (!port || !path || gradient.ColorList().empty())
        return;
    easel::runtime::fillWithGradient(*port, path->outline, gradient);
    state_->gradient = easel::runtime::ShownGradient{port->bounds(), gradient};
}

const CGPath* CreatePolyPath(CFPolygonRef polygon) {
    journal("CreatePolyPath");
    std::vector<drawing::Point> corners;
    for (const TPoint<double>& vertex : polygon.Storage()->vertices)
        corners.push_back(easel::runtime::toPoint(vertex));
    return std::make_unique<CGPath>(CGPath{drawing::polygonPath(corners)}).release();
}

void CGPathRelease(const CGPath* path) {
    journal("CGPathRelease");
    const std::unique_ptr<const CGPath> storage(path);
}

void DrawConstructionLine(CGraphicsEnvironment* environment, const TPoint<double>& from,
                          const TPoint<double>& to) {
    journal("DrawConstructionLine");
    if (environment)
        environment->State().lines.push_back({easel::runtime::toPoint(from), easel::runtime::toPoint(to)});
}

struct CSimplePixMap::State : easel::runtime::OffscreenImage {
    using OffscreenImage::OffscreenImage;
};

CSimplePixMap::CSimplePixMap(const TRect<short>& bounds, short depth, OpaqueColorTable*)
    : state_(std::make_unique<State>(fromHost(bounds), process().ports())) {
    journal("CSimplePixMap", depth);
}

CSimplePixMap::~CSimplePixMap() = default;

void CSimplePixMap::BeginDrawing() {
    journal("CSimplePixMap::BeginDrawing");
    state_->beginDrawing();
}

CGraphicsEnvironment* CSimplePixMap::GetGEnv() {
    journal("CSimplePixMap::GetGEnv");
    return &state_->environment();
}

void CSimplePixMap::EndDrawing() {
    journal("CSimplePixMap::EndDrawing");
    state_->endDrawing();
}

void CSimplePixMap::CopyFrom() {
    journal("CSimplePixMap::CopyFrom");
    state_->copyTo(target());
    const auto& shown = state_->gradient();
    easel::runtime::Dialog* const dialog = targetDialog();
    if (!shown || !dialog)
        return;
    if (auto* const content = dialog->contentAt({shown->area.left, shown->area.top}))
        content->gradient = shown;
}

StGrafPortSaver::StGrafPortSaver() : port_(reinterpret_cast<OpaqueGrafPtr*>(process().ports().current())) {
    journal("StGrafPortSaver");
}

// The port may have gone with its dialog; then none is current.
StGrafPortSaver::~StGrafPortSaver() {
    process().ports().makeCurrent(reinterpret_cast<paint::Port*>(port_));
}

struct StThemeDrawingState::State {
    easel::runtime::PenScope pen{process().ports()};
    easel::runtime::ForegroundScope foreground{process().ports()};
    easel::runtime::BackgroundScope background{process().ports()};
};

StThemeDrawingState::StThemeDrawingState() : state_(std::make_unique<State>()) {
    journal("StThemeDrawingState");
}

StThemeDrawingState::~StThemeDrawingState() = default;

struct StClipRgnState::State : easel::runtime::ClipScope {
    using PortPartScope::PortPartScope;
};

StClipRgnState::StClipRgnState() : state_(std::make_unique<State>(process().ports())) {
    journal("StClipRgnState");
}

StClipRgnState::~StClipRgnState() = default;
