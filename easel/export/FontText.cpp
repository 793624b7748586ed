#include "easel/export/FontText.h"

#include "easel/svg/write/ElementText.h"

#include <algorithm>
#include <string_view>

namespace easel::exports {

using svg::attribute;

namespace {

constexpr std::string_view kSlants[] = {"normal", "italic", "oblique"};

// In the order of the enumeration.
constexpr std::string_view kStretches[] = {"ultra-condensed", "extra-condensed", "condensed",
                                           "semi-condensed",  "normal",          "semi-expanded",
                                           "expanded",        "extra-expanded",  "ultra-expanded"};

std::string quoted(std::string_view name) {
    std::string text = "'";
    for (const char c : name) {
        if (c == '\'' || c == '\\')
            text += '\\';
        text += c;
    }
    return text + "'";
}

std::string familyText(std::string_view names) {
    std::string text;
    while (!names.empty()) {
        const std::size_t end = std::min(names.find(','), names.size());
        const std::string_view name = names.substr(0, end);
        names.remove_prefix(std::min(end + 1, names.size()));
        const std::string one = type::isGenericFamily(name) ? std::string(name) : quoted(name);
        if (!name.empty() && ("," + text + ",").find("," + one + ",") == std::string::npos)
            text += (text.empty() ? "" : ",") + one;
    }
    return text;
}

} // namespace

std::string fontText(const type::Font& font) {
    const std::string_view slant = kSlants[static_cast<std::size_t>(font.slant)];
    const std::string_view stretch = kStretches[static_cast<std::size_t>(font.stretch)];
    return attribute("font-family", familyText(font.families)) +
           svg::attributeUnless(400, "font-weight", font.weight) +
           svg::attributeUnless("normal", "font-style", slant) +
           svg::attributeUnless("normal", "font-stretch", stretch) +
           (font.smallCaps ? attribute("font-variant", "small-caps") : "") +
           attribute("xml:lang", font.language);
}

} // namespace easel::exports
