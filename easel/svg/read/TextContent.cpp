#include "easel/svg/read/TextContent.h"

#include "easel/svg/read/Conditions.h"
#include "easel/svg/read/TextPath.h"
#include "easel/svg/text/Scanner.h"
#include "easel/text/Utf8.h"

#include <algorithm>
#include <utility>

namespace easel::svg {

namespace {

// Elements in a text are read by recursion.
constexpr std::size_t kDeepestText = 100;
// How many elements around a text are asked for its language and what its blanks mean.
constexpr int kMostAround = 500;
// How many of the paints before are compared with a new one: it is mostly one of the last.
constexpr std::size_t kMostCompared = 16;

// The family of text whose style names none.
constexpr std::string_view kUsualFamily = "Times New Roman";

// How far "sub" and "super" move letters, in ems.
constexpr double kSub = -0.2;
constexpr double kSuper = 0.4;

bool same(const PaintSpec& a, const PaintSpec& b) {
    return a.kind == b.kind && a.fallback == b.fallback && a.color == b.color && a.serverId == b.serverId;
}

bool paintTheSame(const TextPaint& a, const TextPaint& b) {
    const ComputedStyle& one = a.style;
    const ComputedStyle& other = b.style;
    return a.opacity == b.opacity && same(one.fill, other.fill) && same(one.stroke, other.stroke) &&
           one.color == other.color && one.fillOpacity == other.fillOpacity &&
           one.strokeOpacity == other.strokeOpacity && one.strokeWidth == other.strokeWidth &&
           one.miterLimit == other.miterLimit && one.dashOffset == other.dashOffset &&
           one.dashes == other.dashes && one.fillRule == other.fillRule && one.clipRule == other.clipRule &&
           one.join == other.join && one.cap == other.cap && one.first == other.first &&
           one.visible == other.visible;
}

double baselineShift(std::string_view text, const LengthContext& lengths, double outerSize) {
    if (equalIgnoringCase(text, "sub"))
        return kSub * outerSize;
    if (equalIgnoringCase(text, "super"))
        return kSuper * outerSize;
    if (text.ends_with('%'))
        return parseFraction(text).value_or(0) * lengths.fontSize;
    return parseLength(text, lengths, Axis::Other).value_or(0);
}

struct BidiControls {
    std::u32string_view before;
    std::u32string_view after;
};

// The characters that say the same as the property.
BidiControls bidiControls(std::string_view unicodeBidi, bool rightToLeft) {
    if (equalIgnoringCase(unicodeBidi, "embed"))
        return {rightToLeft ? U"\u202b" : U"\u202a", U"\u202c"};
    if (equalIgnoringCase(unicodeBidi, "bidi-override"))
        return {rightToLeft ? U"\u202e" : U"\u202d", U"\u202c"};
    if (equalIgnoringCase(unicodeBidi, "isolate"))
        return {rightToLeft ? U"\u2067" : U"\u2066", U"\u2069"};
    if (equalIgnoringCase(unicodeBidi, "isolate-override"))
        return {rightToLeft ? U"\u2067\u202e" : U"\u2066\u202d", U"\u202c\u2069"};
    if (equalIgnoringCase(unicodeBidi, "plaintext"))
        return {U"\u2068", U"\u2069"};
    return {};
}

std::string_view languageOf(pugi::xml_node element) {
    const std::string_view language = element.attribute("xml:lang").value();
    return language.empty() ? std::string_view(element.attribute("lang").value()) : language;
}

// The nearest statement of the elements around.
template <class Value> std::string_view statedAround(pugi::xml_node element, Value value) {
    for (int steps = 0; steps < kMostAround && element.type() == pugi::node_element;
         element = element.parent(), ++steps)
        if (const std::string_view stated = value(element); !stated.empty())
            return stated;
    return {};
}

std::string_view spaceOf(pugi::xml_node element) {
    return element.attribute("xml:space").value();
}

bool isBlank(char32_t c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

} // namespace

TextContent TextContentReader::read(pugi::xml_node element, const StatedStyle& stated, const Place& place) {
    Level level;
    level.style = place.style;
    level.lengths = place.lengths;
    level.language = statedAround(element.parent(), languageOf);
    level.preserve = statedAround(element.parent(), spaceOf) == "preserve";
    setUp(level, element, stated, nullptr);
    const TextStyle& style = textStyleOf(level.style);
    content_.text.direction = style.direction;
    content_.text.upright = style.upright;
    content_.text.rightToLeft = style.rightToLeft;
    readInside(element, stated, level);
    finish();
    return std::move(content_);
}

void TextContentReader::setUp(Level& level, pugi::xml_node element, const StatedStyle& stated,
                              const Level* outer) {
    if (const std::string_view language = languageOf(element); !language.empty())
        level.language = language;
    if (const std::string_view space = spaceOf(element); !space.empty())
        level.preserve = space == "preserve";
    const TextStyle& style = textStyleOf(level.style);
    type::Font font{
        familyNames(style.families), style.weight,   style.slant,     style.stretch, style.smallCaps,
        style.letterSpacing == 0,    level.language, style.variations};
    if (font.families.empty())
        font.families = kUsualFamily;
    if (!level.font || *level.font != font)
        level.font = std::make_shared<const type::Font>(std::move(font));
    align(level, stated, outer);
    addDecorations(level, stated);

    level.styleNumber = content_.text.styles.size();
    content_.text.styles.push_back({level.font,
                                    std::max(level.style.fontSize, 0.0),
                                    level.raised + level.aligned,
                                    style.letterSpacing,
                                    style.wordSpacing,
                                    addPaint(level),
                                    {}});
    for (type::Decoration& decoration : level.decorations)
        if (!decoration.font)
            decoration = {decoration.kind, content_.text.styles.back().paint, level.font,
                          level.style.fontSize, level.raised + level.aligned};
    content_.text.styles.back().decorations = level.decorations;
}

void TextContentReader::align(Level& level, const StatedStyle& stated, const Level* outer) const {
    const double size = level.style.fontSize;
    level.raised +=
        baselineShift(stated[Property::BaselineShift], level.lengths, outer ? outer->style.fontSize : size);
    const auto own = outer ? parseBaseline(stated[Property::AlignmentBaseline]) : std::nullopt;
    const Baseline dominant = textStyleOf(level.style).baseline;
    if (own)
        level.aligned = outer->aligned +
                        heightOf(*own, typesetter_.metrics(*outer->font)) * outer->style.fontSize -
                        heightOf(*own, typesetter_.metrics(*level.font)) * size;
    else
        level.aligned = dominant == Baseline::Alphabetic
                            ? 0
                            : -heightOf(dominant, typesetter_.metrics(*level.font)) * size;
}

// Those of the element itself have no font yet.
void TextContentReader::addDecorations(Level& level, const StatedStyle& stated) const {
    static constexpr std::pair<std::string_view, type::LineKind> kLines[] = {
        {"underline", type::LineKind::Underline},
        {"overline", type::LineKind::Overline},
        {"line-through", type::LineKind::Strikethrough}};
    for (const auto& [word, kind] : kLines)
        for (const Property property : {Property::TextDecoration, Property::TextDecorationLine})
            if (findIgnoringCase(stated[property], word) != std::string_view::npos)
                level.decorations.push_back({kind, 0, nullptr, 0, 0});
}

std::size_t TextContentReader::addPaint(const Level& level) {
    auto& paints = content_.paints;
    TextPaint paint{level.style, level.lengths, level.opacity};
    const std::size_t known = paints.size();
    for (std::size_t i = known; i > 0 && i + kMostCompared > known; --i)
        if (paintTheSame(paints[i - 1], paint))
            return i - 1;
    paints.push_back(std::move(paint));
    return known;
}

void TextContentReader::readInside(pugi::xml_node element, const StatedStyle& stated, const Level& level) {
    const std::size_t begin = content_.text.characters.size();
    const BidiControls controls =
        bidiControls(stated[Property::UnicodeBidi], textStyleOf(level.style).rightToLeft);
    addControls(controls.before);
    lists_.open(element, level.lengths);
    const std::string_view name = scene_.tree.svgName(element);
    if (name == "tref")
        readReferenced(element, level);
    else
        readChildren(element, level);
    lists_.close();
    addControls(controls.after);
    if (name == "textPath")
        addAlongPath(element, level, begin);
    addStretched(element, level, begin);
}

void TextContentReader::readChildren(pugi::xml_node element, const Level& level) {
    for (const pugi::xml_node child : element.children()) {
        if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata)
            addText(child.value(), level);
        else if (child.type() == pugi::node_element && isForUser(child))
            readChild(child, level);
    }
}

void TextContentReader::readChild(pugi::xml_node child, const Level& outer) {
    if (depth_ == kDeepestText)
        return scene_.notes.add(Unsupported::DeepLayer);
    scene_.budget.spend(1);
    ++depth_;
    const std::string_view name = scene_.tree.svgName(child);
    if (name == "switch")
        readSwitch(child, outer);
    else if (name == "tspan" || name == "a" || name == "tref" || name == "textPath" || name == "altGlyph")
        readSpan(child, outer);
    else
        scene_.notes.addElement(name);
    --depth_;
}

void TextContentReader::readSwitch(pugi::xml_node element, const Level& outer) {
    for (const pugi::xml_node choice : element.children())
        if (choice.type() == pugi::node_element && isForUser(choice))
            return readChild(choice, outer);
}

void TextContentReader::readSpan(pugi::xml_node element, const Level& outer) {
    const StatedStyle stated = scene_.cascade.of(element, outer.style.custom);
    if (equalIgnoringCase(stated[Property::Display], "none"))
        return;
    Level level = outer;
    level.style = outer.style.inherited(stated, level.lengths);
    level.opacity *= parseOpacity(stated[Property::Opacity], 1);
    setUp(level, element, stated, &outer);
    readInside(element, stated, level);
}

// The text of another element, without what the elements in it say.
void TextContentReader::readReferenced(pugi::xml_node element, const Level& level) {
    const pugi::xml_node referenced = scene_.tree.byId(localId(hrefOf(element)));
    for (pugi::xml_node node = referenced.first_child(); node; node = nextInside(referenced, node)) {
        scene_.budget.spend(1);
        if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata)
            addText(node.value(), level);
    }
}

