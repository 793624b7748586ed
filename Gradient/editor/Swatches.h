// What the editor draws itself: the color swatch, the ramp with a marker for each stop, and the preview.
#pragma once

#include "host/Dialogs.h"
#include "host/Geometry.h"
#include "host/Gradient.h"

#include <cstdint>

/// The ramp is this much narrower than its item at each side.
inline constexpr short kRampMargin = 6;

/// Drawing procedures of user items: draw the item on the current port, which is the dialog's.
void UpdateColorRect(DialogRef dialog, short item);
void UpdateGradientRect(DialogRef dialog, short item);
void UpdatePreviewRect(DialogRef dialog, short item);

/// Handles of the procedures, made when the module is loaded.
extern UserItemUPP UpdateColorRectUPP;
extern UserItemUPP UpdateGradientRectUPP;
extern UserItemUPP UpdatePreviewRectUPP;

/// Draws the markers of all stops, and that of the active stop once more, in a band just below the ramp.
/// `origin` is the ramp's bottom left corner, `width` its width.
void DrawTicks(TPoint<short> const& origin, std::int32_t width, CGradientData const& gradient);

/// How a marker is drawn: its frame alone, or filled as well.
enum KTickFill : bool { kOpenTick = false, kFilledTick = true };

/// Draws a triangle that points upwards to `apex`, `size` high and twice as wide.
void DrawTriangleTick(TPoint<short> const& apex, short size, RGBColor const& color, KTickFill fill);
