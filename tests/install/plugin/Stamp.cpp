// A plug-in that adds a tool of its own to the palette.
#include "host/Palette.h"

extern "C" __attribute__((visibility("default"))) std::int32_t MainEntry(std::int16_t message,
                                                                         XTNLParmBlk* /*block*/) {
    if (message == 1) {
        short row = 0;
        short toolNumber = 0;
        AddTool(GetTPaletteFromWindowRef(roloPalette), PaletteElement(), row, toolNumber);
        AddXTNLToolName(1024, toolNumber, CStr32(CStr255("Stamp")));
    }
    return 0;
}