void TextContentReader::addAlongPath(pugi::xml_node element, const Level& level, std::size_t begin) {
    const std::size_t end = content_.text.characters.size();
    if (begin == end)
        return;
    content_.text.alongPaths.push_back(pathOfText(element, scene_, level.lengths));
    content_.text.alongPaths.back().begin = begin;
    content_.text.alongPaths.back().end = end;
}

void TextContentReader::addStretched(pugi::xml_node element, const Level& level, std::size_t begin) {
    const std::size_t end = content_.text.characters.size();
    const Axis axis =
        content_.text.direction == type::Direction::Vertical ? Axis::Vertical : Axis::Horizontal;
    const auto length = parseLength(element.attribute("textLength").value(), level.lengths, axis);
    if (begin == end || !length || !(*length >= 0))
        return;
    const std::string_view adjust = element.attribute("lengthAdjust").value();
    content_.text.stretched.push_back({begin, end, *length, adjust == "spacingAndGlyphs"});
}

void TextContentReader::addText(std::string_view utf8, const Level& level) {
    scene_.budget.spend(utf8.size());
    const WhiteSpace whiteSpace = textStyleOf(level.style).whiteSpace;
    const bool preserve =
        whiteSpace == WhiteSpace::ByElement ? level.preserve : whiteSpace == WhiteSpace::Preserve;
    for (const char32_t character : text::codePointsOf(utf8)) {
        const bool blank = isBlank(character);
        if (blank && !preserve && afterBlank_)
            continue;
        const std::u32string shown =
            case_.shown(blank ? U' ' : character, textStyleOf(level.style).transform);
        addCharacter(shown.front(), level);
        for (std::size_t i = 1; i < shown.size(); ++i)
            addToLast(shown[i]);
        afterBlank_ = blank && !preserve;
    }
}

