// What assistive technology is told of a drawing and its shapes.
#pragma once

namespace easel::window {

// From then on every canvas has its shapes as children, with names, fills and actions. To be called once.
void installCanvasAccess();

} // namespace easel::window
