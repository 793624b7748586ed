// What filters show: as librsvg shows it, and as pictures in the formats that know no filters.
#include "OtherPictures.h"
#include "PictureDifference.h"

#include "tests/support/TemporaryFolder.h"

#include "easel/export/CairoPainter.h"
#include "easel/export/PdfFile.h"
#include "easel/export/SvgText.h"
#include "easel/paint/RenderDrawing.h"
#include "easel/svg/Document.h"

#include <cairo.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using easel::drawing::Affine;
using easel::drawing::Drawing;
using easel::paint::Surface;

constexpr int kScale = 2;

std::filesystem::path effects() {
    return TEST_DATA_DIR "/filtered/effects.svg";
}

Drawing opened(const std::filesystem::path& file) {
    auto result = easel::svg::readFile(file);
    if (!result)
        throw std::runtime_error(result.error().message());
    return std::move(*result);
}

Surface ours(const Drawing& drawing) {
    Surface surface(static_cast<int>(drawing.width()) * kScale, static_cast<int>(drawing.height()) * kScale);
    renderDrawing(drawing, surface.view(), Affine::scaling(kScale, kScale));
    return surface;
}

// Of the pixels, so many may differ by more than a fifth of the range: edges that programs round to pixels
// each in its way.
void expectAlike(const std::string& name, const Surface& one, const Surface& other, double mostApart) {
    const PictureDifference found = compare(one, other);
    EXPECT_LE(found.apart, mostApart) << found.text() << "; " << writePictures(name, one, other);
}

TEST(FilteredDrawings, LookAsLibrsvgShowsThem) {
    const Drawing drawing = opened(effects());
    EXPECT_TRUE(drawing.notes().empty());
    expectAlike("filters-librsvg", ours(drawing),
                paintedByLibrsvg(effects(), drawing.width(), drawing.height(), kScale), 0.01);
}

TEST(FilteredDrawings, LookTheSameThroughCairo) {
    const Drawing drawing = opened(effects());
    const Surface one = ours(drawing);
    const Surface other = paintedByCairo(one.width(), one.height(), [&](cairo_t* cairo) {
        cairo_scale(cairo, kScale, kScale);
        easel::exports::CairoPainter(cairo).paint(drawing);
        EXPECT_EQ(cairo_status(cairo), CAIRO_STATUS_SUCCESS);
    });
    expectAlike("filters-cairo", one, other, 0);
}

TEST(FilteredDrawings, LookTheSameExportedAsSvg) {
    const Drawing drawing = opened(effects());
    const std::string text = easel::exports::encodeSvg(drawing, 1, {}, 96 * kScale);
    EXPECT_EQ(text.find("filter"), std::string::npos);
    const tests::TemporaryFolder folder;
    tests::writeContent(folder / "exported.svg", text);
    expectAlike("filters-exported", ours(drawing),
                paintedByLibrsvg(folder / "exported.svg", drawing.width(), drawing.height(), kScale), 0.001);
}

std::size_t sizeAt(const Drawing& drawing, double dotsPerInch) {
    return easel::exports::encodePdf(drawing, easel::exports::pageOf(drawing, 1, dotsPerInch)).size();
}

TEST(FilteredDrawings, AreAsFineInAPdfAsIsAskedFor) {
    const Drawing drawing = opened(effects());
    const auto bytes = easel::exports::encodePdf(drawing, easel::exports::pageOf(drawing, 1));
    const std::string text(bytes.begin(), bytes.end());
    EXPECT_NE(text.find("/Subtype /Image"), std::string::npos);
    EXPECT_EQ(sizeAt(drawing, 300), bytes.size());
    EXPECT_LT(sizeAt(drawing, 100), bytes.size() / 3);
}

} // namespace
