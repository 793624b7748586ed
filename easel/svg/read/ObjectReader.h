// Makes objects of shape elements.
#pragma once

#include "easel/drawing/Object.h"
#include "easel/svg/read/Scene.h"
#include "easel/svg/read/Shapes.h"

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace easel::svg {

class ObjectReader {
  public:
    // What a pattern element is on a shape; nothing where it disables painting.
    using PatternReader = std::function<drawing::Paint(pugi::xml_node pattern, const PaintPlace& at)>;

    ObjectReader(const Scene& scene, PatternReader patterns)
        : scene_(scene), patterns_(std::move(patterns)) {}

    // The object without its group. `place` is inside the element: its style and units are the element's own.
    // Nothing, which is noted, if its numbers are out of range.
    std::optional<drawing::Object> read(pugi::xml_node element, Shape shape, double opacity,
                                        const Place& place);

    // A picture, still without what it shows. The outline is in the element's own units.
    std::optional<drawing::Object> readPicture(pugi::xml_node element, const drawing::Path& outline,
                                               double opacity, const Place& place);

    // What others may be painted with because of a shape or `use` element there. Its box and `place` are in
    // its own units.
    std::shared_ptr<const ContextPaints> contextOf(ContextPaints::Giver giver, const drawing::Box& box,
                                                   const Place& place) const;

  private:
    using StylePtr = drawing::SharedPtr<const drawing::Style>;

    void setFill(drawing::Object& object, const PaintPlace& at, const ComputedStyle& style);
    // False if the gradient stays as the file says.
    static bool setGradient(drawing::Object& object, const GradientElement& element,
                            const PlacedPaint& placed);
    drawing::Paint paint(const PaintSpec& spec, const PaintPlace& at, const ComputedStyle& style) const;
    drawing::Paint paintWithoutGradient(const PaintSpec& spec, const PaintPlace& at,
                                        const ComputedStyle& style) const;
    // Null if the paint is no gradient of the file.
    const GradientElement* gradientOf(const PaintSpec& spec) const;
    PlacedPaint place(const GradientElement& element, const PaintPlace& at) const;
    StylePtr shared(drawing::Style style);
    drawing::SharedPtr<const drawing::Affine> sharedUnits(const drawing::Affine& units);

    const Scene& scene_;
    PatternReader patterns_;
    std::vector<StylePtr> recent_; // styles of the last objects: neighbours mostly look alike
    std::size_t nextRecent_ = 0;
    drawing::SharedPtr<const drawing::Affine> lastUnits_; // of the last object that has any of its own
};

} // namespace easel::svg
