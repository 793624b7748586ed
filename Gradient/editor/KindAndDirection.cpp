// Choosing a gradient's kind, and its direction or centre in the preview.
#include "Gradient/editor/KindAndDirection.h"

#include "Gradient/editor/EditorItems.h"
#include "Gradient/editor/SnappingOff.h"
#include "Gradient/model/Colors.h"
#include "Gradient/model/Pixels.h"
#include "host/Drawing.h"
#include "host/Mouse.h"

namespace {

TPoint<short> CurrentMouse() {
    TPoint<short> mouse;
    QD::GetMouse(mouse);
    return mouse;
}

/// The mouse as fractions of the preview, not clamped.
TPoint<double> CentreAt(TPoint<short> const& mouse, TRect<short> const& preview) {
    return {static_cast<double>(mouse.h - preview.left) / preview.Width(),
            static_cast<double>(mouse.v - preview.top) / preview.Height()};
}

void DrawLine(TLine<double> const& line) {
    QD::MoveTo(line.start);
    QD::LineTo(line.end);
}

TPoint<double> NextMouse(TPoint<double> const& from) {
    TPoint<short> next;
    WaitMove({TruncateToPixel(from.h), TruncateToPixel(from.v)}, next, 1);
    return TPoint<double>(next);
}

} // namespace

void HandleGradientTypeChange(DialogRef dialog, short item, CGradientData& gradient) {
    gradient.SetType(item == kLinearItem ? kLinearGradient : kRadialGradient);
    ShowKind(dialog, gradient);
    EnableAppropriateControls(dialog, gradient);
    InvalUserItems(dialog);
}

void HandlePreviewClick(DialogRef dialog, CGradientData& gradient) {
    TRect<short> const preview = GetDialogItemBounds(dialog, kPreviewItem);
    TPoint<short> const press = CurrentMouse();
    if (gradient.Type() == kLinearGradient) {
        TLine<double> const line = TrackDialogLine(TPoint<double>(press), preview);
        gradient.SetAngle(static_cast<float>(-line.Angle()));
        InvalDLogItem(dialog, kPreviewItem);
        return;
    }
    do {
        TPoint<double> const centre = CentreAt(CurrentMouse(), preview);
        gradient.SetStart(centre);
        gradient.SetEnd(centre);
        InvalDLogItem(dialog, kPreviewItem);
    } while (StillDown());
}

TLine<double> TrackDialogLine(TPoint<double> const& anchor, TRect<short> const& clip) {
    StThemeDrawingState const drawingState;
    StClipRgnState const clipState;
    TLine<double> line(anchor, anchor);
    StSnappingOff const snappingOff(CSnapSwitches::Current());
    QD::RGBForeColor(&kBlackRGBColor);
    QD::ClipRect(clip);
    QD::PenMode(kPatternXor);
    do {
        // Drawn in exclusive or, so that drawing it again takes it off the screen.
        DrawLine(line);
        TPoint<double> const next = NextMouse(line.end);
        DrawLine(line);
        line.end = next;
        if (NorvU::KeyIsDown(NorvU::kShiftKey)) {
            Restrict(anchor, line.end);
        }
    } while (StillDown());
    return line;
}
