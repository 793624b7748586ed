// Puts a drawing on paper.
#pragma once

class QPrinter;
class QString;

namespace easel::drawing {
class Drawing;
}

namespace easel::window {

// One page with the drawing as large as the page lets it be, but not larger than it is. Empty, or the reason
// why not.
QString printDrawing(const drawing::Drawing& drawing, QPrinter& printer);

} // namespace easel::window
