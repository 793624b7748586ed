// Calls the tool and cleans up behind a call that was cancelled.
#include "easel/window/canvas/PluginTool.h"

#include "easel/runtime/ToolCalls.h"
#include "easel/window/canvas/Canvas.h"
#include "easel/window/waiting/Interaction.h"

#include <QMouseEvent>

#include <vector>

namespace easel::window {

namespace {

void reselect(drawing::Drawing& drawing, const std::vector<std::size_t>& selection) {
    drawing.unselectAll();
    for (const std::size_t index : selection)
        drawing.select(index);
}

} // namespace

PluginTool::PluginTool(const HostTool& tool, Interaction& interaction)
    : tool_(tool), interaction_(interaction) {}

void PluginTool::press(Canvas& canvas, const QMouseEvent& event) {
    runtime::DrawingWindow& window = canvas.drawingWindow();
    window.activate();
    interaction_.pointer.pressed(canvas, event.position());
    const std::size_t levels = window.drawing().undoLevels();
    const std::vector<std::size_t> selection = window.drawing().selection();
    canvas.reportPress(event.position());
    runtime::ToolOutcome outcome = runtime::ToolOutcome::Declined;
    {
        const Waiting::Call call(interaction_.waiting);
        const InputGate::Scope scope(interaction_.gate, &canvas);
        outcome = runtime::clickWithTool(tool_, window, canvas.toLocal(event.position()));
        // A drag that was broken off has let go of the button where it stood; nothing was to come of it.
        if (interaction_.waiting.cancelled() && window.drawing().undoLevels() > levels) {
            window.drawing().takeBack();
            reselect(window.drawing(), selection);
        }
    }
    canvas.marked();
    canvas.reportChange();
    canvas.reportRelease();
    canvas.refreshCursor();
    if (outcome == runtime::ToolOutcome::Declined)
        Q_EMIT declined();
}

void PluginTool::updateCursor(Canvas& canvas) {
    const Waiting::Call call(interaction_.waiting);
    runtime::updateToolCursor(tool_, canvas.drawingWindow());
}

void PluginTool::openOptions() {
    if (interaction_.waiting.busy())
        return;
    const Waiting::Call call(interaction_.waiting);
    runtime::openToolOptions(tool_);
}

} // namespace easel::window
