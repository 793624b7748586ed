// The tool in the host's palette: its registration, its options and its cursor.
#include "Gradient/tool/Tool.h"

#include "Gradient/editor/EditorSession.h"
#include "Gradient/tool/CanvasClick.h"
#include "Gradient/tool/Globals.h"
#include "host/Mouse.h"
#include "host/Palette.h"
#include "host/Strings.h"
#include "host/Windows.h"

namespace {

constexpr short kPluginToolNames = 1024;
constexpr long kEditCursor = 5000;
constexpr long kTrackCursor = 606;

PaletteElement GradientPaletteElement() {
    PaletteElement element{};
    element.icon = 5100;
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
    GetIndString(name, 5000, 1);
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
    window->SetIDCursor(NorvU::KeyIsDown(NorvU::kOptionKey) ? kEditCursor : kTrackCursor);
}
