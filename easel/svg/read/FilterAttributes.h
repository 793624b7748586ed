// The attributes of a filter's steps.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/svg/read/Scene.h"

#include <optional>
#include <string_view>
#include <vector>

namespace easel::svg {

// What the lengths in a filter are measured in.
struct FilterUnits {
    drawing::Box box;         // of the element that is filtered, in its own units
    bool sharesOfBox = false; // lengths of steps are shares of the box
    LengthContext lengths;
};

class FilterAttributes {
  public:
    FilterAttributes(const Scene& scene, pugi::xml_node element, const FilterUnits& units)
        : scene_(scene), element_(element), units_(units) {}

    pugi::xml_node element() const { return element_; }
    // Those of the last child with this name, which the element may be without.
    std::optional<FilterAttributes> child(std::string_view svgName) const;
    // Without blanks around; empty if it is not there.
    std::string_view text(const char* name) const;
    // The first number; infinite ones count as none.
    double number(const char* name, double otherwise) const;
    // All numbers of a list; empty if anything in it is none.
    std::vector<double> numbers(const char* name) const;
    // A number, or two for each way.
    std::optional<drawing::Point> pair(const char* name) const;

    // A length in the units of steps, as one across, one down or one in any direction in the filter's units.
    double across(double length) const;
    double down(double length) const;
    double anyWay(double length) const;
    drawing::Point eachWay(drawing::Point lengths) const { return {across(lengths.x), down(lengths.y)}; }
    // The same of places.
    drawing::Point place(drawing::Point p) const;

    // What the property is, `currentColor` included.
    drawing::ColorPaint color(Property property, const drawing::ColorPaint& otherwise) const;
    std::string_view stated(Property property) const;

  private:
    const Scene& scene_;
    pugi::xml_node element_;
    const FilterUnits& units_;
};

// The side of a region that an element states: a length, or a share of the box. Nothing if it states none.
std::optional<double> statedSide(std::string_view text, Axis axis, bool isPlace, const FilterUnits& units,
                                 bool sharesOfBox);

} // namespace easel::svg
