// Recolors objects one after the other.
#include "benchmarks/ChangeTimes.h"

#include "easel/paint/RenderDrawing.h"

#include <memory>
#include <stdexcept>

namespace bench {

using namespace easel;

ChangeTimes::ChangeTimes(drawing::Drawing& drawing, paint::Surface& surface, const drawing::Affine& toSurface)
    : drawing_(drawing), surface_(surface), toSurface_(toSurface) {
    drawing_.setChangeListener([this](const drawing::Box& area) { dirty_.add(area); });
}

ChangeTimes::~ChangeTimes() {
    drawing_.setChangeListener({});
}

void ChangeTimes::measure() {
    const std::size_t index = changes_.size() * 17 % drawing_.size();
    changes_.push_back(secondsOf([&] {
        recolorObject(index);
        repaint();
    }));
    bool undone = false;
    undos_.push_back(secondsOf([&] {
        undone = drawing_.undo();
        repaint();
    }));
    if (!undone)
        throw std::logic_error("there was nothing to undo");
}

void ChangeTimes::recolorObject(std::size_t index) {
    drawing_.prepareUndo(1);
    auto copy = drawing::makeShared<drawing::Object>(*drawing_.object(index));
    copy->fill = drawing::ColorPaint{{static_cast<std::uint16_t>(changes_.size() * 1000), 0, 65535}, 1};
    drawing_.erase(index);
    drawing_.insert(index, copy);
    drawing_.closeUndo();
}

void ChangeTimes::repaint() {
    const drawing::Point corner = toSurface_({dirty_.left, dirty_.top});
    const drawing::Point end = toSurface_({dirty_.right, dirty_.bottom});
    const paint::PixelRect box{.left = static_cast<int>(corner.x) - 1,
                               .top = static_cast<int>(corner.y) - 1,
                               .right = static_cast<int>(end.x) + 2,
                               .bottom = static_cast<int>(end.y) + 2};
    paint::renderDrawing(drawing_, surface_.view().clippedTo(box), toSurface_, 1);
    dirty_ = {};
}

} // namespace bench
