// Names in style sheets with escapes in them.
#include "easel/svg/style/CssIdentifier.h"
#include "tests/unit/svg/ReadHelp.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

using namespace easel::svg;
using easel::drawing::ColorPaint;
using easel::drawing::Drawing;
using easel::drawing::Rgb16;

namespace {

constexpr Rgb16 kRed{65535, 0, 0};

// What is taken of a text, and what is left of it.
std::pair<std::string, std::string> taken(std::string_view text) {
    Scanner scanner(text);
    std::string name = takeIdentifier(scanner);
    return {std::move(name), std::string(scanner.rest())};
}

using Taken = std::pair<std::string, std::string>;

TEST(CssIdentifier, IsMadeOfLettersDigitsHyphensAndEscapes) {
    EXPECT_EQ(taken("a-1_B c"), Taken("a-1_B", " c"));
    EXPECT_EQ(taken("\u00e4.b"), Taken("\u00e4", ".b"));
    EXPECT_EQ(taken("_a:b"), Taken("_a", ":b"));
    EXPECT_EQ(taken("-a"), Taken("-a", ""));
    EXPECT_EQ(taken("--1"), Taken("--1", ""));
    EXPECT_EQ(taken("-\\31"), Taken("-1", ""));
    for (const char* none : {"", "1a", "-", "-1", "+a", ".a", " a", "-.a", "\\\na"})
        EXPECT_EQ(taken(none), Taken("", none)) << none;
}

TEST(CssIdentifier, EscapesStandForCharactersByThemselvesOrByNumber) {
    EXPECT_EQ(taken("\\31 0"), Taken("10", "")) << "one blank ends the number";
    EXPECT_EQ(taken("\\31  0"), Taken("1", " 0"));
    EXPECT_EQ(taken("\\31\r\n0"), Taken("10", ""));
    EXPECT_EQ(taken("\\0000310"), Taken("10", "")) << "which has six digits at most";
    EXPECT_EQ(taken("a\\.b\\:c"), Taken("a.b:c", ""));
    EXPECT_EQ(taken("\\zed"), Taken("zed", ""));
    EXPECT_EQ(taken("\\\u00fc\\1F600!"), Taken("\u00fc\U0001F600", "!"));
    EXPECT_EQ(taken("a\\\nb"), Taken("a", "\\\nb")) << "the end of a line is not escaped";
    for (const char* no : {"\\0 ", "\\D800 ", "\\dfff ", "\\110000 ", "\\FFFFFF ", "\\"})
        EXPECT_EQ(taken(no), Taken("\ufffd", "")) << no;
    EXPECT_EQ(taken("\\10FFFF"), Taken("\U0010FFFF", ""));
}

TEST(CssIdentifier, OneNameIsOneTextHoweverItIsEscaped) {
    for (const char* fill : {"f\\69ll", "\\66 ill", "\\000066ill", "\\66\r\nill", "f\\i\\l\\l", "fill"})
        EXPECT_EQ(withPlainNames(fill), "fill") << fill;
    EXPECT_EQ(withPlainNames("stroke\\-width:\\72 ed;x\\31:y"), "stroke-width:red;x1:y");
    EXPECT_EQ(withPlainNames("-\\-a -\\61  a"), "-\\2d a -a a");
    EXPECT_EQ(withPlainNames("a\\.b,a\\2e b"), "a\\2e b,a\\2e b");
    EXPECT_EQ(withPlainNames("\\e4 \\31 "), "\u00e41");
}

TEST(CssIdentifier, WhatWouldMeanSomethingElseStaysEscaped) {
    for (const char* same :
         {"\\31 0", "\\2d 1", "1\\65 3", "-1\\65 3", "'\\27 '", "\\7b ", "\\20 ", "a\\\nb"})
        EXPECT_EQ(withPlainNames(same), same);
}

Rgb16 fillOf(const std::string& sheet, const std::string& attributes) {
    const Drawing drawing =
        readOk(svgFile("<style>" + sheet + "</style><rect width='5' height='5' " + attributes + "/>"));
    const auto* const color =
        drawing.size() == 1 ? std::get_if<ColorPaint>(&drawing.object(0)->fill) : nullptr;
    return color ? color->color : Rgb16{1, 2, 3};
}

TEST(CssIdentifier, EscapesAreReadInSheets) {
    for (const char* rule :
         {"rect{f\\69ll:red}", "rect{\\66 ill:r\\65 d}", "r\\65 ct{fill:red}", ".\\31 st{fill:red}",
          "#a\\:b{fill:red}", "#\\61\\3a b{fill:red}", "[class~=\\31 st]{fill:red}",
          "[cl\\61ss~='\\31 st']{fill:red}", ".x\\{y{fill:red}", ".x\\7by{fill:red}",
          ".x\\2c y,.x\\,y{fill:red}", "@m\\65 dia screen{rect{fill:red}}",
          "rect{--a\\.b:red;fill:v\\61r(--\\61\\2e b)}", "rect{content:'\\'';fill:red}",
          "/* \\*/rect{fill:red}", "rect{fill:red !import\\61nt;fill:lime}"})
        EXPECT_EQ(fillOf(rule, "id='a:b' class='1st x{y x,y'"), kRed) << rule;
    for (const char* rule : {".1st{fill:red}", "#1{fill:red}", "1{fill:red}", "rect{f\\:ill:red}"})
        EXPECT_EQ(fillOf(rule, "id='1' class='1st'"), Rgb16()) << rule;
}

TEST(CssIdentifier, EscapesAreReadInAttributes) {
    EXPECT_EQ(fillOf("", "style='f\\69ll:r\\65 d'"), kRed);
    EXPECT_EQ(fillOf("", "style='f\\69ll:red;fill\\:x:lime'"), kRed);
    EXPECT_EQ(fillOf("", "fill='r\\65 d'"), kRed);
}

} // namespace
