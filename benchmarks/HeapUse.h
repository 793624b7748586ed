// How much memory a drawing takes.
#pragma once

#include "easel/drawing/Drawing.h"

#include <malloc.h>

namespace bench {

// What is allocated now, with what the allocator adds to each piece.
inline double heapBytes() {
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

// The points and verbs of all paths of the drawing.
inline double pathBytes(const easel::drawing::Drawing& drawing) {
    double bytes = 0;
    drawing.forEach([&](const easel::drawing::ObjectPtr& object) {
        bytes += static_cast<double>(object->outline.points().size() * sizeof(easel::drawing::Point) +
                                     object->outline.verbs().size());
    });
    return bytes;
}

} // namespace bench
