// Our pictures against those of librsvg and of Cairo, for drawings that use all of SVG that is drawn.
//
// With EASEL_PICTURES=1 in the environment, the pictures and their differences are written for every drawing,
// not only for those that fail.
#include "OtherPictures.h"
#include "PictureDifference.h"

#include "easel/export/CairoPainter.h"
#include "easel/export/PdfFile.h"
#include "easel/export/SvgText.h"
#include "easel/paint/RenderDrawing.h"
#include "easel/svg/Document.h"

#include <cairo.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>

namespace {

using easel::drawing::Affine;
using easel::drawing::Drawing;
using easel::paint::Surface;

constexpr double kScale = 2;

std::vector<std::string> drawingNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(TEST_DATA_DIR "/drawings"))
        names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::filesystem::path fileOf(const std::string& name) {
    return std::filesystem::path(TEST_DATA_DIR "/drawings") / (name + ".svg");
}

Drawing opened(easel::files::Result<Drawing> result) {
    if (!result)
        throw std::runtime_error(result.error().message());
    return std::move(*result);
}

Surface ours(const Drawing& drawing) {
    Surface surface(static_cast<int>(std::ceil(drawing.width() * kScale)),
                    static_cast<int>(std::ceil(drawing.height() * kScale)));
    renderDrawing(drawing, surface.view(), Affine::scaling(kScale, kScale));
    return surface;
}

// Inside of shapes, Cairo's gradients stray 0.7 of a level and ours 0.5, and each layer over the other rounds
// again. At edges Cairo counts coverage in fifteenths of a pixel's height, so that a pixel where several
// edges meet may be wrong by a few of them (17 levels each). What is farther apart are steps in a gradient
// whose place falls on the other side of a pixel's center.
void expectAlike(const std::string& name, const Surface& one, const Surface& other) {
    constexpr int kMostInside = 3;
    constexpr int kMostAtEdges = 51;
    constexpr double kMostApart = 0.001;
    const PictureDifference found = compare(one, other);
    const bool alike =
        found.mostInside <= kMostInside && (found.mostAtEdges <= kMostAtEdges || found.apart <= kMostApart);
    const bool asked = std::getenv("EASEL_PICTURES") != nullptr;
    const std::string where = alike && !asked ? std::string() : writePictures(name, one, other);
    EXPECT_TRUE(alike) << name << ": " << found.text() << "; " << where;
    if (asked)
        std::cout << name << ": " << found.text() << "; " << where << "\n";
}

class CrossCheck : public testing::TestWithParam<std::string> {};

TEST_P(CrossCheck, LooksAsLibrsvgShowsIt) {
    const Drawing drawing = opened(easel::svg::readFile(fileOf(GetParam())));
    expectAlike(GetParam() + "-librsvg", ours(drawing),
                paintedByLibrsvg(fileOf(GetParam()), drawing.width(), drawing.height(), kScale));
}

TEST_P(CrossCheck, LooksAsCairoPaintsItsGradientsAndStrokes) {
    if (GetParam() == "patterns")
        GTEST_SKIP()
            << "On pixels, Cairo cuts off what a recording that repeats holds; a PDF repeats it itself.";
    const Drawing drawing = opened(easel::svg::readFile(fileOf(GetParam())));
    const Surface one = ours(drawing);
    const Surface cairos = paintedByCairo(one.width(), one.height(), [&](cairo_t* cairo) {
        cairo_scale(cairo, kScale, kScale);
        easel::exports::CairoPainter(cairo).paint(drawing);
        EXPECT_EQ(cairo_status(cairo), CAIRO_STATUS_SUCCESS);
    });
    expectAlike(GetParam() + "-cairo", one, cairos);
}

TEST_P(CrossCheck, ExportedAsSvgItLooksTheSame) {
    const Drawing drawing = opened(easel::svg::readFile(fileOf(GetParam())));
    const Drawing again = opened(easel::svg::readBytes(easel::exports::encodeSvg(drawing, 1), "exported"));
    const Surface one = ours(drawing);
    const Surface other = ours(again);
    // Nine digits of a coordinate leave the last bit of an edge to chance.
    const PictureDifference found = compare(one, other);
    EXPECT_LE(std::max(found.mostInside, found.mostAtEdges), 2)
        << found.text() << "; " << writePictures(GetParam() + "-exported", one, other);
}

TEST_P(CrossCheck, ExportedAsPdfItHoldsNoPictureButItsOwn) {
    const Drawing drawing = opened(easel::svg::readFile(fileOf(GetParam())));
    const auto bytes = easel::exports::encodePdf(drawing, easel::exports::pageOf(drawing, 1));
    const std::string text(bytes.begin(), bytes.end());
    EXPECT_EQ(text.substr(0, 5), "%PDF-");
    EXPECT_EQ(text.find("/Subtype /Image") != std::string::npos, GetParam() == "pictures");
    EXPECT_NE(text.find("%%EOF"), std::string::npos);
}

std::string testName(const testing::TestParamInfo<std::string>& drawing) {
    std::string name = drawing.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Drawings, CrossCheck, testing::ValuesIn(drawingNames()), testName);

} // namespace
