// The field that shows the active stop's position in percent.
#include "Gradient/editor/PositionField.h"

#include "Gradient/ModalDialogs.h"
#include "Gradient/editor/EditorItems.h"
#include "Gradient/editor/StopEditing.h"
#include "Gradient/model/DecimalNumber.h"
#include "Gradient/model/StopOrder.h"

namespace {

constexpr double kPercentScale = 100.0;
constexpr short kDecimals = 2;

void ShowSelected(DialogRef dialog, double fraction) {
    SetPercent(dialog, fraction);
    SelectPercent(dialog);
}

} // namespace

void SetPercent(DialogRef dialog, double fraction) {
    CStr255 text;
    DoubleToStr(kPercentScale * fraction, kDecimals, text);
    SetDLOGText(dialog, kPositionItem, text);
}

void SelectPercent(DialogRef dialog) {
    SelectWholeText(dialog, kPositionItem);
}

void GetActivePercent(DialogRef dialog, double& fraction) {
    CStr255 text;
    GetDLOGText(dialog, kPositionItem, text);
    fraction = ReadDecimal(text.c_str()) / kPercentScale;
    if (fraction > 1.0) {
        fraction = 1.0;
        ShowSelected(dialog, fraction);
    }
    if (0.0 > fraction) {
        fraction = 0.0;
        ShowSelected(dialog, fraction);
    }
}

void HandleLocationEdit(DialogRef dialog, CGradientData& gradient, ActiveStop& active) {
    CStr255 text;
    GetDLOGText(dialog, kPositionItem, text);
    if (gradient.ColorList().size() > kFewestStops && text.Length() == 0) {
        DeleteGradientElement(dialog, gradient, active);
        return;
    }
    double fraction = 0.0;
    GetActivePercent(dialog, fraction);
    active->SetPercent(static_cast<float>(fraction));
    SortGradients(gradient.ColorList());
    SyncActiveElementInfo(active);
    InvalUserItems(dialog);
}
