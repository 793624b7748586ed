#include "easel/svg/style/TextStyle.h"

#include "easel/svg/style/CssIdentifier.h"
#include "easel/svg/style/CssText.h"
#include "easel/svg/style/Words.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <cmath>

namespace easel::svg {

namespace {

constexpr int kLightest = 1;
constexpr int kHeaviest = 1000;

// The steps that "bolder" and "lighter" make.
int bolder(int weight) {
    return weight < 350 ? 400 : weight < 550 ? 700 : std::max(weight, 900);
}
int lighter(int weight) {
    return weight < 550 ? std::min(weight, 100) : weight < 750 ? 400 : 700;
}

std::optional<int> parseWeight(std::string_view text, int outer) {
    if (equalIgnoringCase(text, "normal"))
        return 400;
    if (equalIgnoringCase(text, "bold"))
        return 700;
    if (equalIgnoringCase(text, "bolder"))
        return bolder(outer);
    if (equalIgnoringCase(text, "lighter"))
        return lighter(outer);
    Scanner scanner(text);
    const auto number = scanner.number();
    if (!number || !scanner.done() || !(*number >= kLightest && *number <= kHeaviest))
        return std::nullopt;
    return static_cast<int>(std::lround(*number));
}

std::optional<type::Slant> parseSlant(std::string_view text) {
    // An angle may follow.
    static constexpr Word<type::Slant> kWords[] = {
        {"normal", type::Slant::Upright}, {"italic", type::Slant::Italic}, {"oblique", type::Slant::Oblique}};
    return valueOf(text.substr(0, text.find_first_of(" \t\r\n")), kWords);
}

std::optional<type::Stretch> parseStretch(std::string_view text) {
    using enum type::Stretch;
    static constexpr Word<type::Stretch> kWords[] = {{"ultra-condensed", UltraCondensed},
                                                     {"extra-condensed", ExtraCondensed},
                                                     {"condensed", Condensed},
                                                     {"semi-condensed", SemiCondensed},
                                                     {"normal", Normal},
                                                     {"semi-expanded", SemiExpanded},
                                                     {"expanded", Expanded},
                                                     {"extra-expanded", ExtraExpanded},
                                                     {"ultra-expanded", UltraExpanded}};
    static constexpr double kShares[] = {0.5, 0.625, 0.75, 0.875, 1, 1.125, 1.25, 1.5, 2};
    if (const auto word = valueOf(text, kWords))
        return word;
    const auto share = text.ends_with('%') ? parseFraction(text) : std::nullopt;
    if (!share)
        return std::nullopt;
    const auto* const nearest =
        std::min_element(std::begin(kShares), std::end(kShares),
                         [&](double a, double b) { return std::abs(a - *share) < std::abs(b - *share); });
    return static_cast<type::Stretch>(nearest - std::begin(kShares));
}

std::optional<type::Anchor> parseAnchor(std::string_view text) {
    static constexpr Word<type::Anchor> kWords[] = {
        {"start", type::Anchor::Start}, {"middle", type::Anchor::Middle}, {"end", type::Anchor::End}};
    return valueOf(text, kWords);
}

std::optional<WhiteSpace> parseWhiteSpace(std::string_view text) {
    static constexpr Word<WhiteSpace> kWords[] = {
        {"normal", WhiteSpace::Collapse},   {"nowrap", WhiteSpace::Collapse},
        {"pre-line", WhiteSpace::Collapse}, {"pre", WhiteSpace::Preserve},
        {"pre-wrap", WhiteSpace::Preserve}, {"break-spaces", WhiteSpace::Preserve}};
    return valueOf(text, kWords);
}

std::optional<TextTransform> parseTextTransform(std::string_view text) {
    static constexpr Word<TextTransform> kWords[] = {{"none", TextTransform::None},
                                                     {"uppercase", TextTransform::Uppercase},
                                                     {"lowercase", TextTransform::Lowercase},
                                                     {"capitalize", TextTransform::Capitalize}};
    return valueOf(text, kWords);
}

std::optional<type::Direction> parseWritingMode(std::string_view text) {
    using enum type::Direction;
    static constexpr Word<type::Direction> kWords[] = {
        {"horizontal-tb", Horizontal}, {"lr", Horizontal},
        {"lr-tb", Horizontal},         {"rl", Horizontal},
        {"rl-tb", Horizontal},         {"vertical-rl", Vertical},
        {"vertical-lr", Vertical},     {"tb", Vertical},
        {"tb-rl", Vertical},           {"sideways-rl", Vertical}};
    return valueOf(text, kWords);
}

std::optional<type::Upright> parseOrientation(std::string_view text) {
    using enum type::Upright;
    static constexpr Word<type::Upright> kWords[] = {
        {"mixed", ByScript}, {"auto", ByScript}, {"upright", All},
        {"0", All},          {"0deg", All},      {"sideways", None},
        {"90", None},        {"90deg", None},    {"sideways-right", None}};
    return valueOf(text, kWords);
}

std::optional<double> parseSpacing(std::string_view text, const LengthContext& lengths) {
    if (equalIgnoringCase(text, "normal"))
        return 0;
    // A percentage is one of the font's size.
    if (text.ends_with('%')) {
        const auto share = parseFraction(text);
        return share ? std::optional(*share * lengths.fontSize) : std::nullopt;
    }
    return parseLength(text, lengths, Axis::Other);
}

std::optional<Baseline> parseDominantBaseline(std::string_view text) {
    if (isOneOf(text, {"auto", "use-script", "no-change", "reset-size"}))
        return Baseline::Alphabetic;
    return parseBaseline(text);
}

std::optional<bool> parseRightToLeft(std::string_view text) {
    static constexpr Word<bool> kWords[] = {{"ltr", false}, {"rtl", true}};
    return valueOf(text, kWords);
}

// Identifiers with a blank between them; nothing for anything else.
std::optional<std::string> nameOfWords(std::string_view text) {
    std::string name;
    Scanner scanner(text);
    while (!scanner.done()) {
        const std::string word = takeIdentifier(scanner);
        if (word.empty())
            return std::nullopt;
        name.append(name.empty() ? "" : " ").append(word);
        scanner.skipSpaces();
    }
    return name;
}

// What is handed down stays where nothing or "inherit" is stated.
template <class Value, class Parser>
void read(const StatedStyle& stated, Property property, Value TextStyle::*member, TextStyle& style,
          Parser parse) {
    const std::string_view text = stated[property];
    if (text.empty() || equalIgnoringCase(text, "inherit") || equalIgnoringCase(text, "unset"))
        return;
    if (equalIgnoringCase(text, "initial"))
        style.*member = TextStyle().*member;
    else if (const auto value = parse(text))
        style.*member = *value;
}

} // namespace

TextStyle TextStyle::inherited(const StatedStyle& stated, const LengthContext& lengths) const {
    TextStyle style = *this;
    const auto spacing = [&](std::string_view text) { return parseSpacing(text, lengths); };
    read(stated, Property::FontFamily, &TextStyle::families, style, [](std::string_view text) {
        return familyNames(text).empty() ? std::nullopt : std::optional(text);
    });
    read(stated, Property::FontWeight, &TextStyle::weight, style,
         [&](std::string_view text) { return parseWeight(text, weight); });
    read(stated, Property::FontStyle, &TextStyle::slant, style, parseSlant);
    read(stated, Property::FontStretch, &TextStyle::stretch, style, parseStretch);
    read(stated, Property::FontVariant, &TextStyle::smallCaps, style, [](std::string_view text) {
        return std::optional(findIgnoringCase(text, "small-caps") != std::string_view::npos);
    });
    read(stated, Property::FontVariationSettings, &TextStyle::variations, style, parseVariations);
    read(stated, Property::LetterSpacing, &TextStyle::letterSpacing, style, spacing);
    read(stated, Property::WordSpacing, &TextStyle::wordSpacing, style, spacing);
    read(stated, Property::TextAnchor, &TextStyle::anchor, style, parseAnchor);
    read(stated, Property::DominantBaseline, &TextStyle::baseline, style, parseDominantBaseline);
    read(stated, Property::TextTransform, &TextStyle::transform, style, parseTextTransform);
    read(stated, Property::WhiteSpace, &TextStyle::whiteSpace, style, parseWhiteSpace);
    read(stated, Property::WritingMode, &TextStyle::direction, style, parseWritingMode);
    read(stated, Property::GlyphOrientation, &TextStyle::upright, style, parseOrientation);
    read(stated, Property::TextOrientation, &TextStyle::upright, style, parseOrientation);
    read(stated, Property::Direction, &TextStyle::rightToLeft, style, parseRightToLeft);
    return style;
}

bool isTextValue(Property property, std::string_view text) {
    const LengthContext lengths{1, 1};
    switch (property) {
    case Property::FontFamily:
        return !familyNames(text).empty();
    case Property::FontWeight:
        return parseWeight(text, 400).has_value();
    case Property::FontStyle:
        return parseSlant(text).has_value();
    case Property::FontStretch:
        return parseStretch(text).has_value();
    case Property::FontVariationSettings:
        return parseVariations(text).has_value();
    case Property::LetterSpacing:
    case Property::WordSpacing:
        return parseSpacing(text, lengths).has_value();
    case Property::TextAnchor:
        return parseAnchor(text).has_value();
    case Property::DominantBaseline:
        return parseDominantBaseline(text).has_value();
    case Property::TextTransform:
        return parseTextTransform(text).has_value();
    case Property::WhiteSpace:
        return parseWhiteSpace(text).has_value();
    case Property::WritingMode:
        return parseWritingMode(text).has_value();
    case Property::GlyphOrientation:
    case Property::TextOrientation:
        return parseOrientation(text).has_value();
    case Property::Direction:
        return parseRightToLeft(text).has_value();
    default:
        return true;
    }
}

std::string familyNames(std::string_view stated) {
    std::string names;
    Scanner scanner(stated);
    while (!scanner.done()) {
        scanner.skipSeparator();
        const char quote = scanner.peek();
        std::string name;
        if (scanner.take('"') || scanner.take('\'')) {
            name = unquoted(scanner.until(quote));
            scanner.until(',');
        } else {
            auto words = nameOfWords(trimmed(scanner.until(',')));
            if (!words)
                return {};
            name = *std::move(words);
        }
        if (!name.empty())
            names.append(names.empty() ? "" : ",").append(name);
    }
    return names;
}

std::optional<std::string> parseVariations(std::string_view stated) {
    constexpr std::size_t kTagLength = 4;
    std::string places;
    Scanner scanner(trimmed(stated));
    if (equalIgnoringCase(scanner.rest(), "normal"))
        return places;
    while (true) {
        const char quote = scanner.peek();
        if (!scanner.take('"') && !scanner.take('\''))
            return std::nullopt;
        const std::string_view tag = scanner.until(quote);
        scanner.skipSpaces();
        const std::string_view before = scanner.rest();
        if (tag.size() != kTagLength || tag.find_first_of(",=") != std::string_view::npos ||
            !scanner.number())
            return std::nullopt;
        const std::string_view number = before.substr(0, before.size() - scanner.rest().size());
        places.append(places.empty() ? "" : ",").append(tag).append("=").append(number);
        scanner.skipSpaces();
        if (scanner.done())
            return places;
        if (!scanner.take(','))
            return std::nullopt;
        scanner.skipSpaces();
    }
}

std::optional<Baseline> parseBaseline(std::string_view text) {
    using enum Baseline;
    static constexpr Word<Baseline> kWords[] = {{"alphabetic", Alphabetic},
                                                {"ideographic", Ideographic},
                                                {"hanging", Hanging},
                                                {"mathematical", Mathematical},
                                                {"middle", Middle},
                                                {"central", Central},
                                                {"text-before-edge", TextTop},
                                                {"before-edge", TextTop},
                                                {"text-top", TextTop},
                                                {"top", TextTop},
                                                {"text-after-edge", TextBottom},
                                                {"after-edge", TextBottom},
                                                {"text-bottom", TextBottom},
                                                {"bottom", TextBottom},
                                                {"center", Central}};
    return valueOf(text, kWords);
}

double heightOf(Baseline baseline, const type::FontMetrics& metrics) {
    switch (baseline) {
    case Baseline::Alphabetic:
        break;
    case Baseline::Ideographic:
        return metrics.ideographic;
    case Baseline::Hanging:
        return metrics.hanging;
    case Baseline::Mathematical:
        return metrics.mathematical;
    case Baseline::Middle:
        return metrics.xHeight / 2;
    case Baseline::Central:
        return (metrics.ascent + metrics.descent) / 2;
    case Baseline::TextTop:
        return metrics.ascent;
    case Baseline::TextBottom:
        return metrics.descent;
    }
    return 0;
}

} // namespace easel::svg
