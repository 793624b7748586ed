// The gradient editor: a modal dialog on one gradient.
#include "Gradient/editor/EditorSession.h"

#include "Gradient/ModalDialogs.h"
#include "Gradient/TemplateUtil/TemplateMenu.h"
#include "Gradient/editor/EditorItems.h"
#include "Gradient/editor/KindAndDirection.h"
#include "Gradient/editor/PositionField.h"
#include "Gradient/editor/RampEditing.h"
#include "Gradient/editor/StopEditing.h"
#include "Gradient/editor/Swatches.h"
#include "Gradient/editor/TemplateHits.h"
#include "host/Drawing.h"
#include "host/Windows.h"

namespace {

void InstallDrawProcs(DialogRef dialog) {
    TRect<short> box;
    SetUserDrawProc(dialog, kUpperSeparatorItem, box, UpdateSeparatorUPP);
    SetUserDrawProc(dialog, kLowerSeparatorItem, box, UpdateSeparatorUPP);
    SetUserDrawProc(dialog, kRampItem, box, UpdateGradientRectUPP);
    SetUserDrawProc(dialog, kColorItem, box, UpdateColorRectUPP);
    SetUserDrawProc(dialog, kPreviewItem, box, UpdatePreviewRectUPP);
}

void HandleItem(DialogRef dialog, short item, CGradientData& gradient, ActiveStop& active) {
    // Only a change of stops resets the popup: after one the gradient is no longer the template that was
    // loaded.
    switch (item) {
    case kRampItem:
        HandleGradClick(dialog, gradient, active);
        ResetTemplatePopup(dialog);
        break;
    case kPositionItem:
        HandleLocationEdit(dialog, gradient, active);
        ResetTemplatePopup(dialog);
        break;
    case kColorItem:
        HandleColorPick(dialog, active);
        ResetTemplatePopup(dialog);
        break;
    case kPreviewItem:
        HandlePreviewClick(dialog, gradient);
        break;
    case kTemplateItem:
        HandleTemplateMenuHit(dialog, gradient, active);
        break;
    case kLinearItem:
    case kRadialItem:
        HandleGradientTypeChange(dialog, item, gradient);
        break;
    default:
        break;
    }
}

/// Runs the dialog until one of its two closing buttons is hit and returns that one.
short RunLoop(DialogRef dialog, ActiveStop& active) {
    short item = 0;
    do {
        ModalDialog(StdDlogFilterUPP, &item);
        HandleItem(dialog, item, gDialogActiveGradient, active);
    } while (item != kOKItem && item != kCancelItem);
    return item;
}

} // namespace

bool ModalEditGradient(CGradientData& gradient) {
    StGrafPortSaver const port;
    ActiveStop active;
    gDialogActiveGradient = gradient;
    DialogRef const dialog = TessGetNewDialog(kEditorDialog, nullptr, InFrontOfAllWindows());
    if (dialog == nullptr) {
        return false;
    }
    SetPortDialogPort(dialog);
    SetIDCursor(0);
    InitGradientDialog(dialog, gDialogActiveGradient, active);
    ShowWindow(GetDialogWindow(dialog));
    bool const confirmed = RunLoop(dialog, active) == kOKItem;
    if (confirmed) {
        gradient = gDialogActiveGradient;
    }
    DisposeDialog(dialog);
    return confirmed;
}

void InitGradientDialog(DialogRef dialog, CGradientData& gradient, ActiveStop& active) {
    InstallDrawProcs(dialog);
    active = gradient.ColorList().begin();
    SyncActiveElementInfo(active);
    SetPercent(dialog, active->Percent());
    ResetTemplatePopup(dialog);
    BuildTemplateMenu(GetDialogMenu(dialog, kTemplateItem), kTemplateFileType);
    EnableAppropriateControls(dialog, gradient);
    ShowKind(dialog, gradient);
}
