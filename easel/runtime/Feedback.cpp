// Draws construction lines.
#include "easel/runtime/Feedback.h"

#include "easel/drawing/Path.h"
#include "easel/paint/Painter.h"

#include <optional>

namespace easel::runtime {

namespace {

constexpr double kHalfWidth = 0.5;
// Of the line with its edge, which lets it be seen on a dark ground.
constexpr double kHalfWidthOfEdge = 1.5;
constexpr drawing::ColorPaint kBlack{};
constexpr drawing::ColorPaint kLight{{65535, 65535, 65535}, 0.75};

// Nothing for a line without length.
std::optional<drawing::Path> bandAlong(drawing::Point from, drawing::Point to, double halfWidth) {
    const double distance = length(to - from);
    if (!(distance > 0))
        return std::nullopt;
    const drawing::Point along = (to - from) * (halfWidth / distance);
    const drawing::Point across{-along.y, along.x};
    return drawing::polygonPath({from + across, to + across, to - across, from - across});
}

} // namespace

void drawFeedback(const std::vector<ConstructionLine>& lines, const drawing::Affine& toImage,
                  const paint::SurfaceView& surface) {
    paint::Painter painter;
    const auto draw = [&](double halfWidth, const drawing::ColorPaint& color) {
        for (const ConstructionLine& line : lines)
            if (const auto band = bandAlong(toImage(line.from), toImage(line.to), halfWidth))
                painter.fill(surface, *band, drawing::FillRule::NonZero, {}, color);
    };
    draw(kHalfWidthOfEdge, kLight);
    draw(kHalfWidth, kBlack);
}

} // namespace easel::runtime
