// What the handlers and the drawing procedures of the editor share.
#include "Gradient/editor/EditorState.h"

RGBColor gDialogActiveEditColor;
double gDialogActivePercent = 0.0;
bool gDrawingToDialog = false;

void SyncActiveElementInfo(ActiveStop& active) {
    gDialogActiveEditColor = active->ColorRGB();
    gDialogActivePercent = active->Percent();
}
