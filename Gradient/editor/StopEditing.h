// Adding and removing color stops, and choosing a stop's color.
#pragma once

#include "Gradient/editor/EditorState.h"
#include "host/Dialogs.h"

#include <cstddef>

/// A stop is removed only while there are more than this many.
inline constexpr std::size_t kFewestStops = 2;

/// Adds a stop with the color that the gradient shows at the position, a fraction, and makes it the active
/// one.
void AddGradientElement(DialogRef dialog, double position, CGradientData& gradient, ActiveStop& active);

/// Removes the active stop, whatever their number; the first stop becomes active.
void DeleteGradientElement(DialogRef dialog, CGradientData& gradient, ActiveStop& active);

/// The color swatch was hit: lets the user choose the active stop's color.
void HandleColorPick(DialogRef dialog, ActiveStop& active);

/// Runs the color picker on a color. True if the user confirmed; only then is the color changed.
bool ChooseColor(RGBColor& color);
