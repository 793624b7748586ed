// Draws construction lines.
#include "easel/runtime/Feedback.h"

#include "easel/drawing/Path.h"
#include "easel/paint/Painter.h"

namespace easel::runtime {

namespace {

constexpr double kHalfWidth = 0.5;

} // namespace

void drawFeedback(const std::vector<ConstructionLine>& lines, const drawing::Affine& toImage,
                  const paint::SurfaceView& surface) {
    paint::Painter painter;
    for (const ConstructionLine& line : lines) {
        const drawing::Point from = toImage(line.from);
        const drawing::Point to = toImage(line.to);
        const double distance = length(to - from);
        if (!(distance > 0))
            continue;
        const drawing::Point along = (to - from) * (kHalfWidth / distance);
        const drawing::Point across{-along.y, along.x};
        const drawing::Path band =
            drawing::polygonPath({from + across, to + across, to - across, from - across});
        painter.fill(surface, band, drawing::FillRule::NonZero, {}, drawing::ColorPaint{});
    }
}

} // namespace easel::runtime
