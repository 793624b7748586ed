// The one tool that this host has room for.
#pragma once

#include "host/Palette.h"

#include <string>

/// What the plug-in registered. The callbacks are its code, so they go before the module does.
struct HostTool {
    std::string name;
    ToolMethodRec methods{};
};

HostTool& TheTool();
