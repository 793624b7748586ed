// How the host calls the active tool.
#pragma once

#include "easel/drawing/Geometry.h"

struct HostTool;

namespace easel::runtime {

class DrawingWindow;

// Whether a tool has something of the plug-in's to call.
enum class ToolOutcome { Handled, Declined };

// The mouse was pressed in the window. Returns when the tool is done with it, which may be after the release.
ToolOutcome clickWithTool(const HostTool& tool, DrawingWindow& window, drawing::Point where);

// The user asks for the tool's options. Returns when they are closed.
void openToolOptions(const HostTool& tool);

// The pointer is over the window, or a key went down or up while it is: the tool chooses the cursor.
void updateToolCursor(const HostTool& tool, DrawingWindow& window);

} // namespace easel::runtime
