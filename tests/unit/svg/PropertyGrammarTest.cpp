// Which texts are values of which property, as the property tables of SVG 2 and of CSS's modules list them.
#include "easel/svg/style/PropertyGrammar.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace easel::svg;

namespace {

struct Grammar {
    const char* property;
    std::vector<const char*> values;
    std::vector<const char*> mistakes;
};

const Grammar kGrammars[] = {
    {"fill", {"none", "RED", "url(#g) lime", "context-stroke", "currentColor"}, {"reddish", "", "1", "#12"}},
    {"stop-color", {"hsl(120 50% 50%)", "currentcolor", "#1234"}, {"none", "url(#g)", "rgb(1,2)"}},
    {"opacity", {"0.5", "50%", "7"}, {"half", "1px"}},
    {"fill-rule", {"evenodd", "NonZero"}, {"odd"}},
    {"stroke-linejoin", {"bevel", "arcs"}, {"butt"}},
    {"stroke-linecap", {"butt", "square"}, {"miter"}},
    {"stroke-miterlimit", {"1", "4"}, {"0.5", "4px", "x"}},
    {"stroke-dasharray", {"none", "1 2,3%"}, {"1 -2", "dashed"}},
    {"stroke-dashoffset", {"-3", "1em"}, {"1 2", "far"}},
    {"stroke-width", {"0", "2%", "3mm"}, {"-1", "thin", "1furlong"}},
    {"paint-order", {"normal", "stroke fill"}, {"last"}},
    {"visibility", {"visible", "hidden", "collapse"}, {"none"}},
    {"display", {"none", "inline-block", "block flow", "Table-Cell"}, {"no", "invisible", "none-such"}},
    {"overflow", {"visible", "hidden scroll"}, {"show"}},
    {"isolation", {"auto", "isolate"}, {"isolated"}},
    {"mix-blend-mode", {"Multiply", "plus-lighter", "color-dodge"}, {"add"}},
    {"mask-type", {"alpha", "luminance"}, {"luma"}},
    {"color-interpolation", {"linearRGB", "srgb", "auto"}, {"rgb"}},
    {"vector-effect", {"none", "non-scaling-stroke"}, {"scaling"}},
    {"image-rendering", {"auto", "pixelated", "optimizeQuality"}, {"blurry"}},
    {"clip-path", {"none", "url(#c)", "circle(5px) view-box", "fill-box"}, {"#c", "5"}},
    {"mask", {"none", "url(#m)"}, {"#m"}},
    {"marker-end", {"none", "url(#m)"}, {"arrow"}},
    {"filter", {"none", "blur(2px) url(#f)"}, {"blur"}},
    {"x", {"-1", "10%"}, {"auto", "left"}},
    {"r", {"0", "1em"}, {"-1", "auto"}},
    {"width", {"auto", "1cm"}, {"-1", "wide"}},
    {"d", {"none", "path('M0 0')"}, {"M0 0"}},
    {"transform", {"none", "rotate(3deg) scale(2)"}, {"turn(1)", "scale"}},
    {"transform-box", {"fill-box"}, {"box"}},
    {"font-size", {"12px", "larger", "80%"}, {"big"}},
    {"font-family", {"Some Name, serif", "'1'"}, {"1 name"}},
    {"font-weight", {"350", "bolder"}, {"0", "fat"}},
    {"font-style", {"oblique 10deg"}, {"slanted"}},
    {"font-stretch", {"condensed", "80%"}, {"narrow"}},
    {"letter-spacing", {"normal", "-1px"}, {"loose"}},
    {"text-anchor", {"middle"}, {"center"}},
    {"dominant-baseline", {"auto", "hanging", "no-change"}, {"low"}},
    {"text-transform", {"uppercase", "none"}, {"upper"}},
    {"white-space", {"pre-line"}, {"preserve"}},
    {"writing-mode", {"vertical-rl", "tb"}, {"down"}},
    {"text-orientation", {"sideways"}, {"up"}},
    {"direction", {"ltr", "RTL"}, {"left"}},
};

// What counts after the first value and then the second is declared.
std::string stronger(const char* property, const char* first, const char* second) {
    StatedStyle style;
    declare(style, {property, first, Importance::Normal});
    declare(style, {property, second, Importance::Normal});
    return std::string(style[propertyFromName(property).value()]);
}

TEST(PropertyGrammar, ValuesBeatEarlierOnesAndMistakesDoNot) {
    for (const Grammar& grammar : kGrammars) {
        for (const char* value : grammar.values)
            EXPECT_EQ(stronger(grammar.property, "inherit", value), value) << grammar.property;
        for (const char* mistake : grammar.mistakes)
            EXPECT_EQ(stronger(grammar.property, grammar.values[0], mistake), grammar.values[0])
                << grammar.property << ": " << mistake;
    }
}

TEST(PropertyGrammar, WordsOfEveryPropertyAndWhatIsFoundOutLaterAreValues) {
    for (const Grammar& grammar : kGrammars)
        for (const char* word : {"inherit", "initial", "UNSET", "revert", "var(--x)", "VAR(--x)"})
            EXPECT_EQ(stronger(grammar.property, grammar.values[0], word), word) << grammar.property;
}

} // namespace
