// Keeps the marks of an item.
#include "easel/runtime/ItemContent.h"

namespace easel::runtime {

// The frame of a mark that has just been painted is no other mark.
void ItemContent::framedMark(paint::PixelPoint mark) {
    if (mark != filledMark)
        marks.push_back(mark);
}

void ItemContent::erased(const paint::PixelRect& area) {
    std::erase_if(marks, [&](const paint::PixelPoint& mark) { return area.contains(mark); });
    if (filledMark && area.contains(*filledMark))
        filledMark.reset();
}

} // namespace easel::runtime