void TextContentReader::addCharacter(char32_t c, const Level& level) {
    const TextStyle& style = textStyleOf(level.style);
    type::Character character;
    character.character = c;
    character.style = level.styleNumber;
    character.anchor = style.anchor;
    lists_.place(character);
    // The controls in front belong to the chunk that the character begins.
    for (const char32_t control : std::exchange(controls_, {})) {
        type::Character before = character;
        before.character = control;
        content_.text.characters.push_back(before);
        character.x = character.y = std::nullopt;
        character.dx = character.dy = 0;
    }
    content_.text.characters.push_back(character);
}

void TextContentReader::addToLast(char32_t c) {
    type::Character more = content_.text.characters.back();
    more.character = c;
    more.x = more.y = std::nullopt;
    more.dx = more.dy = 0;
    content_.text.characters.push_back(more);
}

void TextContentReader::finish() {
    type::Text& text = content_.text;
    if (afterBlank_ && !text.characters.empty())
        text.characters.pop_back();
    const std::size_t count = text.characters.size();
    const auto isLeft = [&](auto& range) {
        range.end = std::min(range.end, count);
        return range.begin < range.end;
    };
    std::erase_if(text.stretched, [&](type::Stretched& range) { return !isLeft(range); });
    std::erase_if(text.alongPaths, [&](type::AlongPath& range) { return !isLeft(range); });
}

} // namespace easel::svg
