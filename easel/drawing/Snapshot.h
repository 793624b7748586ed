// What a drawing holds at one moment, for work on another thread while the drawing goes on changing.
#pragma once

#include "easel/drawing/DisplayList.h"

#include <cstddef>
#include <memory>

namespace easel::drawing {

class DocumentSource;

// Made and destroyed on the thread of the drawing, since gradients are counted without locks; any thread may
// read it.
struct Snapshot {
    double width = 0;
    double height = 0;
    DisplayList list;
    std::shared_ptr<const DocumentSource> source; // null for a drawing that came from no file

    // Back to front.
    template <class Visitor> void forEach(Visitor visit) const {
        list.forEach([&](Slot, const ObjectPtr& object) { visit(object); });
    }
};

} // namespace easel::drawing
