// A drawing and the window that shows it, as far as the host knows about it.
#pragma once

#include "easel/interface/View.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace easel::drawing {
class Drawing;
}

namespace easel::host {

// A line that the host shows on top of a drawing while the user is dragging, in drawing coordinates.
struct ConstructionLine {
    drawing::Point from;
    drawing::Point to;
};

class DrawingWindow {
  public:
    explicit DrawingWindow(std::unique_ptr<drawing::Drawing> drawing);
    ~DrawingWindow();
    DrawingWindow(const DrawingWindow&) = delete;
    DrawingWindow& operator=(const DrawingWindow&) = delete;

    drawing::Drawing& drawing() { return *drawing_; }
    const drawing::Drawing& drawing() const { return *drawing_; }

    const View& view() const { return view_; }
    void setView(const View& view) { view_ = view; }

    // The feedback that is to be seen on top of the drawing; it takes the place of what was there.
    const std::vector<ConstructionLine>& feedback() const { return feedback_; }
    void setFeedback(std::vector<ConstructionLine> lines) { feedback_ = std::move(lines); }

    // The resource id of the cursor last set, if any.
    std::optional<long> cursor() const { return cursor_; }
    void setCursor(long id) { cursor_ = id; }

  private:
    std::unique_ptr<drawing::Drawing> drawing_;
    View view_;
    std::vector<ConstructionLine> feedback_;
    std::optional<long> cursor_;
};

} // namespace easel::host
