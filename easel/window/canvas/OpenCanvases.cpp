// A table of canvases.
#include "easel/window/canvas/OpenCanvases.h"

namespace easel::window {

Canvas* OpenCanvases::of(const runtime::DrawingWindow& window) const {
    const auto found = canvases_.find(&window);
    return found == canvases_.end() ? nullptr : found->second;
}

OpenCanvases::Entry::Entry(OpenCanvases& canvases, const runtime::DrawingWindow& window, Canvas& canvas)
    : canvases_(canvases), window_(window) {
    canvases_.canvases_[&window] = &canvas;
}

OpenCanvases::Entry::~Entry() {
    canvases_.canvases_.erase(&window_);
}

} // namespace easel::window
