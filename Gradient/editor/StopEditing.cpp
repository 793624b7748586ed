// Adding and removing color stops, and choosing a stop's color.
#include "Gradient/editor/StopEditing.h"

#include "Gradient/PluginStrings.h"
#include "Gradient/editor/EditorItems.h"
#include "Gradient/model/ColorInterpolation.h"
#include "Gradient/model/StopOrder.h"
#include "host/Strings.h"

void AddGradientElement(DialogRef dialog, double position, CGradientData& gradient, ActiveStop& active) {
    auto& colors = gradient.ColorList();
    colors.push_front(CalcColorGradient(gradient, position));
    active = colors.begin();
    // Sorting is stable, so the new stop comes before an older one at its position.
    SortGradients(colors);
    ShowActiveStop(dialog, gradient, active);
}

void DeleteGradientElement(DialogRef dialog, CGradientData& gradient, ActiveStop& active) {
    auto& colors = gradient.ColorList();
    colors.erase(active);
    active = colors.begin();
    ShowActiveStop(dialog, gradient, active);
}

void HandleColorPick(DialogRef dialog, ActiveStop& active) {
    RGBColor color = active->ColorRGB();
    if (!ChooseColor(color)) {
        return;
    }
    active->SetColor(color);
    SyncActiveElementInfo(active);
    InvalUserItems(dialog);
}

bool ChooseColor(RGBColor& color) {
    unsigned char prompt[256] = {};
    GetIndString(prompt, kPluginStrings, kColorPromptString);
    RGBColor chosen;
    if (!GetColor(TPoint<short>(), prompt, &color, &chosen)) {
        return false;
    }
    color = chosen;
    return true;
}
