// Fonts that style sheets bring along.
#include "easel/svg/style/FontFace.h"
#include "easel/files/Gzip.h"
#include "easel/svg/style/CssText.h"
#include "easel/svg/text/DataUri.h"
#include "tests/support/SmallFont.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/unit/svg/ReadHelp.h"

#include <gmock/gmock.h>

using namespace easel::svg;
using easel::drawing::Box;
using easel::drawing::Drawing;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

std::optional<FontFace> parsed(const std::string& descriptors) {
    return parseFontFace(parseDeclarations(descriptors));
}

std::vector<std::string> sourcesOf(const std::string& text) {
    std::vector<std::string> result;
    if (const auto face = parsed("font-family:a;src:" + text))
        for (const FontSource& source : face->sources)
            result.push_back((source.kind == FontSource::Kind::System ? "system " : "") + source.text);
    return result;
}

TEST(CssText, LosesItsQuotesAndEscapes) {
    EXPECT_EQ(unquoted(" 'a b' "), "a b");
    EXPECT_EQ(unquoted("\"it's\""), "it's");
    EXPECT_EQ(unquoted("'a\""), "'a\"");
    EXPECT_EQ(unquoted("'a\\\nb\\\r\nc\\\rd'"), "abcd") << "lines go on behind a backslash";
    EXPECT_EQ(unquoted("\\41 b\\000043c\\e4\\ \\\\"), "AbC"
                                                      "c\u00e4 \\");
    EXPECT_EQ(unquoted("a\\"), "a");
    EXPECT_EQ(unquoted("\\FFFFFF"), "\ufffd") << "no such character";
    EXPECT_EQ(unquoted("'"), "'");
}

TEST(FontFace, SourcesComeInTheirOrder) {
    EXPECT_THAT(sourcesOf("url(a.ttf)"), ElementsAre("a.ttf"));
    EXPECT_THAT(sourcesOf("LOCAL('A, B'), URL( \"x,y).otf\" ) format('opentype'), url(#f) format(svg)"),
                ElementsAre("system A, B", "x,y).otf", "#f"));
    EXPECT_THAT(sourcesOf("url(data:font/ttf;base64,AAAA), url("),
                ElementsAre("data:font/ttf;base64,AAAA", ""));
    EXPECT_THAT(sourcesOf("a.ttf"), IsEmpty());
    EXPECT_THAT(sourcesOf("url(a);src:nonsense"), ElementsAre("a"));
    EXPECT_THAT(sourcesOf("url(a);SRC:url(b)"), ElementsAre("b"));
}

TEST(FontFace, IsForAFamilyAndSaysHowItLooks) {
    EXPECT_FALSE(parsed("src:url(a)"));
    EXPECT_FALSE(parsed("font-family:a"));
    const auto face =
        parsed("Font-Family:'My Font', other;src:url(a);FONT-WEIGHT:Bold;font-style:Oblique 10deg");
    ASSERT_TRUE(face);
    EXPECT_EQ(face->font.families, "My Font");
    EXPECT_EQ(parsed("font-family:\\33 D\\.Font;src:url(a)")->font.families, "3D.Font");
    EXPECT_EQ(face->font.weight, 700);
    EXPECT_EQ(face->font.slant, easel::type::Slant::Italic);
    const auto weightOf = [](const std::string& weight) {
        return parsed("font-family:a;src:url(b);font-weight:" + weight)->font.weight;
    };
    EXPECT_EQ(weightOf("350"), 350);
    EXPECT_EQ(weightOf("normal"), 400);
    EXPECT_EQ(weightOf("100 900"), 400) << "of a range, what is nearest to the usual one";
    EXPECT_EQ(weightOf("600 900"), 600);
    EXPECT_EQ(weightOf("100 300"), 300);
    EXPECT_EQ(weightOf("2000"), 400);
    EXPECT_EQ(parsed("font-family:a;src:url(b);font-style:normal")->font.slant, easel::type::Slant::Upright);
}

