// The properties of text that elements hand down to what they hold.
#pragma once

#include "easel/svg/style/Property.h"
#include "easel/svg/text/Length.h"
#include "easel/type/Text.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace easel::svg {

// Which height of the letters stands on the line.
enum class Baseline : std::uint8_t {
    Alphabetic,
    Ideographic,
    Hanging,
    Mathematical,
    Middle,
    Central,
    TextTop,
    TextBottom
};

enum class WhiteSpace : std::uint8_t { ByElement, Collapse, Preserve };

// Which letters are shown in place of those that are written.
enum class TextTransform : std::uint8_t { None, Uppercase, Lowercase, Capitalize };

struct TextStyle {
    std::string_view families; // as stated; empty: none is
    int weight = 400;
    type::Slant slant = type::Slant::Upright;
    type::Stretch stretch = type::Stretch::Normal;
    bool smallCaps = false;
    std::string variations; // as in type::Font
    double letterSpacing = 0;
    double wordSpacing = 0;
    type::Anchor anchor = type::Anchor::Start;
    Baseline baseline = Baseline::Alphabetic;
    TextTransform transform = TextTransform::None;
    WhiteSpace whiteSpace = WhiteSpace::ByElement; // ByElement: as xml:space says
    type::Direction direction = type::Direction::Horizontal;
    type::Upright upright = type::Upright::ByScript;
    bool rightToLeft = false;

    // The style of an element in one with this style.
    TextStyle inherited(const StatedStyle& stated, const LengthContext& lengths) const;
};

// Whether the text is a value of this property of text.
bool isTextValue(Property property, std::string_view text);

// The families of a list as fontconfig is asked for them, without quotes. Empty if one of them is no name of
// CSS: words without quotes begin with a letter.
std::string familyNames(std::string_view stated);

// The places on axes of fonts that are stated by their names in quotes, as type::Font has them.
std::optional<std::string> parseVariations(std::string_view stated);

// Nothing for other words, among them "auto" and "baseline".
std::optional<Baseline> parseBaseline(std::string_view text);

// How far a baseline lies over the alphabetic one, in ems.
double heightOf(Baseline baseline, const type::FontMetrics& metrics);

} // namespace easel::svg
