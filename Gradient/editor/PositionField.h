// The field that shows the active stop's position in percent.
#pragma once

#include "Gradient/editor/EditorState.h"
#include "host/Dialogs.h"

/// Shows a position, given as a fraction.
void SetPercent(DialogRef dialog, double fraction);

/// Selects the whole text of the field.
void SelectPercent(DialogRef dialog);

/// Reads the field as a fraction from 0 to 1. A value beyond is brought back, and the field rewritten. Text
/// that does not begin with a number reads as 0.
void GetActivePercent(DialogRef dialog, double& fraction);

/// The text changed: moves the active stop, or removes it if the field is empty and more than two stops are
/// there.
void HandleLocationEdit(DialogRef dialog, CGradientData& gradient, ActiveStop& active);
