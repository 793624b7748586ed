// What the editor draws itself: the color swatch, the ramp and the preview.
#include "Gradient/editor/Swatches.h"

#include "Gradient/editor/DrawingScopes.h"
#include "Gradient/editor/EditorState.h"
#include "Gradient/model/Colors.h"
#include "Gradient/model/OwnedPolygon.h"
#include "Gradient/model/PolygonFill.h"

namespace {

constexpr short kMarkerBand = 12;
constexpr short kImageDepth = 32;

/// Fills the rectangle with the gradient and frames it, in the image.
void ComposeFramed(CSimplePixMap& image, CFPolygonRef polygon, TRect<short> const& rect,
                   CGradientData const& gradient) {
    image.BeginDrawing();
    FillGradientPoly(image.GetGEnv(), polygon, gradient);
    QD::RGBForeColor(&kBlackRGBColor);
    QD::FrameRect(rect);
    image.EndDrawing();
}

} // namespace

void UpdateColorRect(DialogRef dialog, short item) {
    TRect<short> const rect = GetDialogItemBounds(dialog, item);
    DrawDropShadow(rect);
    StForeColor const foreColor;
    QD::RGBForeColor(&gDialogActiveEditColor);
    QD::PaintRect(rect);
    QD::RGBForeColor(&kBlackRGBColor);
    QD::FrameRect(rect);
}

void UpdateGradientRect(DialogRef dialog, short item) {
    TRect<short> ramp = GetDialogItemBounds(dialog, item);
    ramp.Inset(kRampMargin, 0);
    ramp.bottom = static_cast<short>(ramp.bottom - kMarkerBand);
    // The ramp shows the stops from left to right, whatever the gradient's kind and direction.
    CGradientData gradient(gDialogActiveGradient);
    gradient.SetType(kLinearGradient);
    gradient.SetAngle(0.0F);

    RGBColor const saved = CurrentForeColor();
    CSimplePixMap image(ramp, kImageDepth);
    StForeColor const foreColor(saved);
    StOwnedPolygon const polygon(FRectToFPoly(TRect<double>(ramp)));
    ComposeFramed(image, polygon.Get(), ramp, gradient);
    image.CopyFrom();
    DrawTicks(ramp.BottomLeft(), ramp.Width(), gradient);
}

void UpdatePreviewRect(DialogRef dialog, short item) {
    TRect<short> const rect = GetDialogItemBounds(dialog, item);
    CSimplePixMap image(rect, kImageDepth);
    CFPolygonRef const rectangle = FRectToFPoly(TRect<double>(rect));
    StValueChanger<bool> const drawingToDialog(gDrawingToDialog, true);
    // Taken over after the flag is raised, so that the polygon is freed before the flag is put back.
    StOwnedPolygon const polygon(rectangle);
    ComposeFramed(image, polygon.Get(), rect, gDialogActiveGradient);
    image.CopyFrom();
}
