// The style properties that are read, and their values for one element as the file states them.
#pragma once

#include "easel/svg/style/Css.h"
#include "easel/svg/text/XmlTree.h"

#include <array>
#include <optional>
#include <string_view>

namespace easel::svg {

enum class Property : std::uint8_t {
    ClipPath,
    ClipRule,
    Color,
    Display,
    Fill,
    FillOpacity,
    FillRule,
    Filter,
    FontSize,
    Marker,
    MarkerEnd,
    MarkerMid,
    MarkerStart,
    Mask,
    MixBlendMode,
    Opacity,
    Overflow,
    PaintOrder,
    StopColor,
    StopOpacity,
    Stroke,
    StrokeDasharray,
    StrokeDashoffset,
    StrokeLinecap,
    StrokeLinejoin,
    StrokeMiterlimit,
    StrokeOpacity,
    StrokeWidth,
    Transform,
    VectorEffect,
    Visibility,
};
inline constexpr std::size_t kPropertyCount = 31;

std::optional<Property> propertyFromName(std::string_view name);

// The values that attributes, style sheets and the style attribute give an element, the strongest for each
// property. They point into the file's text.
class StatedStyle {
  public:
    // Empty if nothing is stated.
    std::string_view operator[](Property property) const {
        return values_[static_cast<std::size_t>(property)];
    }
    void set(Property property, std::string_view value, Importance importance);
    void set(const Declaration& declaration);

  private:
    std::array<std::string_view, kPropertyCount> values_;
    std::array<bool, kPropertyCount> important_{};
};

class Cascade {
  public:
    // Gathers the style sheets of the file.
    explicit Cascade(const XmlTree& tree);

    StatedStyle of(pugi::xml_node element) const;
    // How style sheets state fills: an edited fill has to be stronger.
    bool sheetsStateFill() const { return sheetsStateFill_; }
    bool sheetsImport() const { return sheetsImport_; }

  private:
    void addSheet(pugi::xml_node styleElement);

    const XmlTree& tree_;
    StyleSheet sheet_;
    bool sheetsStateFill_ = false;
    bool sheetsImport_ = false;
};

} // namespace easel::svg
