// Reshaping an object's gradient by a press or a drag on the drawing.
#include "Gradient/tool/DragTracking.h"

#include "Gradient/editor/SnappingOff.h"
#include "Gradient/model/Colors.h"
#include "Gradient/tool/ObjectGradient.h"
#include "Gradient/tool/Tool.h"
#include "host/Drawing.h"
#include "host/Gradient.h"
#include "host/Mouse.h"
#include "host/Objects.h"
#include "host/Windows.h"

namespace {

constexpr double kPolygonTolerance = 0.07;

/// The point as fractions of the rectangle. A rectangle without extent gives coordinates that are not finite,
/// on purpose.
TPoint<double> RelativeTo(TRect<double> const& box, TPoint<double> const& point) {
    return {(point.h - box.left) / box.Width(), (point.v - box.top) / box.Height()};
}

void MoveCentre(TPoint<double> const& where, TessObject* object, CGradientData& data) {
    TessObject polygon;
    ObjToPoly(object, polygon, kPolygonTolerance);
    if (polygon.WhatObject() == 0) {
        return;
    }
    TPoint<double> const centre = RelativeTo(object->BBox(), where);
    data.SetStart(centre);
    data.SetEnd(centre);
    PutGradient(*object, data);
    RecoverObject(polygon);
}

} // namespace

bool TrackGradientObjFlow(TPoint<double> const& where, TessObject* object) {
    SharedResourcePtr<CGradient> const gradient = object->GetGradient();
    if (gradient == nullptr) {
        return false;
    }
    CGradientData data = gradient->GetGradientData();
    if (data.Type() != kLinearGradient) {
        MoveCentre(where, object, data);
    } else if (BreakHysteresis(where, kToolCursor)) {
        ReflowGradientObj(TrackLine(where), object, data);
    }
    return true;
}

TLine<double> TrackLine(TPoint<double> const& start) {
    StThemeDrawingState const drawingState;
    TPoint<double> current = start;
    CSnapSwitches const snaps = CSnapSwitches::Current();
    CSyncronizedBuffer buffer(ActiveDrawingWindow(), true);
    QD::RGBForeColor(&kBlackRGBColor);
    StSnappingOff const snappingOff(snaps);
    do {
        ActiveDrawingWindow()->ScrollWDiag(false);
        buffer.RefreshAndBeginDrawing();
        DrawConstructionLine(buffer.GetGEnv(), start, current);
        buffer.EndDrawingAndUpdateScreen();
        current = PolyNewMouse(current);
        if (NorvU::KeyIsDown(NorvU::kShiftKey)) {
            Restrict(start, current);
        }
    } while (StillDown());
    return {start, current};
}

void ReflowGradientObj(TLine<double> const& line, TessObject* object, CGradientData& data) {
    TessObject polygon;
    ObjToPoly(object, polygon, kPolygonTolerance);
    if (polygon.WhatObject() == 0) {
        return;
    }
    // The fill turns the shape by the gradient's angle rather than the gradient by the shape's, hence the
    // sign.
    data.SetAngle(static_cast<float>(-line.Angle()));
    PutGradient(*object, data);
    RecoverObject(polygon);
}
