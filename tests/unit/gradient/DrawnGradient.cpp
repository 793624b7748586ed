// Stands between the plug-in and the host's drawing.
#include "tests/unit/gradient/DrawnGradient.h"

#include "Gradient/editor/EditorState.h"
#include "host/Drawing.h"

#include <dlfcn.h>

std::optional<DrawnGradient> gDrawn;
std::vector<PolygonEvent> gPolygonEvents;

namespace {

bool gDrawingFails = false;

/// The host's own operation, which the one of this program hides.
template <typename Function> Function* HostOperation(char const* mangledName) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, mangledName));
}

} // namespace

FailingDrawing::FailingDrawing() {
    gDrawingFails = true;
}
FailingDrawing::~FailingDrawing() {
    gDrawingFails = false;
}

void CGraphicsEnvironment::CGContextDrawGradient(CGPath const* /*path*/, CGradientData const& gradient) {
    if (gDrawingFails) {
        throw DrawingFailed();
    }
    gDrawn = DrawnGradient{gradient, gDrawingToDialog};
}

CFPolygonRef FRectToFPoly(TRect<double> const& rect) {
    gPolygonEvents.push_back({PolygonEvent::What::Made, gDrawingToDialog});
    return HostOperation<CFPolygonRef(TRect<double> const&)>("_Z12FRectToFPolyRK5TRectIdE")(rect);
}

void KillFPoly(CFPolygonRef polygon) {
    gPolygonEvents.push_back({PolygonEvent::What::Freed, gDrawingToDialog});
    HostOperation<void(CFPolygonRef)>("_Z9KillFPoly12CFPolygonRef")(polygon);
}
