// What lives as long as the module is loaded. All of it is in this one file since it is made in the order
// written here.
#include "Gradient/tool/Globals.h"

#include "Gradient/editor/EditorState.h"
#include "Gradient/editor/Swatches.h"
#include "host/Dialogs.h"
#include "host/Drawing.h"

double tolD768 = Fix2X(768);
std::int32_t fixAng90 = Long2Fix(90);
std::int32_t fixAng360 = Long2Fix(360);

UserItemUPP UpdateColorRectUPP = NewUserItemUPP(UpdateColorRect);
UserItemUPP UpdateGradientRectUPP = NewUserItemUPP(UpdateGradientRect);
UserItemUPP UpdatePreviewRectUPP = NewUserItemUPP(UpdatePreviewRect);

CGradientData gCurrentGradient;
CGradientData gDialogActiveGradient;
