// The tool in the host's palette: its registration, its options and its cursor.
#include "Gradient/tool/Tool.h"

#include "Gradient/PluginStrings.h"
#include "Gradient/editor/EditorSession.h"
#include "Gradient/tool/CanvasClick.h"
#include "Gradient/tool/Globals.h"
#include "host/Mouse.h"
#include "host/Palette.h"
#include "host/Strings.h"
#include "host/Windows.h"

namespace {

constexpr short kPluginToolNames = 1024;
constexpr short kToolIcon = 5100;
constexpr long kEditCursor = 5000;

PaletteElement GradientPaletteElement() {
    // The members that are not named here are the host's.
    PaletteElement element;
    element.icon = kToolIcon;
    element.group = 0;
    element.position = 13;
    element.attributes = 2;
    element.available = 1;
    return element;
}

void InstallMethods(ToolMethodRec& methods) {
    methods.click = GradientTool;
    methods.slot3 = nullptr;
    methods.options = GradientOptions;
    methods.slot5 = nullptr;
    methods.cursor = GradientCursor;
}

} // namespace

void InitTool() {
    CStr255 name;
    GetIndString(name, kPluginStrings, kToolNameString);
    TPalette* const palette = GetTPaletteFromWindowRef(roloPalette);
    short row = 0;
    short toolNumber = 0;
    AddTool(palette, GradientPaletteElement(), row, toolNumber);
    AddXTNLToolName(kPluginToolNames, toolNumber, CStr32(name));
    ToolRec& tool = GetTool(toolNumber);
    InstallMethods(tool.ToolMethods());
    tool.SetToolFlag(0, true);
}

void GradientOptions() {
    ModalEditGradient(gCurrentGradient);
}

void GradientCursor(DWindow* window) {
    window->SetIDCursor(NorvU::KeyIsDown(NorvU::kOptionKey) ? kEditCursor : kToolCursor);
}
