// Calls the callbacks of a tool.
#include "easel/runtime/ToolCalls.h"

#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/HostPoint.h"
#include "easel/runtime/ToolPalette.h"
#include "host/Windows.h"

namespace easel::runtime {

namespace {

constexpr std::uint16_t kMouseDownEvent = 1;

} // namespace

ToolOutcome clickWithTool(const HostTool& tool, DrawingWindow& window, drawing::Point where) {
    if (!tool.methods.click)
        return ToolOutcome::Declined;
    EventRecord event;
    event.what = kMouseDownEvent;
    const bool handled = tool.methods.click(&window.ref(), event, toHost(where));
    // What changes from here on is no part of what the tool did.
    window.drawing().closeUndo();
    return handled ? ToolOutcome::Handled : ToolOutcome::Declined;
}

void openToolOptions(const HostTool& tool) {
    if (tool.methods.options)
        tool.methods.options();
}

void updateToolCursor(const HostTool& tool, DrawingWindow& window) {
    if (tool.methods.cursor)
        tool.methods.cursor(&window.ref());
}

} // namespace easel::runtime
