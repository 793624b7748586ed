// Calls the tool and cleans up behind a call that was cancelled.
#include "easel/window/canvas/PluginTool.h"

#include "easel/drawing/WholeChange.h"
#include "easel/runtime/ToolCalls.h"
#include "easel/window/canvas/Canvas.h"
#include "easel/window/canvas/ToolKeys.h"
#include "easel/window/waiting/Interaction.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <optional>
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
    interaction_.pointer.pressed(canvas, event.position());
    work(canvas, event.position());
}

// The tool knows the mouse only, so keys become what the mouse would do.
bool PluginTool::key(Canvas& canvas, const QKeyEvent& event) {
    const std::optional<ToolKeyAnswer> answer = answerToKey(canvas, event);
    if (!answer)
        return false;
    if (!answer->gesture) {
        Q_EMIT declined();
        return true;
    }
    interaction_.pointer.pressed(canvas, answer->gesture->press);
    interaction_.pointer.lead(answer->gesture->way);
    // An editor that is cancelled leaves nothing selected, and the keys would have lost their place.
    drawing::Drawing& drawing = canvas.drawingWindow().drawing();
    const std::vector<std::size_t> selection = drawing.selection();
    work(canvas, answer->gesture->press);
    if (!drawing.hasSelection()) {
        reselect(drawing, selection);
        canvas.marked();
        canvas.reportChange();
    }
    return true;
}

void PluginTool::work(Canvas& canvas, QPointF place) {
    runtime::DrawingWindow& window = canvas.drawingWindow();
    window.activate();
    const std::size_t levels = window.drawing().undoLevels();
    const std::vector<std::size_t> selection = window.drawing().selection();
    canvas.reportPress(place);
    runtime::ToolOutcome outcome = runtime::ToolOutcome::Declined;
    {
        const Waiting::Call call(interaction_.waiting);
        const InputGate::Scope scope(interaction_.gate, &canvas);
        drawing::changeWholly(window.drawing(), [&] {
            outcome = runtime::clickWithTool(tool_, window, canvas.toLocal(place));
        });
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
