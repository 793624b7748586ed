// What of a shape's gradient the tool's record cannot hold. It stays with the shape while the record changes.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/drawing/SharedPtr.h"

#include <optional>
#include <vector>

namespace easel::drawing {

struct OpacityStop {
    double position = 0; // on the record's parameter, 0 to 1
    double opacity = 1;  // 0 to 1

    friend bool operator==(const OpacityStop&, const OpacityStop&) = default;
};

struct Remainder {
    // Ascending, linear between neighbors, flat beyond the ends; two at one position are a step. Empty:
    // opaque throughout.
    std::vector<OpacityStop> opacity;
    // For radial records: the linear map (no translation) about the end centre that turns circles into the
    // ellipses that are drawn. None: circles. A linear record ignores it.
    std::optional<Affine> ellipse;

    bool empty() const { return opacity.empty() && !ellipse; }
    friend bool operator==(const Remainder&, const Remainder&) = default;
};

// Null: there is no remainder.
using RemainderPtr = SharedPtr<const Remainder>;

} // namespace easel::drawing
