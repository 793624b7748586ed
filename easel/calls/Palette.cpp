// Registration of tools, as the host interface names it.
#include "host/Palette.h"

#include "easel/classic/MacRoman.h"
#include "easel/runtime/Host.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/ToolPalette.h"

#include <limits>

using easel::runtime::journal;
using easel::runtime::thePalette;

namespace {

constexpr short kNoRoom = -1;

// Takes what is written for a number that no tool has.
HostTool& nobody() {
    static HostTool tool(0, PaletteElement{});
    return tool;
}

} // namespace

// The palette is its own window: the reference is never looked into.
OpaqueWindowPtr* roloPalette = reinterpret_cast<OpaqueWindowPtr*>(&thePalette());

TPalette* GetTPaletteFromWindowRef(OpaqueWindowPtr* window) {
    journal("GetTPaletteFromWindowRef");
    return window == reinterpret_cast<OpaqueWindowPtr*>(&thePalette()) ? &thePalette() : nullptr;
}

short AddTool(TPalette* palette, PaletteElement element, short& row, short& toolNumber) {
    journal("AddTool");
    if (!palette || palette->tools().size() >= static_cast<std::size_t>(std::numeric_limits<short>::max()))
        return kNoRoom;
    row = static_cast<short>(palette->tools().size());
    toolNumber = palette->add(element).number;
    return 0;
}

void AddXTNLToolName(short nameCode, short toolNumber, CStr32 name) {
    const std::string text = easel::classic::fromMacRoman(name.Text());
    journal("AddXTNLToolName", nameCode, toolNumber, text);
    if (HostTool* tool = thePalette().find(toolNumber)) {
        tool->nameCode = nameCode;
        tool->name = text;
    }
}

ToolRec& GetTool(short toolNumber) {
    journal("GetTool", toolNumber);
    HostTool* tool = thePalette().find(toolNumber);
    return tool ? tool->record : nobody().record;
}

ToolMethodRec& ToolRec::ToolMethods() {
    journal("ToolRec::ToolMethods");
    return tool_->methods;
}

void ToolRec::SetToolFlag(short flag, bool on) {
    journal("ToolRec::SetToolFlag", flag, on);
    if (on)
        tool_->flags.insert(flag);
    else
        tool_->flags.erase(flag);
}
