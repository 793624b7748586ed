// How an object holds its gradient: shared with every object whose gradient is equal.
#pragma once

#if __has_include("host/Gradient.h")
#include "host/Gradient.h"
#include "host/SharedResource.h"
#else
#include <memory>
class CGradient;
#endif

namespace easel::drawing {

#if __has_include("host/Gradient.h")
using ObjectGradient = SharedResourcePtr<CGradient>;
// Null for an empty pointer.
inline const CGradient* gradientIn(const ObjectGradient& gradient) {
    return gradient;
}
#else
using ObjectGradient = std::shared_ptr<const CGradient>;
inline const CGradient* gradientIn(const ObjectGradient& gradient) {
    return gradient.get();
}
#endif

} // namespace easel::drawing
