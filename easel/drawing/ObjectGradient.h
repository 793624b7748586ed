// How an object holds its gradient: shared with every object whose gradient is equal.
#pragma once

#include "host/Gradient.h"
#include "host/SharedResource.h"

namespace easel::drawing {

using ObjectGradient = SharedResourcePtr<CGradient>;

// Null for an empty pointer.
inline const CGradient* gradientIn(const ObjectGradient& gradient) {
    return gradient;
}

} // namespace easel::drawing
