// A small picture of a drawing.
#pragma once

#include <QPixmap>

namespace easel::drawing {
class Drawing;
}

namespace easel::window {

// The whole drawing on white paper in the middle of a frame of this size, in desktop pixels with `ratio`
// image pixels for each; the rest is transparent.
QPixmap thumbnail(const drawing::Drawing& drawing, QSize frame, double ratio);

} // namespace easel::window
