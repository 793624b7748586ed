// Stands between the plug-in and the host's drawing.
#include "tests/unit/gradient/DrawnGradient.h"

#include "Gradient/editor/EditorState.h"
#include "host/Drawing.h"

#include <dlfcn.h>

std::optional<DrawnGradient> gDrawn;
std::vector<PolygonEvent> gPolygonEvents;

namespace {

bool gDrawingFails = false;

// The host's own operation, which the one of this program hides.
template <typename Function> Function* HostOperation(const char* mangledName) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, mangledName));
}

} // namespace

FailingDrawing::FailingDrawing() {
    gDrawingFails = true;
}
FailingDrawing::~FailingDrawing() {
    gDrawingFails = false;
}

void CGraphicsEnvironment::CGContextDrawGradient(const CGPath* /*path*/, const CGradientData& gradient) {
    if (gDrawingFails) {
        throw DrawingFailed();
    }
    gDrawn = DrawnGradient{gradient, gDrawingToDialog};
}

CFPolygonRef FRectToFPoly(const TRect<double>& rect) {
    gPolygonEvents.push_back({PolygonEvent::What::Made, gDrawingToDialog});
    return HostOperation<CFPolygonRef(const TRect<double>&)>("_Z12FRectToFPolyRK5TRectIdE")(rect);
}

void KillFPoly(CFPolygonRef polygon) {
    gPolygonEvents.push_back({PolygonEvent::What::Freed, gDrawingToDialog});
    HostOperation<void(CFPolygonRef)>("_Z9KillFPoly12CFPolygonRef")(polygon);
}
