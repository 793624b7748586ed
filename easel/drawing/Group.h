// Layers that several objects share: opacity, clip paths, masks and blending, as a chain from the inside out.
#pragma once

#include "easel/drawing/BlendMode.h"
#include "easel/drawing/Mask.h"
#include "easel/drawing/Path.h"
#include "easel/drawing/SharedPtr.h"

#include <memory>
#include <vector>

namespace easel::drawing {

struct ClipPath;
struct Filter;

// One shape of a clip path, in drawing coordinates; `clip` narrows this shape alone.
struct ClipShape {
    Path outline;
    FillRule rule = FillRule::NonZero;
    std::shared_ptr<const ClipPath> clip;
};

// The union of its shapes; without shapes nothing shows. `clip` narrows the whole of it.
struct ClipPath {
    std::vector<ClipShape> shapes;
    std::shared_ptr<const ClipPath> clip;
};

// Objects that follow each other in the drawing and name the same group are painted into one layer, which is
// filtered, clipped, masked, made fainter by `opacity` and laid on what `parent` (null: the drawing) holds so
// far, by its blend mode.
struct Group {
    SharedPtr<const Group> parent;
    double opacity = 1;
    std::shared_ptr<const ClipPath> clip; // null: not clipped
    std::uint32_t depth = 1;              // number of groups up to the outermost, this one included
    MaskPtr mask;                         // null: not masked
    BlendMode blend = BlendMode::Normal;
    bool isolated = false;                // what blends inside meets nothing outside
    std::shared_ptr<const Filter> filter; // null: not filtered
};

using GroupPtr = SharedPtr<const Group>;

// Whether its objects need a layer of their own. Else they might as well lie in the parent.
bool isLayer(const Group& group);

// Whether the group, or one around it, has a blend mode of its own. No group has none.
bool blends(const GroupPtr& group);

// Whether the group, or one around it, blends with what lies outside of all groups.
bool blendsWithDrawing(const Group& group);

} // namespace easel::drawing
