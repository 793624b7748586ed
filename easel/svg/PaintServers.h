// Gradient elements, with what they take over from each other.
#pragma once

#include "easel/drawing/Paint.h"
#include "easel/svg/Length.h"
#include "easel/svg/Property.h"
#include "easel/svg/XmlTree.h"

#include <memory>
#include <memory_resource>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <variant>

namespace easel::svg {

enum class GradientUnits : std::uint8_t { ObjectBoundingBox, UserSpaceOnUse };

// A gradient element before it meets a shape. Texts point into the file's text and are empty where nothing is
// said.
struct GradientElement {
    enum class Kind : std::uint8_t { Linear, Radial };
    Kind kind = Kind::Linear;
    GradientUnits units = GradientUnits::ObjectBoundingBox;
    drawing::Affine transform;
    drawing::Spread spread = drawing::Spread::Pad;
    std::string_view x1, y1, x2, y2;         // linear
    std::string_view cx, cy, r, fx, fy, fr;  // radial
    std::vector<drawing::ForeignStop> stops; // offsets in order, 0 to 1
    std::string_view record;                 // our own record's values, if they stand beside
};

// Where a shape is painted.
struct PaintPlace {
    drawing::Box box;          // of the shape in its own units
    drawing::Affine toDrawing; // from these units
    LengthContext lengths;
};

class PaintServers {
  public:
    PaintServers(const XmlTree& tree, const Cascade& cascade) : tree_(tree), cascade_(cascade) {}

    // Null if there is no gradient with this id. Throws ReadError for gradients that refer to each other in a
    // circle.
    const GradientElement* gradient(std::string_view id);

  private:
    GradientElement read(pugi::xml_node element);
    std::vector<drawing::ForeignStop> readStops(pugi::xml_node element) const;
    drawing::ColorPaint colorAt(pugi::xml_node element) const;

    const XmlTree& tree_;
    const Cascade& cascade_;
    std::pmr::monotonic_buffer_resource memory_; // of what is known, which stays as long as the reader
    std::pmr::unordered_map<std::string_view, std::optional<GradientElement>> known_{&memory_};
};

// What the gradient is on this shape: nothing where it disables painting, a plain color where it has no
// extent.
std::variant<drawing::NoPaint, drawing::ColorPaint, drawing::ForeignGradient>
placedGradient(const GradientElement& gradient, const PaintPlace& place);

} // namespace easel::svg
