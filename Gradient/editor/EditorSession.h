// The gradient editor: a modal dialog on one gradient.
#pragma once

#include "Gradient/editor/EditorState.h"
#include "host/Dialogs.h"

/// Lets the user edit the gradient. True if it was confirmed; only then is `gradient` changed.
bool ModalEditGradient(CGradientData& gradient);

/// Fills a dialog that was just made from the gradient, whose first stop becomes the active one.
void InitGradientDialog(DialogRef dialog, CGradientData& gradient, ActiveStop& active);
