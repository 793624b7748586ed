// Recolors objects one after the other.
#include "benchmarks/ChangeTimes.h"

#include "benchmarks/Timing.h"
#include "easel/paint/RenderDrawing.h"

#include <stdexcept>

namespace bench {

namespace {

using namespace easel;

constexpr int kChanges = 51;

drawing::ObjectPtr recolored(const drawing::Object& object, int step) {
    auto copy = std::make_shared<drawing::Object>(object);
    copy->fill = drawing::ColorPaint{{static_cast<std::uint16_t>(step * 1000), 0, 65535}, 1};
    return copy;
}

} // namespace

ChangeTimes changeTimes(drawing::Drawing& drawing, paint::Surface& surface,
                        const drawing::Affine& toSurface) {
    std::vector<double> changes;
    std::vector<double> undos;
    drawing::Box dirty;
    drawing.setChangeListener([&](const drawing::Box& area) { dirty.add(area); });
    const auto repaint = [&] {
        const drawing::Point corner = toSurface({dirty.left, dirty.top});
        const drawing::Point end = toSurface({dirty.right, dirty.bottom});
        const paint::PixelBox box{static_cast<int>(corner.x) - 1, static_cast<int>(corner.y) - 1,
                                  static_cast<int>(end.x) + 2, static_cast<int>(end.y) + 2};
        paint::renderDrawing(drawing, surface.view().clippedTo(box), toSurface, 1);
        dirty = {};
    };
    for (int i = 0; i < kChanges; ++i) {
        const std::size_t index = static_cast<std::size_t>(i) * 17 % drawing.size();
        changes.push_back(secondsOf([&] {
            drawing.prepareUndo(1);
            const drawing::ObjectPtr object = recolored(*drawing.object(index), i);
            drawing.erase(index);
            drawing.insert(index, object);
            drawing.closeUndo();
            repaint();
        }));
        bool undone = false;
        undos.push_back(secondsOf([&] {
            undone = drawing.undo();
            repaint();
        }));
        if (!undone)
            throw std::logic_error("there was nothing to undo");
    }
    drawing.setChangeListener({});
    return {median(changes), median(undos)};
}

} // namespace bench
