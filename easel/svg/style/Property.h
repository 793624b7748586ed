// The style properties that are read, and their values for one element as the file states them.
#pragma once

#include "easel/svg/style/Css.h"
#include "easel/svg/style/CustomProperties.h"
#include "easel/svg/text/XmlTree.h"

#include <array>
#include <optional>
#include <string_view>

namespace easel::svg {

enum class Property : std::uint8_t {
    ClipPath,
    ClipRule,
    Color,
    ColorInterpolation,
    ColorInterpolationFilters,
    Cx,
    Cy,
    D,
    Display,
    Fill,
    FillOpacity,
    FillRule,
    Filter,
    FloodColor,
    FloodOpacity,
    FontSize,
    Height,
    ImageRendering,
    Isolation,
    LightingColor,
    Marker,
    MarkerEnd,
    MarkerMid,
    MarkerStart,
    Mask,
    MaskType,
    MixBlendMode,
    Opacity,
    Overflow,
    PaintOrder,
    R,
    Rx,
    Ry,
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
    TransformBox,
    TransformOrigin,
    VectorEffect,
    Visibility,
    Width,
    X,
    Y,
    // Of text.
    AlignmentBaseline,
    BaselineShift,
    Direction,
    DominantBaseline,
    Font,
    FontFamily,
    FontStretch,
    FontStyle,
    FontVariant,
    FontVariationSettings,
    FontWeight,
    GlyphOrientation,
    LetterSpacing,
    TextAnchor,
    TextDecoration,
    TextDecorationLine,
    TextOrientation,
    TextTransform,
    UnicodeBidi,
    WhiteSpace,
    WordSpacing,
    WritingMode,
};
inline constexpr std::size_t kPropertyCount = 73;
// From here on they are of text.
inline constexpr Property kFirstOfText = Property::AlignmentBaseline;

// As XML writes it: in small letters.
std::optional<Property> propertyFromName(std::string_view name);
// As style sheets write it: in letters of either case.
std::optional<Property> propertyFromDeclaration(std::string_view name);

// The values that attributes, style sheets and the style attribute give an element, the strongest for each
// property. They point into the file's text or what the cascade keeps.
class StatedStyle {
  public:
    // Empty if nothing is stated.
    std::string_view operator[](Property property) const {
        return values_[static_cast<std::size_t>(property)];
    }
    void set(Property property, std::string_view value, Importance importance);
    bool asksForCustomProperties() const;
    // Whether any property of text is stated.
    bool statesText() const { return statesText_; }
    // Puts what they stand for in the place of values that ask for custom properties.
    void replace(CustomValues& values, const CustomProperties* custom);

    const CustomProperties* custom = nullptr; // that hold inside the element; null: none

  private:
    using Values = std::array<std::string_view, kPropertyCount>;

    void setFont(std::string_view shorthand, Importance importance);
    // Past the last of the values that may be stated.
    Values::const_iterator statedEnd() const {
        return statesText_ ? values_.end() : values_.begin() + static_cast<std::ptrdiff_t>(kFirstOfText);
    }

    Values values_;
    std::array<bool, kPropertyCount> important_{};
    bool statesText_ = false;
};

class Cascade {
  public:
    // Gathers the style sheets of the file.
    explicit Cascade(const XmlTree& tree);

    // `outer`: the custom properties that hold around the element.
    StatedStyle of(pugi::xml_node element, const CustomProperties* outer) const;
    // With those of the elements that hold it in the file.
    StatedStyle of(pugi::xml_node element) const;
    // Whether style sheets state fills or strokes: an edited one has to be stronger.
    bool sheetsStateFill() const { return sheetsStateFill_; }
    bool sheetsStateStroke() const { return sheetsStateStroke_; }
    bool sheetsImport() const { return sheetsImport_; }
    const std::vector<std::vector<Declaration>>& fontFaces() const { return sheet_.fontFaces(); }

  private:
    void addSheet(pugi::xml_node styleElement);

    // Of an element among those that its parent holds.
    struct Position {
        pugi::xml_node element;
        std::size_t number = 0;
    };
    friend class ElementSubject;

    std::vector<Declaration> gather(pugi::xml_node element, StatedStyle& style) const;
    const CustomProperties* customAround(pugi::xml_node element) const;

    const XmlTree& tree_;
    MediaSize media_;
    StyleSheet sheet_;
    mutable CustomValues values_;
    mutable Position lastPosition_; // neighbours are mostly asked one after the other
    bool sheetsStateFill_ = false;
    bool sheetsStateStroke_ = false;
    bool sheetsImport_ = false;
};

} // namespace easel::svg
