// The editor's items: what is set and refreshed for all of them.
#include "Gradient/editor/EditorItems.h"

#include "Gradient/editor/PositionField.h"

void EnableAppropriateControls(DialogRef /*dialog*/, CGradientData& /*gradient*/) {}

void InvalUserItems(DialogRef dialog) {
    InvalDLogItem(dialog, kRampItem);
    InvalDLogItem(dialog, kPreviewItem);
    InvalDLogItem(dialog, kColorItem);
}

OpaqueMenuRef* GetDialogMenu(DialogRef dialog, short item) {
    ControlRef control = nullptr;
    GetDialogItemAsControl(dialog, item, &control);
    OpaqueMenuRef* menu = nullptr;
    // NOLINTNEXTLINE(bugprone-sizeof-expression): what is read is the reference itself.
    GetControlData(control, 0, kControlPopupButtonMenuHandleTag, sizeof menu, &menu, nullptr);
    return menu;
}

void ResetTemplatePopup(DialogRef dialog) {
    SetItemCtlValue(dialog, kTemplateItem, kNoTemplateEntry);
}

void ShowKind(DialogRef dialog, CGradientData const& gradient) {
    SetItemCtlValue(dialog, kLinearItem, gradient.Type() == kLinearGradient ? 1 : 0);
    SetItemCtlValue(dialog, kRadialItem, gradient.Type() == kRadialGradient ? 1 : 0);
}

void ShowActiveStop(DialogRef dialog, CGradientData& gradient, ActiveStop& active) {
    SyncActiveElementInfo(active);
    SetPercent(dialog, active->Percent());
    SelectPercent(dialog);
    EnableAppropriateControls(dialog, gradient);
    InvalUserItems(dialog);
}