TEST(FontFace, MayBeForSeveralWeights) {
    using easel::type::Weights;
    const auto weightsOf = [](const std::string& weight) {
        return parsed("font-family:a;src:url(b);font-weight:" + weight)->weights;
    };
    EXPECT_EQ(weightsOf("100 900"), (Weights{100, 900}));
    EXPECT_EQ(weightsOf("900 100"), (Weights{100, 900}));
    EXPECT_EQ(weightsOf("normal BOLD"), (Weights{400, 700}));
    EXPECT_EQ(weightsOf("350"), (Weights{350, 350}));
    for (const char* unsaid : {"auto", "2000", "0", "x"})
        EXPECT_EQ(weightsOf(unsaid), std::nullopt) << unsaid;
    EXPECT_EQ(parsed("font-family:a;src:url(b)")->weights, std::nullopt);
}

TEST(FontFace, MayBeForSomeCharacters) {
    using easel::type::Characters;
    const auto charactersOf = [](const std::string& ranges) {
        return parsed("font-family:a;src:url(b);unicode-range:" + ranges)->characters;
    };
    EXPECT_THAT(charactersOf("U+26, u+0-7F , U+4??"),
                ElementsAre(Characters{0x26, 0x26}, Characters{0, 0x7f}, Characters{0x400, 0x4ff}));
    EXPECT_THAT(charactersOf("U+10FFFF"), ElementsAre(Characters{0x10ffff, 0x10ffff}));
    for (const char* none : {"", "26", "U+", "U+5-4", "U+41, x", "U+1234567", "U+4g"})
        EXPECT_THAT(charactersOf(none), IsEmpty()) << none;
}

std::string dataOf(const std::string& bytes) {
    return "url(\"data:;base64," + base64Text(bytes) + "\")";
}

std::string drawingIn(const std::string& rules, const std::string& text = "BA",
                      const std::string& family = "Small") {
    return svgFile("<style>" + rules + "</style><text x='10' y='50' font-size='20' font-family='" + family +
                   "'>" + text + "</text>");
}

Box boundsOf(const Drawing& drawing) {
    EXPECT_EQ(drawing.size(), 1U);
    return drawing.size() == 0 ? Box() : drawing.object(0)->bounds;
}

void expectBox(const Box& box, double left, double top, double right, double bottom) {
    EXPECT_NEAR(box.left, left, 0.01);
    EXPECT_NEAR(box.top, top, 0.01);
    EXPECT_NEAR(box.right, right, 0.01);
    EXPECT_NEAR(box.bottom, bottom, 0.01);
}

// An em and a fifth and half an em, at 20 units an em.
void expectSmallLetters(const Drawing& drawing) {
    expectBox(boundsOf(drawing), 10, 40, 44, 50);
    EXPECT_THAT(drawing.notes(), IsEmpty());
}

std::string ruleFor(const std::string& source, const std::string& more = "") {
    return "@font-face{font-family:Small;src:" + source + ";" + more + "}";
}

TEST(FontFace, TextIsSetInTheLettersThatTheSheetHolds) {
    expectSmallLetters(readOk(drawingIn(ruleFor(dataOf(tests::smallFont())))));
    expectSmallLetters(
        readOk(drawingIn("@FONT-FACE {FONT-FAMILY:'sMALL';SRC:" + dataOf(tests::smallWoff()) + "}")));
    expectSmallLetters(readOk(drawingIn("@media screen{" + ruleFor(dataOf(tests::smallFont())) + "}")));
    // As programs write them: the data on several lines, each but the last with a backslash behind it.
    std::string lines = dataOf(tests::smallFont());
    for (std::size_t at = 80; at < lines.size() - 2; at += 78)
        lines.insert(at, "\\\n");
    expectSmallLetters(readOk(drawingIn(ruleFor(lines))));
}

TEST(FontFace, WhatCannotBeReadIsForTheNextSource) {
    expectSmallLetters(readOk(drawingIn(
        ruleFor("url(http://a/b.ttf), url(data:x), local(No Such Font), " + dataOf(tests::smallFont())))));
}

TEST(FontFace, TheLastOfRulesThatAreAlikeCounts) {
    const std::string font = dataOf(tests::smallFont());
    expectSmallLetters(readOk(drawingIn(ruleFor("local(DejaVu Sans)") + ruleFor(font))));
    expectSmallLetters(readOk(drawingIn(ruleFor(font) + ruleFor("local(DejaVu Sans)", "font-weight:bold"))));
}

