// Gradient elements, with what they take over from each other.
#pragma once

#include "easel/drawing/Paint.h"
#include "easel/svg/style/Property.h"
#include "easel/svg/text/Length.h"
#include "easel/svg/text/RecordText.h"
#include "easel/svg/text/XmlTree.h"

#include <deque>
#include <memory_resource>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

namespace easel::svg {

enum class GradientUnits : std::uint8_t { ObjectBoundingBox, UserSpaceOnUse };

// Coordinates as they are stated, in the file's text; empty where nothing is said.
struct LineTexts {
    const char *x1 = "", *y1 = "", *x2 = "", *y2 = "";
};
struct CircleTexts {
    const char *cx = "", *cy = "", *r = "", *fx = "", *fy = "", *fr = "";
};

// A gradient element before it meets a shape. A file may have very many.
struct GradientElement {
    explicit GradientElement(std::pmr::memory_resource* memory) : stops(memory) {}

    GradientUnits units = GradientUnits::ObjectBoundingBox;
    drawing::Spread spread = drawing::Spread::Pad;
    std::variant<LineTexts, CircleTexts> geometry;
    drawing::Affine transform;
    std::pmr::vector<drawing::RampStop> stops; // offsets in order, 0 to 1
    RecordTexts own;                           // our own values, if they stand beside
};

// Where a shape is painted.
struct PaintPlace {
    drawing::Box box;          // of the shape in its own units
    drawing::Affine toDrawing; // from these units
    LengthContext lengths;
};

class PaintServers {
  public:
    PaintServers(const XmlTree& tree, const Cascade& cascade)
        : tree_(tree), cascade_(cascade), byIdNumber_(tree.withIds().size()) {}

    // Null if there is no gradient with this id.
    const GradientElement* gradient(std::string_view id);
    // Whether gradients that were asked for refer to each other in a circle.
    bool circular() const { return circular_; }
    // Whether one that was asked for mixes its colors in linear light.
    bool linearLight() const { return linearLight_; }
    // What `currentColor` stands for in the element, where it stands in the file.
    drawing::ColorPaint colorAt(pugi::xml_node element) const;

  private:
    std::optional<std::size_t> idNumber(std::string_view id);
    const GradientElement& read(pugi::xml_node element);
    void readStops(pugi::xml_node element, std::pmr::vector<drawing::RampStop>& stops) const;

    const XmlTree& tree_;
    const Cascade& cascade_;
    std::pmr::monotonic_buffer_resource memory_; // of what has been read, which stays as long as the reader
    std::pmr::deque<GradientElement> read_{&memory_};
    std::vector<const GradientElement*> byIdNumber_; // null: not read yet, or no gradient
    std::size_t nextId_ = 0;                         // after the one asked for last
    bool circular_ = false;
    bool linearLight_ = false;
};

// What a gradient is on a shape: nothing where it disables painting, a plain color where it has no extent.
using PlacedPaint = std::variant<drawing::NoPaint, drawing::ColorPaint, drawing::Gradient>;
PlacedPaint placedGradient(const GradientElement& gradient, const PaintPlace& place);

} // namespace easel::svg
