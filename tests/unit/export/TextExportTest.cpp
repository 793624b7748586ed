// Text in exports: still text for other programs, and in the same places.
#include "OtherPictures.h"
#include "PictureDifference.h"

#include "easel/export/PdfFile.h"
#include "easel/export/SvgText.h"
#include "easel/paint/RenderDrawing.h"
#include "easel/svg/Document.h"

#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include <cstdio>
#include <memory>
#include <string>

namespace {

using namespace easel;
using tests::TemporaryFolder;

// Pictures have so many pixels for each unit of the drawing, so that a letter which is set on a quarter of a
// pixel is where it should be.
constexpr int kScale = 4;
constexpr int kWide = 400 * kScale;
constexpr int kHigh = 120 * kScale;
// Letters that are moved by a third of a unit are more than this apart on their sides.
// Between steps of coverage and of layers.
constexpr int kMostInside = 8;
constexpr double kMostApart = 0.004;
// Poppler sets large letters on whole pixels.
constexpr double kMostApartOnPixels = 0.012;

drawing::Drawing drawingOf(const std::string& content) {
    auto read = svg::readBytes("<svg xmlns='http://www.w3.org/2000/svg' width='400' height='120' "
                               "font-family='DejaVu Sans' font-size='24'>" +
                                   content + "</svg>",
                               "test.svg");
    if (read)
        return std::move(*read);
    ADD_FAILURE() << read.error().message();
    return drawing::Drawing::create(1, 1);
}

// Everything that exports keep as text, each on ground of its own.
const std::string kTexts[] = {
    "<text x='10' y='60'>AVATAR &amp; &lt;office></text>",
    "<text x='10' y='60' dx='0 3 3 3' rotate='0 20 40'>shifted about</text>",
    "<text x='10' y='60' letter-spacing='5'>with space</text>",
    "<text x='10' y='60' textLength='350' lengthAdjust='spacingAndGlyphs'>stretched</text>",
    "<text x='10' y='60' transform='rotate(10) skewX(20)'>turned and skewed</text>",
    "<text x='390' y='60' direction='rtl'>\u05e9\u05dc\u05d5\u05dd (\u05e2\u05d5\u05dc\u05dd) 12 abc</text>",
    "<text x='390' y='60' direction='rtl'>\u0645\u0631\u062d\u0628\u0627 "
    "\u0628\u0627\u0644\u0639\u0627\u0644\u0645</text>",
    "<path id='way' fill='none' d='M10 100Q200 -40 390 100'/><text><textPath href='#way'>along a "
    "path</textPath></text>",
    "<linearGradient id='g'><stop stop-color='#c00'/><stop offset='1' stop-color='#00c'/></linearGradient>"
    "<text x='10' y='60' fill='url(#g)'>in a <tspan font-weight='bold' dy='9'>gradient</tspan></text>",
    "<text x='10' y='60' fill='#fc0' stroke='#000' paint-order='stroke' transform='rotate(5)'>stroked</text>",
    "<text x='10' y='60' fill='#c00' fill-opacity='.4' letter-spacing='-9'>overlapping</text>",
    "<text x='10' y='60' text-decoration='underline'>under <tspan fill='#c00'>lined</tspan></text>",
    "<text x='10' y='60' style='text-transform:uppercase'>stra\u00dfe</text>",
};

std::string charactersOf(const pugi::xml_node& node) {
    std::string text;
    for (const pugi::xml_node child : node.children())
        text += child.type() == pugi::node_pcdata ? child.value() : charactersOf(child);
    return text;
}

// The characters of all text elements, without blanks and marks of direction.
std::string textIn(const std::string& svg) {
    pugi::xml_document document;
    EXPECT_TRUE(document.load_buffer(svg.data(), svg.size(), pugi::parse_default | pugi::parse_ws_pcdata));
    std::string text;
    for (const pugi::xpath_node& found : document.select_nodes("//text"))
        text += charactersOf(found.node());
    for (const std::string gone : {" ", "\n", "\u200f"})
        for (std::size_t at = text.find(gone); at != std::string::npos; at = text.find(gone))
            text.erase(at, gone.size());
    return text;
}

paint::Surface pictureOf(const drawing::Drawing& drawing) {
    paint::Surface surface(kWide, kHigh);
    paint::renderDrawing(drawing, surface.view(), drawing::Affine::scaling(kScale, kScale));
    return surface;
}

std::string outputOf(const std::string& command) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output;
    for (int c = std::fgetc(pipe.get()); c != EOF; c = std::fgetc(pipe.get()))
        output += static_cast<char>(c);
    return output;
}

std::filesystem::path pdfOf(const drawing::Drawing& drawing, const TemporaryFolder& folder) {
    const auto bytes = exports::encodePdf(drawing, exports::pageOf(drawing, 1));
    tests::writeContent(folder / "text.pdf", std::string(bytes.begin(), bytes.end()));
    return folder / "text.pdf";
}

// What another program finds in the file, without blanks at the ends.
std::string textFoundIn(const std::string& content) {
    const TemporaryFolder folder;
    std::string text = outputOf("pdftotext '" + pdfOf(drawingOf(content), folder).string() + "' -");
    const std::size_t begin = text.find_first_not_of(" \n\f");
    return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(" \n\f") + 1 - begin);
}