TEST(FontFace, AFamilyOfTheSystemMayHaveAnotherName) {
    const Box named = boundsOf(readOk(drawingIn("", "BA", "DejaVu Serif")));
    const Drawing drawing = readOk(drawingIn(ruleFor("local(\"DejaVu Serif\")")));
    const Box box = boundsOf(drawing);
    expectBox(box, named.left, named.top, named.right, named.bottom);
    EXPECT_NE(box.width(), boundsOf(readOk(drawingIn("", "BA", "DejaVu Sans"))).width());
}

// The letters of the small font, as shapes.
std::string smallElement(const std::string& id) {
    return "<font id='" + id +
           "'><font-face font-family='Other' units-per-em='1000'/>"
           "<glyph unicode='B' horiz-adv-x='1200' d='M0 0H1000V500H0Z'/>"
           "<glyph unicode='A' horiz-adv-x='600' d='M0 0H500V500H0Z'/></font>";
}

// A drawing of the text "BA" with an element that says where its font is.
std::string drawingWithFace(const std::string& sources, const std::string& attributes = "") {
    return svgFile("<defs><font-face font-family='Small' " + attributes + "><font-face-src>" + sources +
                   "</font-face-src></font-face></defs>" + smallElement("f") +
                   "<text x='10' y='50' font-size='20' font-family='Small'>BA</text>");
}

TEST(FontFace, LettersMayBeAFontElement) {
    const std::string text = drawingIn(ruleFor("url(\"#f\") format(svg)"));
    expectSmallLetters(readOk(text.substr(0, text.size() - 6) + smallElement("f") + "</svg>"));
}

TEST(FontFace, MayBeAnElementOfTheDrawing) {
    expectSmallLetters(
        readOk(drawingWithFace("<font-face-uri href='http://a/b.svg#f'/><font-face-name name='No Such "
                               "Font'/><font-face-uri href='#g'/>"
                               "<font-face-uri href='#f'><font-face-format string='svg'/></font-face-uri>"
                               "<font-face-name name='DejaVu Serif'/>")));
    const Box named = boundsOf(readOk(drawingIn("", "BA", "DejaVu Serif")));
    const Box box = boundsOf(readOk(drawingWithFace("<font-face-name name='DejaVu Serif'/>")));
    expectBox(box, named.left, named.top, named.right, named.bottom);
    // Of two that are alike the last one counts, and one that is for other letters does not.
    expectSmallLetters(readOk(drawingWithFace(
        "<font-face-uri href='#f'/></font-face-src></font-face><font-face font-family='Small' "
        "unicode-range='U+61-7A'><font-face-src><font-face-name name='DejaVu Serif'/>")));
    EXPECT_THAT(readOk(drawingWithFace("<font-face-uri href='#g'/>")).notes(),
                ElementsAre(HasSubstr("damaged or of unknown kinds")));
}

TEST(FontFace, LettersMayBeAFontElementOfADrawingBeside) {
    const tests::TemporaryFolder folder;
    const std::string fonts =
        svgFile("<font id='g'><font-face/></font><defs>" + smallElement("f") + "</defs>");
    tests::writeContent(folder / "fonts.svg", fonts);
    tests::writeContent(folder / "one.svg", "\xEF\xBB\xBF" + svgFile(smallElement("x")));
    tests::writeContent(folder / "packed.svgz", easel::files::packedGzip(fonts));
    tests::writeContent(folder / "damaged.svg", "<svg><font");
    tests::writeContent(folder / "small.ttf", tests::smallFont());
    const auto readWith = [&](const std::string& reference) {
        tests::writeContent(folder / "drawing.svg",
                            drawingWithFace("<font-face-uri href='" + reference + "'/>"));
        auto read = readFile(folder / "drawing.svg");
        EXPECT_TRUE(read);
        return read ? std::move(*read) : Drawing::create(1, 1);
    };
    for (const char* reference : {"fonts.svg#f", "one.svg", "packed.svgz#f", "small.ttf"})
        expectSmallLetters(readWith(reference));
    for (const char* reference : {"fonts.svg#none", "damaged.svg#f", "damaged.svg", "drawing.svg#none"})
        EXPECT_THAT(readWith(reference).notes(), ElementsAre(HasSubstr("damaged or of unknown kinds")))
            << reference;
}

