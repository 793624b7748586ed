#include "easel/svg/read/FilterAttributes.h"

#include "easel/svg/style/Color.h"
#include "easel/svg/text/Scanner.h"

#include <cmath>
#include <numbers>

namespace easel::svg {

using drawing::ColorPaint;
using drawing::Point;

std::optional<FilterAttributes> FilterAttributes::child(std::string_view svgName) const {
    for (pugi::xml_node child = element_.last_child(); child; child = child.previous_sibling())
        if (scene_.tree.svgName(child) == svgName)
            return FilterAttributes(scene_, child, units_);
    return std::nullopt;
}

std::string_view FilterAttributes::text(const char* name) const {
    return trimmed(element_.attribute(name).value());
}

double FilterAttributes::number(const char* name, double otherwise) const {
    Scanner scanner(text(name));
    const auto value = scanner.number();
    return value && std::isfinite(*value) ? *value : otherwise;
}

std::vector<double> FilterAttributes::numbers(const char* name) const {
    std::vector<double> result;
    Scanner scanner(text(name));
    while (!scanner.done()) {
        const auto value = scanner.number();
        if (!value || !std::isfinite(*value))
            return {};
        result.push_back(*value);
        scanner.skipSeparator();
    }
    return result;
}

std::optional<Point> FilterAttributes::pair(const char* name) const {
    const std::vector<double> values = numbers(name);
    if (values.empty() || values.size() > 2)
        return std::nullopt;
    return Point{values.front(), values.back()};
}

double FilterAttributes::across(double length) const {
    return units_.sharesOfBox ? length * units_.box.width() : length;
}

double FilterAttributes::down(double length) const {
    return units_.sharesOfBox ? length * units_.box.height() : length;
}

double FilterAttributes::anyWay(double length) const {
    return std::hypot(across(length), down(length)) / std::numbers::sqrt2;
}

Point FilterAttributes::place(Point p) const {
    return units_.sharesOfBox ? Point{units_.box.left, units_.box.top} + eachWay(p) : p;
}

std::string_view FilterAttributes::stated(Property property) const {
    return scene_.cascade.of(element_)[property];
}

ColorPaint FilterAttributes::color(Property property, const ColorPaint& otherwise) const {
    const std::string_view text = stated(property);
    if (equalIgnoringCase(text, "currentcolor"))
        return scene_.servers.colorAt(element_);
    return parseColor(text).value_or(otherwise);
}

std::optional<double> statedSide(std::string_view text, Axis axis, bool isPlace, const FilterUnits& units,
                                 bool sharesOfBox) {
    const bool across = axis == Axis::Horizontal;
    std::optional<double> value = sharesOfBox ? parseFraction(text) : parseLength(text, units.lengths, axis);
    if (!value || !inRange(*value))
        return std::nullopt;
    if (sharesOfBox)
        *value = *value * (across ? units.box.width() : units.box.height()) +
                 (isPlace ? across ? units.box.left : units.box.top : 0);
    return value;
}

} // namespace easel::svg
