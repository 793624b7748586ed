// Working on color stops with the mouse: selecting, adding, dragging, pulling off.
#include "Gradient/editor/RampEditing.h"

#include "Gradient/editor/EditorItems.h"
#include "Gradient/editor/PositionField.h"
#include "Gradient/editor/StopEditing.h"
#include "Gradient/editor/StopSearch.h"
#include "Gradient/editor/Swatches.h"
#include "Gradient/model/StopOrder.h"
#include "host/Drawing.h"
#include "host/Mouse.h"

#include <algorithm>

namespace {

constexpr double kDragPixels = 4.0;
constexpr int kPullOffPixels = 2;

double PositionAt(TPoint<short> const& mouse, TRect<short> const& ramp) {
    return static_cast<double>(mouse.h - ramp.left) / ramp.Width();
}

/// A stop that is being dragged: on the ramp, or pulled off it with its color kept.
class CStopDrag {
  public:
    CStopDrag(DialogRef dialog, TRect<short> const& ramp, CGradientData& gradient, ActiveStop& active)
        : mDialog(dialog), mRamp(ramp), mGradient(gradient), mActive(active) {}

    void MoveTo(TPoint<short> const& mouse) {
        double const position = std::max(std::min(PositionAt(mouse, mRamp), 1.0), 0.0);
        if (!mPulledOff) {
            SetPosition(position);
        }
        bool const below = mouse.v >= mRamp.bottom + kPullOffPixels;
        if (below && !mPulledOff && mGradient.ColorList().size() > kFewestStops) {
            PullOff();
        }
        if (!below && mPulledOff) {
            PutBack(position);
        }
        SortGradients(mGradient.ColorList());
        UpdateGradientRect(mDialog, kRampItem);
        UpdatePreviewRect(mDialog, kPreviewItem);
    }

  private:
    void SetPosition(double position) {
        mActive->SetPercent(static_cast<float>(position));
        SyncActiveElementInfo(mActive);
        SetPercent(mDialog, position);
        SelectPercent(mDialog);
    }

    void PullOff() {
        mColor = mActive->ColorRGB();
        DeleteGradientElement(mDialog, mGradient, mActive);
        mPulledOff = true;
    }

    void PutBack(double position) {
        AddGradientElement(mDialog, position, mGradient, mActive);
        // The shared state keeps the color of the ramp at this position until the mouse moves on.
        mActive->SetColor(mColor);
        mPulledOff = false;
    }

    DialogRef mDialog;
    TRect<short> mRamp;
    CGradientData& mGradient;
    ActiveStop& mActive;
    bool mPulledOff = false;
    RGBColor mColor;
};

} // namespace

void HandleGradClick(DialogRef dialog, CGradientData& gradient, ActiveStop& active) {
    TRect<short> ramp = GetDialogItemBounds(dialog, kRampItem);
    ramp.Inset(kRampMargin, 0);
    TPoint<short> mouse;
    QD::GetMouse(mouse);

    // Not clamped: a press in the margin can make a stop slightly outside the ramp.
    double const position = PositionAt(mouse, ramp);
    ActiveStop const nearest = FindStopNear(gradient.ColorList(), position, ramp.Width());
    if (nearest != gradient.ColorList().end()) {
        active = nearest;
    } else {
        AddGradientElement(dialog, position, gradient, active);
    }
    SyncActiveElementInfo(active);
    SetPercent(dialog, active->Percent());
    SelectPercent(dialog);
    InvalUserItems(dialog);
    UpdateDialog(dialog, nullptr);
    TrackColorPtDrag(dialog, mouse, ramp, gradient, active);
}

void TrackColorPtDrag(DialogRef dialog, TPoint<short> const& click, TRect<short> const& ramp,
                      CGradientData& gradient, ActiveStop& active) {
    CStopDrag drag(dialog, ramp, gradient, active);
    bool moved = false;
    TPoint<short> last = click;
    while (StillDown()) {
        TPoint<short> mouse;
        QD::GetMouse(mouse);
        if (TLine<double>(TPoint<double>(click), TPoint<double>(mouse)).Length() > kDragPixels) {
            moved = true;
        }
        if (moved && mouse != last) {
            drag.MoveTo(mouse);
            last = mouse;
        }
    }
}