TEST(FontFace, LettersComeFromTheRuleThatIsForThem) {
    const std::string wide = dataOf(tests::smallVariableFont());
    // A, 0.9 wide with an advance of 1.1, is of the one font, and B, an em wide, of the other.
    const std::string heavy = "font-weight:900;unicode-range:";
    const Drawing byCharacter =
        readOk(drawingIn(ruleFor(dataOf(tests::smallFont()), heavy + "U+42") + ruleFor(wide, heavy + "U+41"),
                         "<tspan font-weight='900'>AB</tspan>"));
    expectBox(boundsOf(byCharacter), 10, 40, 10 + 22 + 20, 50);
    const Drawing bold =
        readOk(drawingIn(ruleFor(wide, "font-weight:100 900"), "<tspan font-weight='900'>A</tspan>B"));
    // A as before, then B as it is at the usual weight.
    expectBox(boundsOf(bold), 10, 40, 10 + 22 + 20, 50);
    const std::string heaviest = "font-variation-settings:'wght' 900";
    for (const Drawing& drawing :
         {readOk(drawingIn(ruleFor(wide), "<tspan style=\"" + heaviest + "\">A</tspan>B")),
          readOk(drawingIn(ruleFor(wide, heaviest),
                           "A<tspan font-variation-settings='&quot;wght&quot; 400'>B</tspan>"))})
        expectBox(boundsOf(drawing), 10, 40, 10 + 22 + 20, 50);
    const Drawing unsaid = readOk(drawingIn(ruleFor(wide), "<tspan font-weight='900'>A</tspan>B"));
    expectBox(boundsOf(unsaid), 10, 40, 10 + 22 + 20, 50);
}

TEST(FontFace, FilesAreReadFromTheFolderOfTheDrawingAndBelow) {
    const tests::TemporaryFolder folder;
    std::filesystem::create_directories(folder / "in" / "fonts");
    tests::writeContent(folder / "in" / "fonts" / "small one.ttf", tests::smallFont());
    tests::writeContent(folder / "outside.ttf", tests::smallFont());
    tests::writeContent(folder / "in" / "text.ttf", "no font");
    const auto readWith = [&](const std::string& source) {
        tests::writeContent(folder / "in" / "drawing.svg", drawingIn(ruleFor(source)));
        auto read = readFile(folder / "in" / "drawing.svg");
        EXPECT_TRUE(read);
        return read ? std::move(*read) : Drawing::create(1, 1);
    };
    expectSmallLetters(readWith("url(fonts/small%20one.ttf)"));
    EXPECT_THAT(readWith("url(../outside.ttf)").notes(),
                ElementsAre(HasSubstr("Fonts are read from the folder")));
    EXPECT_THAT(readWith("url(text.ttf)").notes(), ElementsAre(HasSubstr("damaged or of unknown kinds")));
    EXPECT_THAT(readWith("url(missing.ttf)").notes(), ElementsAre(HasSubstr("damaged or of unknown kinds")));
}

TEST(FontFace, OthersAreNamedAndReplaced) {
    const double plain = boundsOf(readOk(drawingIn("", "BA", "Small, DejaVu Serif"))).width();
    for (const char* source : {"url(http://a/b.ttf)", "url(//a/b.ttf)", "url(/etc/passwd)"}) {
        const Drawing drawing = readOk(drawingIn(ruleFor(source), "BA", "Small, DejaVu Serif"));
        EXPECT_THAT(drawing.notes(), ElementsAre(HasSubstr("Fonts are read from the folder"))) << source;
        EXPECT_NEAR(boundsOf(drawing).width(), plain, 1e-9);
    }
    for (const char* source : {"url(data:,x)", "url(#nothing)", "local(No Such Font)"})
        EXPECT_THAT(readOk(drawingIn(ruleFor(source))).notes(),
                    ElementsAre(HasSubstr("damaged or of unknown kinds")))
            << source;
    // Who has no text needs no font.
    EXPECT_THAT(
        readOk(svgFile("<style>" + ruleFor("url(http://a/b.ttf)") + "</style><rect width='9' height='9'/>"))
            .notes(),
        IsEmpty());
}

TEST(FontFace, MoreFontsThanThereIsRoomForEndTheReading) {
    const std::string rule = ruleFor("url(data:,x)");
    std::string rules;
    for (int i = 0; i < 2000; ++i)
        rules += rule;
    EXPECT_FALSE(readBytes(drawingIn(rules), "many.svg"));
}

} // namespace
