#include "easel/svg/style/FontFace.h"

#include "easel/svg/style/CssText.h"
#include "easel/svg/style/TextStyle.h"
#include "easel/svg/style/UnicodeRange.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace easel::svg {

namespace {

// The text in the brackets of a function that is first; nothing for another.
std::optional<std::string> argumentOf(std::string_view text, std::string_view function) {
    Scanner scanner(text);
    if (!scanner.takeWord(function))
        return std::nullopt;
    const std::string_view rest = scanner.rest();
    return unquoted(rest.substr(0, lengthUntil(rest, ")")));
}

// What follows in an item says how the letters are packed, which they say themselves.
std::vector<FontSource> sourcesIn(std::string_view text) {
    std::vector<FontSource> sources;
    while (!text.empty()) {
        const std::size_t end = lengthUntil(text, ",");
        const std::string_view item = trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (auto name = argumentOf(item, "local("))
            sources.push_back({FontSource::Kind::System, *std::move(name)});
        else if (auto reference = argumentOf(item, "url("))
            sources.push_back({FontSource::Kind::Reference, *std::move(reference)});
    }
    return sources;
}

constexpr int kUsualWeight = 400;

std::optional<int> takeWeight(Scanner& scanner) {
    constexpr int kBoldWeight = 700;
    scanner.skipSpaces();
    if (scanner.takeWord("normal"))
        return kUsualWeight;
    if (scanner.takeWord("bold"))
        return kBoldWeight;
    const auto number = scanner.number();
    return number && *number >= 1 && *number <= 1000 ? std::optional(static_cast<int>(std::lround(*number)))
                                                     : std::nullopt;
}

// One weight, or one and another.
std::optional<type::Weights> weightsIn(std::string_view text) {
    Scanner scanner(text);
    const auto one = takeWeight(scanner);
    if (!one)
        return std::nullopt;
    const int other = takeWeight(scanner).value_or(*one);
    return type::Weights{std::min(*one, other), std::max(*one, other)};
}

} // namespace

std::optional<FontFace> parseFontFace(const std::vector<Declaration>& descriptors,
                                      std::vector<FontSource> sources) {
    FontFace face;
    face.sources = std::move(sources);
    for (const auto& [name, value, importance] : descriptors) {
        const auto is = [descriptor = name](std::string_view other) {
            return equalIgnoringCase(descriptor, other);
        };
        if (is("font-family")) {
            const std::string names = familyNames(value);
            face.font.families = names.substr(0, names.find(','));
        } else if (is("src")) {
            if (auto stated = sourcesIn(value); !stated.empty())
                face.sources = std::move(stated);
        } else if (is("font-weight")) {
            face.weights = weightsIn(value);
            face.font.weight = face.weights.value_or(type::Weights()).nearest(kUsualWeight);
        } else if (is("font-variation-settings")) {
            face.variations = parseVariations(value).value_or(std::move(face.variations));
        } else if (is("unicode-range")) {
            if (auto ranges = parseUnicodeRanges(value))
                face.characters = *std::move(ranges);
        } else if (is("font-style")) {
            const bool leans =
                findIgnoringCase(value, "italic") == 0 || findIgnoringCase(value, "oblique") == 0;
            face.font.slant = leans ? type::Slant::Italic : type::Slant::Upright;
        }
    }
    return face.font.families.empty() || face.sources.empty() ? std::nullopt : std::optional(std::move(face));
}

} // namespace easel::svg
