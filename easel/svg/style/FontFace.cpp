#include "easel/svg/style/FontFace.h"

#include "easel/svg/style/CssText.h"
#include "easel/svg/style/TextStyle.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
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

// Of a range, what is nearest to the usual weight.
int weightIn(std::string_view text) {
    constexpr int kUsual = 400;
    constexpr int kBold = 700;
    if (equalIgnoringCase(text, "bold"))
        return kBold;
    Scanner scanner(text);
    const auto least = scanner.number();
    scanner.skipSpaces();
    const auto most = scanner.number();
    if (!least || !(*least >= 1 && *least <= 1000))
        return kUsual;
    return static_cast<int>(most && *most >= *least ? std::clamp<double>(kUsual, *least, *most) : *least);
}

} // namespace

std::optional<FontFace> parseFontFace(const std::vector<Declaration>& descriptors) {
    FontFace face;
    for (const auto& [name, value, importance] : descriptors) {
        const auto is = [descriptor = name](std::string_view other) {
            return equalIgnoringCase(descriptor, other);
        };
        if (is("font-family")) {
            const std::string names = familyNames(value);
            face.font.families = names.substr(0, names.find(','));
        } else if (is("src")) {
            if (auto sources = sourcesIn(value); !sources.empty())
                face.sources = std::move(sources);
        } else if (is("font-weight")) {
            face.font.weight = weightIn(value);
        } else if (is("font-style")) {
            const bool leans =
                findIgnoringCase(value, "italic") == 0 || findIgnoringCase(value, "oblique") == 0;
            face.font.slant = leans ? type::Slant::Italic : type::Slant::Upright;
        }
    }
    return face.font.families.empty() || face.sources.empty() ? std::nullopt : std::optional(std::move(face));
}

} // namespace easel::svg
