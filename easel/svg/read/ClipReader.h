// Clip paths as elements refer to them.
#pragma once

#include "easel/svg/read/Scene.h"
#include "easel/svg/read/Shapes.h"

#include <memory>
#include <optional>
#include <vector>

namespace easel::svg {

class ClipReader {
  public:
    explicit ClipReader(const Scene& scene) : scene_(scene) {}

    // The clip that the stated style asks for, in drawing coordinates; null for none. `box` is that of the
    // element in its own units, empty if it is not known. A clip path that leads back to itself is none
    // there.
    std::shared_ptr<const drawing::ClipPath> clipFor(const StatedStyle& stated, const drawing::Box& box,
                                                     const Place& place);

    // Whether that clip can be told only when the box is known.
    bool asksForBox(const StatedStyle& stated) const;

  private:
    using ClipPtr = std::shared_ptr<const drawing::ClipPath>;

    ClipPtr read(pugi::xml_node element, const drawing::Box& box, const Place& place);
    void addShape(drawing::ClipPath& clip, pugi::xml_node child, const Place& place);
    std::optional<drawing::ClipShape> shapeOf(pugi::xml_node element, const Place& place);
    // Of the element as its style shows it.
    std::optional<Shape> visibleShape(pugi::xml_node element, const StatedStyle& stated, const Place& place);
    std::optional<drawing::ClipShape> repeatedShape(pugi::xml_node use, const Place& place);

    const Scene& scene_;
    std::vector<pugi::xml_node> open_; // clip paths that are being read
    bool boxAsked_ = false;            // whether what is being read depends on the box of what it clips
    // The last one read that does not: neighbours often share it.
    pugi::xml_node lastElement_;
    drawing::Affine lastPlace_;
    ClipPtr last_;
};

// A clip to a rectangle, given in units that `toDrawing` maps; null if it is beyond what is computed with.
std::shared_ptr<const drawing::ClipPath> rectangleClip(const drawing::Box& box,
                                                       const drawing::Affine& toDrawing);

} // namespace easel::svg
