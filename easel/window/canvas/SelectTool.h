// The host's own tool, which selects.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/window/canvas/CanvasTool.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace easel::window {

// A click selects, Shift adds and removes, a drag on empty ground selects what it encloses.
class SelectTool : public CanvasTool {
  public:
    void press(Canvas& canvas, const QMouseEvent& event) override;
    void move(Canvas& canvas, const QMouseEvent& event) override;
    void release(Canvas& canvas, const QMouseEvent& event) override;
    void breakOff(Canvas& canvas) override;
    void updateCursor(Canvas& canvas) override;

  private:
    std::optional<QPointF> marqueeFrom_;
    std::vector<std::size_t> selectedBefore_; // the press
};

void selectAll(drawing::Drawing& drawing);

// Deletes the selected objects as one step for undo.
void deleteSelection(drawing::Drawing& drawing);

} // namespace easel::window
