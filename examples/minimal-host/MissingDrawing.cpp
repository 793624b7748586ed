// Drawing into dialogs, cursors and keys, which this host lacks: nothing is drawn in it but its picture.
#include "Missing.h"
#include "host/Drawing.h"
#include "host/Mouse.h"
#include "host/Windows.h"

struct CSimplePixMap::State {};

CSimplePixMap::CSimplePixMap(TRect<short> const& /*bounds*/, short /*depth*/, OpaqueColorTable* /*colors*/) {
    Missing();
}
CSimplePixMap::~CSimplePixMap() = default;
void CSimplePixMap::BeginDrawing() {
    Missing();
}
CGraphicsEnvironment* CSimplePixMap::GetGEnv() {
    Missing();
}
void CSimplePixMap::EndDrawing() {
    Missing();
}
void CSimplePixMap::CopyFrom() {
    Missing();
}

struct StClipRgnState::State {};

StClipRgnState::StClipRgnState() {
    Missing();
}
StClipRgnState::~StClipRgnState() = default;

void CGraphicsEnvironment::CGContextDrawGradient(CGPath const* /*path*/, CGradientData const& /*gradient*/) {
    Missing();
}
CGPath const* CreatePolyPath(CFPolygonRef /*polygon*/) {
    Missing();
}
void CGPathRelease(CGPath const* /*path*/) {
    Missing();
}
CFPolygonRef::CFPolygonRef(CFPolygonRef const& /*other*/, bool /*duplicate*/) {
    Missing();
}
TRect<double> CFPolygonRef::Bounds() const {
    Missing();
}
CFPolygonRef FRectToFPoly(TRect<double> const& /*rect*/) {
    Missing();
}
void RotateFPoly(CFPolygonRef /*polygon*/, double /*degrees*/, TPoint<double> const& /*centre*/) {
    Missing();
}
void KillFPoly(CFPolygonRef /*polygon*/) {
    Missing();
}

void QD::GetForeColor(RGBColor* /*color*/) {
    Missing();
}
void QD::GetPenState(PenState* /*state*/) {
    Missing();
}
void QD::SetPenState(PenState const* /*state*/) {
    Missing();
}
void QD::PenSize(short /*width*/, short /*height*/) {
    Missing();
}
void QD::PenMode(short /*mode*/) {
    Missing();
}
void QD::PenPat(Pattern const* /*pattern*/) {
    Missing();
}
void QD::PaintRect(TRect<short> const& /*rect*/) {
    Missing();
}
void QD::FrameRect(TRect<short> const& /*rect*/) {
    Missing();
}
void QD::EraseRect(TRect<short> const& /*rect*/) {
    Missing();
}
void QD::MoveTo(short /*h*/, short /*v*/) {
    Missing();
}
void QD::MoveTo(TPoint<double> /*to*/) {
    Missing();
}
void QD::LineTo(short /*h*/, short /*v*/) {
    Missing();
}
void QD::LineTo(TPoint<double> /*to*/) {
    Missing();
}
OpaquePolyHandle* QD::OpenPoly() {
    Missing();
}
void QD::ClosePoly() {
    Missing();
}
void QD::PaintPoly(OpaquePolyHandle* /*polygon*/) {
    Missing();
}
void QD::FramePoly(OpaquePolyHandle* /*polygon*/) {
    Missing();
}
void QD::KillPoly(OpaquePolyHandle* /*polygon*/) {
    Missing();
}
void QD::ClipRect(TRect<short> const& /*rect*/) {
    Missing();
}
void DrawDropShadow(TRect<short> /*rect*/) {
    Missing();
}

void SetIDCursor(long /*cursorId*/) {
    Missing();
}
void DWindow::SetIDCursor(long /*cursorId*/) {
    Missing();
}
void QD::GetMouse(TPoint<short>& /*where*/) {
    Missing();
}
void WaitMove(TPoint<short> /*from*/, TPoint<short>& /*to*/, long /*ticks*/) {
    Missing();
}
void Restrict(TPoint<double> /*anchor*/, TPoint<double>& /*point*/) {
    Missing();
}
