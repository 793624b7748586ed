// Implements host/Palette.h.
#include "host/Palette.h"

#include "easel/classic/MacRoman.h"
#include "easel/runtime/Process.h"

#include <limits>

using easel::runtime::journal;
using easel::runtime::process;

namespace {

constexpr short kNoRoom = -1;

// The palette is its own window, so the reference is never looked into. It has to be there when the library
// is loaded, before any palette is.
constexpr char kPaletteWindow = 0;

OpaqueWindowPtr* paletteWindow() {
    return reinterpret_cast<OpaqueWindowPtr*>(const_cast<char*>(&kPaletteWindow));
}

} // namespace

OpaqueWindowPtr* roloPalette = paletteWindow();

TPalette* GetTPaletteFromWindowRef(OpaqueWindowPtr* window) {
    journal("GetTPaletteFromWindowRef");
    return window == paletteWindow() ? &process().palette() : nullptr;
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
    if (HostTool* tool = process().palette().find(toolNumber)) {
        tool->nameCode = nameCode;
        tool->name = text;
    }
}

ToolRec& GetTool(short toolNumber) {
    journal("GetTool", toolNumber);
    HostTool* tool = process().palette().find(toolNumber);
    return tool ? tool->record : process().palette().nobody().record;
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
