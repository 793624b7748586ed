// A change of a drawing that is made wholly or not at all.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/memory/MemoryReserve.h"

namespace easel::drawing {

// Calls `change`, which makes one step of the drawing's history. Where it throws, or leaves too little memory
// for anything to follow, the drawing is as it was before, and the exception goes on.
template <class Change> void changeWholly(Drawing& drawing, const Change& change) {
    const std::size_t levels = drawing.undoLevels();
    try {
        change();
        memory::demandMemory();
    } catch (...) {
        if (drawing.undoLevels() > levels)
            drawing.takeBack();
        throw;
    }
}

} // namespace easel::drawing
