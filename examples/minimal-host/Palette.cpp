// host/Palette.h: a palette with room for one tool.
#include "Palette.h"

namespace {

constexpr short kToolNumber = 1;

} // namespace

HostTool& TheTool() {
    static HostTool tool;
    return tool;
}

// The plug-in hands these references back and looks into neither.
OpaqueWindowPtr* roloPalette = nullptr;

TPalette* GetTPaletteFromWindowRef(OpaqueWindowPtr* /*window*/) {
    return nullptr;
}

short AddTool(TPalette* /*palette*/, PaletteElement /*element*/, short& row, short& toolNumber) {
    row = 0;
    toolNumber = kToolNumber;
    return 0;
}

void AddXTNLToolName(short /*nameCode*/, short /*toolNumber*/, CStr32 name) {
    TheTool().name = name.Text();
}

ToolRec& GetTool(short /*toolNumber*/) {
    static ToolRec record(TheTool());
    return record;
}

ToolMethodRec& ToolRec::ToolMethods() {
    return tool_->methods;
}

void ToolRec::SetToolFlag(short /*flag*/, bool /*on*/) {}
