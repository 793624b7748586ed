// Working on color stops with the mouse: selecting, adding, dragging, pulling off.
#include "Gradient/editor/RampEditing.h"

#include "Gradient/editor/EditorItems.h"
#include "Gradient/editor/PositionField.h"
#include "Gradient/editor/StopEditing.h"
#include "Gradient/editor/Swatches.h"
#include "Gradient/model/StopOrder.h"
#include "host/Drawing.h"
#include "host/Mouse.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double kSelectPixels = 10.0;
constexpr double kDragPixels = 4.0;
constexpr int kPullOffPixels = 2;

double PositionAt(TPoint<short> const& mouse, TRect<short> const& ramp) {
    return static_cast<double>(mouse.h - ramp.left) / ramp.Width();
}

struct NearestStop {
    ActiveStop stop;
    double distance;
};

NearestStop FindNearest(std::list<CGradientColor>& colors, double position) {
    NearestStop nearest{colors.begin(), std::numeric_limits<double>::max()};
    for (auto stop = colors.begin(); stop != colors.end(); ++stop) {
        double const distance = std::abs(stop->Percent() - position);
        if (distance < nearest.distance) {
            nearest = {stop, distance};
        }
    }
    return nearest;
}

/// A stop that is being dragged: on the ramp, or pulled off it with its color kept.
class StopDrag {
  public:
    StopDrag(DialogRef dialog, TRect<short> const& ramp, CGradientData& gradient, ActiveStop& active)
        : dialog_(dialog), ramp_(ramp), gradient_(gradient), active_(active) {}

    void MoveTo(TPoint<short> const& mouse) {
        double const position = std::max(std::min(PositionAt(mouse, ramp_), 1.0), 0.0);
        if (!pulledOff_) {
            SetPosition(position);
        }
        bool const below = mouse.v >= ramp_.bottom + kPullOffPixels;
        if (below && !pulledOff_ && gradient_.ColorList().size() > kFewestStops) {
            PullOff();
        }
        if (!below && pulledOff_) {
            PutBack(position);
        }
        SortGradients(gradient_.ColorList());
        UpdateGradientRect(dialog_, kRampItem);
        UpdatePreviewRect(dialog_, kPreviewItem);
    }

  private:
    void SetPosition(double position) {
        active_->SetPercent(static_cast<float>(position));
        SyncActiveElementInfo(active_);
        SetPercent(dialog_, position);
        SelectPercent(dialog_);
    }

    void PullOff() {
        color_ = active_->ColorRGB();
        DeleteGradientElement(dialog_, gradient_, active_);
        pulledOff_ = true;
    }

    void PutBack(double position) {
        AddGradientElement(dialog_, position, gradient_, active_);
        // The shared state keeps the color of the ramp at this position until the mouse moves on.
        active_->SetColor(color_);
        pulledOff_ = false;
    }

    DialogRef dialog_;
    TRect<short> ramp_;
    CGradientData& gradient_;
    ActiveStop& active_;
    bool pulledOff_ = false;
    RGBColor color_;
};

} // namespace

void HandleGradClick(DialogRef dialog, CGradientData& gradient, ActiveStop& active) {
    TRect<short> ramp = GetDialogItemBounds(dialog, kRampItem);
    ramp.Inset(kRampMargin, 0);
    TPoint<short> mouse;
    QD::GetMouse(mouse);

    // Not clamped: a press in the margin can make a stop slightly outside the ramp.
    double const position = PositionAt(mouse, ramp);
    NearestStop const nearest = FindNearest(gradient.ColorList(), position);
    if (kSelectPixels / ramp.Width() >= nearest.distance) {
        active = nearest.stop;
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
    StopDrag drag(dialog, ramp, gradient, active);
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
