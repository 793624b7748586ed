// What the host itself draws in a dialog, in the colors of the desktop.
#pragma once

#include "easel/paint/pixels/PixelGeometry.h"
#include "easel/runtime/Dialog.h"

namespace easel::paint {
class Port;
}

namespace easel::runtime {

// A line along the middle of the bounds.
void drawSeparator(paint::Port& port, const DialogTheme& theme, const paint::PixelRect& bounds);

// The shadow that lifts a swatch off its dialog, and on dark desktops a rim; outside of the swatch's bounds.
void drawShadow(paint::Port& port, const DialogTheme& theme, const paint::PixelRect& swatch);

} // namespace easel::runtime