// The other program's picture, opaque.
paint::Surface pictureOfPdf(const std::filesystem::path& file) {
    const std::string pixels = outputOf("pdftoppm -r 384 -singlefile '" + file.string() + "'");
    const std::string head = "P6\n1600 480\n255\n";
    paint::Surface surface(kWide, kHigh);
    if (!pixels.starts_with(head) || pixels.size() != head.size() + kWide * kHigh * 3) {
        ADD_FAILURE() << "no picture of the size: " << pixels.substr(0, 20);
        return surface;
    }
    const auto* next = reinterpret_cast<const unsigned char*>(pixels.data() + head.size());
    for (int y = 0; y < kHigh; ++y)
        for (int x = 0; x < kWide; ++x, next += 3)
            surface.row(y)[x] =
                0xff000000U | std::uint32_t{next[0]} << 16 | std::uint32_t{next[1]} << 8 | next[2];
    return surface;
}

TEST(TextAsSvg, EachCharacterIsInATextElement) {
    EXPECT_EQ(textIn(exports::encodeSvg(drawingOf(kTexts[0]), 1)), "AVATAR&<office>");
    EXPECT_EQ(textIn(exports::encodeSvg(drawingOf(kTexts[1]), 1)), "shiftedabout");
    EXPECT_EQ(textIn(exports::encodeSvg(drawingOf(kTexts[7]), 1)), "alongapath");
    EXPECT_EQ(textIn(exports::encodeSvg(drawingOf(kTexts[8]), 1)), "inagradient");
    EXPECT_EQ(textIn(exports::encodeSvg(drawingOf(kTexts[12]), 1)), "STRASSE") << "as it is shown";
    EXPECT_EQ(textIn(exports::encodeSvg(drawingOf(kTexts[6]), 1)),
              "\u0645\u0631\u062d\u0628\u0627\u0628\u0627\u0644\u0639\u0627\u0644\u0645");
}

TEST(TextAsSvg, WhatOtherProgramsSetOtherwiseIsOutlines) {
    // Small capitals are the large ones in a smaller size, which only some make.
    const std::string svg =
        exports::encodeSvg(drawingOf("<text x='9' y='60' font-variant='small-caps'>Small</text>"), 1);
    EXPECT_EQ(textIn(svg), "");
    EXPECT_NE(svg.find("<path"), std::string::npos);
}

TEST(TextAsSvg, LooksTheSameToLibrsvg) {
    for (const std::string& content : kTexts) {
        const drawing::Drawing drawing = drawingOf("<rect width='400' height='120' fill='#fff'/>" + content);
        const TemporaryFolder folder;
        tests::writeContent(folder / "text.svg", exports::encodeSvg(drawing, 1));
        const paint::Surface ours = pictureOf(drawing);
        const paint::Surface other = paintedByLibrsvg(folder / "text.svg", 400, 120, kScale);
        const PictureDifference found = compare(ours, other);
        EXPECT_LE(found.apart, kMostApart)
            << content << ": " << found.text() << "; " << writePictures("text-svg", ours, other);
    }
}

TEST(TextAsPdf, IsFoundByItsCharacters) {
    EXPECT_EQ(textFoundIn(kTexts[0]), "AVATAR & <office>");
    EXPECT_EQ(textFoundIn(kTexts[2]), "with space");
    EXPECT_EQ(textFoundIn(kTexts[3]), "stretched");
    EXPECT_EQ(textFoundIn(kTexts[8]), "in a gradient");
    EXPECT_EQ(textFoundIn(kTexts[9]), "stroked");
    EXPECT_EQ(textFoundIn(kTexts[11]), "under lined");
    // From the right, with the characters that keep this direction around it.
    EXPECT_NE(textFoundIn(kTexts[5]).find("\u05e9\u05dc\u05d5\u05dd (\u05e2\u05d5\u05dc\u05dd)"),
              std::string::npos);
}

TEST(TextAsPdf, IsFoundWhereItsLettersAreOutlinesToo) {
    EXPECT_EQ(textFoundIn("<text x='9' y='60' fill='none' stroke='#000'>only stroked</text>"),
              "only stroked");
    EXPECT_EQ(textFoundIn("<text x='9' y='60' fill='none'>nothing</text>"), "");
    EXPECT_EQ(textFoundIn("<mask id='m'><text x='9' y='60' fill='#fff'>masking</text></mask>"
                          "<rect width='400' height='120' mask='url(#m)'/>"),
              "");
}

TEST(TextAsPdf, LooksTheSameToPoppler) {
    for (const std::string& content : kTexts) {
        const drawing::Drawing drawing = drawingOf("<rect width='400' height='120' fill='#fff'/>" + content);
        const TemporaryFolder folder;
        const paint::Surface ours = pictureOf(drawing);
        const paint::Surface other = pictureOfPdf(pdfOf(drawing, folder));
        const PictureDifference found = compare(ours, other);
        EXPECT_LE(found.mostInside, kMostInside)
            << content << ": " << found.text() << "; " << writePictures("text-pdf", ours, other);
        EXPECT_LE(found.apart, kMostApartOnPixels) << content << ": " << found.text();
    }
}

} // namespace
