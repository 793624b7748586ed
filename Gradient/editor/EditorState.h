// What the handlers and the drawing procedures of the editor share. There is one editor at a time.
#pragma once

#include "host/Gradient.h"

#include <list>

/// The color stop that the editor works on.
using ActiveStop = std::list<CGradientColor>::iterator;

/// The working copy of the gradient being edited.
extern CGradientData gDialogActiveGradient;
/// Color and position of the active stop, as last synchronised.
extern RGBColor gDialogActiveEditColor;
extern double gDialogActivePercent;
/// True while the preview is being drawn. Nothing reads it; it is kept for code that draws, which can tell by
/// it that it draws in the editor.
extern bool gDrawingToDialog;

/// Copies color and position of the active stop to the variables above.
void SyncActiveElementInfo(ActiveStop& active);
