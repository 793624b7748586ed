// Calls the tool and cleans up behind a call that was cancelled.
#include "easel/window/canvas/PluginTool.h"

#include "easel/runtime/Host.h"
#include "easel/runtime/ToolCalls.h"
#include "easel/window/canvas/Canvas.h"
#include "easel/window/main/DesktopUser.h"

#include <QMouseEvent>

namespace easel::window {

PluginTool::PluginTool(const HostTool& tool, DesktopUser& user) : tool_(tool), user_(user) {}

void PluginTool::press(Canvas& canvas, const QMouseEvent& event) {
    runtime::DrawingWindow& window = canvas.drawingWindow();
    runtime::theHost().activeWindow = &window;
    user_.pointer().pressed(canvas, event.position());
    const std::size_t levels = window.drawing().undoLevels();
    runtime::ToolOutcome outcome = runtime::ToolOutcome::declined;
    {
        const DesktopUser::Call call(user_);
        const InputGate::Scope scope(user_.gate(), &canvas);
        outcome = runtime::clickWithTool(tool_, window, canvas.toLocal(event.position()));
        // A drag that was broken off has let go of the button where it stood; nothing was to come of it.
        if (user_.cancelled() && window.drawing().undoLevels() > levels)
            window.drawing().undo();
    }
    canvas.marked();
    canvas.reportChange();
    canvas.refreshCursor();
    if (outcome == runtime::ToolOutcome::declined)
        Q_EMIT declined();
}

void PluginTool::updateCursor(Canvas& canvas) {
    const DesktopUser::Call call(user_);
    runtime::updateToolCursor(tool_, canvas.drawingWindow());
}

void PluginTool::openOptions() {
    if (user_.busy())
        return;
    const DesktopUser::Call call(user_);
    runtime::openToolOptions(tool_);
}

} // namespace easel::window
