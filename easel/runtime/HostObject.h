// What stands behind the objects and object lists of the host interface.
#pragma once

#include "easel/drawing/Object.h"
#include "host/Objects.h"

namespace easel::runtime {
class DrawingWindow;
}

// Objects of a drawing never change; one that is changed here becomes an object of its own first.
struct HostObject {
    easel::drawing::ObjectPtr object; // never null
};

struct HostObjectList {
    easel::runtime::DrawingWindow* window;
};
