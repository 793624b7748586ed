// Sizes of pictures, and drawings exported as SVG and PDF.
#include "easel/export/ExportDrawing.h"
#include "easel/export/GradientRange.h"
#include "easel/export/PdfFile.h"
#include "easel/export/SvgText.h"
#include "easel/memory/Refusals.h"

#include "host/Gradient.h"

#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <libdeflate.h>
#include <pugixml.hpp>

#include <algorithm>
#include <limits>
#include <memory>
#include <new>

namespace {

using namespace easel::drawing;
using namespace easel::exports;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

PictureSize sizeOf(double width, double height, const SizeRequest& request = {}) {
    return pictureSize(width, height, request).value();
}

TEST(PictureSize, APixelForEachUnitUnlessAskedOtherwise) {
    EXPECT_EQ(sizeOf(300, 200).width, 300);
    EXPECT_EQ(sizeOf(300, 200).height, 200);
    EXPECT_EQ(sizeOf(300, 200).scale, 1);
}

TEST(PictureSize, AWidthAskedForSetsTheHeightToo) {
    const PictureSize size = sizeOf(300, 200, {600, {}});
    EXPECT_EQ(size.width, 600);
    EXPECT_EQ(size.height, 400);
    EXPECT_EQ(size.scale, 2);
}

TEST(PictureSize, APartOfAPixelIsAPixelButRoundingIsNone) {
    EXPECT_EQ(sizeOf(100.25, 99.75).width, 101);
    EXPECT_EQ(sizeOf(100.25, 99.75).height, 100);
    // 1000 / 0.3 * 0.3 need not be 1000 to the last bit.
    for (int width = 1; width < 2000; ++width)
        ASSERT_EQ(sizeOf(0.3, 0.1, {width, {}}).width, width);
    EXPECT_EQ(sizeOf(1000, 0.001).height, 1);
}

TEST(PictureSize, SizesThatNoPictureHasAreRefusedWithTheReason) {
    for (const double odd : {0.0, -1.0, kInfinity, -kInfinity, kNan}) {
        EXPECT_FALSE(pictureSize(300, 200, {odd, {}})) << odd;
        EXPECT_FALSE(pictureSize(300, 200, {{}, odd})) << odd;
    }
    const auto huge = pictureSize(300, 200, {{}, 1e7});
    ASSERT_FALSE(huge);
    EXPECT_NE(huge.error().reason.find("3000000000 by 2000000000 pixels"), std::string::npos);
    EXPECT_FALSE(pictureSize(1, 1e300, {}));
}

TEST(PictureSize, APictureLargerThanTheMemoryIsRefusedWithBothSizes) {
    const PictureSize size = sizeOf(100000, 50000);
    EXPECT_TRUE(checkMemory(size, std::uint64_t{20'000'000'000}));
    const auto checked = checkMemory(size, std::uint64_t{19'999'999'999});
    ASSERT_FALSE(checked);
    EXPECT_NE(checked.error().reason.find("20000 MB"), std::string::npos);
    EXPECT_NE(checked.error().reason.find("19999 MB"), std::string::npos);
    EXPECT_TRUE(checkMemory(size, std::nullopt));
}

TEST(PictureSize, TheSystemSaysHowMuchMemoryIsFree) {
    ASSERT_TRUE(availableMemory());
    EXPECT_GT(*availableMemory(), std::uint64_t{1'000'000});
}

ObjectPtr withGradient(const std::string& id, const Box& box, const CGradientData& record) {
    Object object;
    object.id = id;
    object.outline = rectanglePath(box);
    object.fillPattern = FillPattern::SolidBlack;
    object.setGradient(ObjectGradient(new CGradient(record)));
    return sealed(object);
}

Drawing drawingOf(std::vector<ObjectPtr> objects) {
    return Drawing(300, 200, std::move(objects), nullptr, {});
}

pugi::xml_document parsed(const std::string& text) {
    pugi::xml_document document;
    EXPECT_TRUE(document.load_string(text.c_str())) << text;
    return document;
}

TEST(SvgText, AnObjectsGradientIsANativeOneFittedToItsShape) {
    const auto document = parsed(encodeSvg(drawingOf({withGradient("a", {10, 20, 110, 70}, {})}), 2));
    const auto svg = document.child("svg");
    EXPECT_STREQ(svg.attribute("width").value(), "600");
    EXPECT_STREQ(svg.attribute("viewBox").value(), "0 0 300 200");
    const auto gradient = svg.child("defs").child("linearGradient");
    EXPECT_EQ(gradient.attribute("x1").as_double(), 10);
    EXPECT_EQ(gradient.attribute("y1").as_double(), 45);
    EXPECT_EQ(gradient.attribute("x2").as_double(), 110);
    EXPECT_EQ(gradient.attribute("y2").as_double(), 45);
    const auto path = svg.child("path");
    EXPECT_STREQ(path.attribute("id").value(), "a");
    EXPECT_EQ(path.attribute("fill").value(), "url(#" + std::string(gradient.attribute("id").value()) + ")");
}

TEST(SvgText, GradientsThatComeOutAlikeAreWrittenOnce) {
    CGradientData other;
    other.SetAngle(30);
    const Box box{10, 20, 110, 70};
    const auto document = parsed(encodeSvg(
        drawingOf({withGradient("a", box, {}), withGradient("b", box, {}), withGradient("c", box, other)}),
        1));
    const auto definitions = document.child("svg").child("defs");
    EXPECT_EQ(std::distance(definitions.begin(), definitions.end()), 2);
}

TEST(SvgText, NamesOfGradientsAreNeverThoseOfObjects) {
    const auto document =
        parsed(encodeSvg(drawingOf({withGradient("easel-gradient1", {0, 0, 9, 9}, {})}), 1));
    EXPECT_STRNE(document.child("svg").child("defs").first_child().attribute("id").value(),
                 "easel-gradient1");
}

TEST(SvgText, IdsWithLettersThatXmlReservesComeThrough) {
    const auto document = parsed(encodeSvg(drawingOf({withGradient("a<b&\"c\"", {0, 0, 9, 9}, {})}), 1));
    EXPECT_STREQ(document.child("svg").child("path").attribute("id").value(), "a<b&\"c\"");
}

TEST(PdfFile, GradientsAreShadingsAndTheSameTwoKinds) {
    CGradientData radial;
    radial.SetType(kRadialGradient);
    const auto drawing =
        drawingOf({withGradient("a", {0, 0, 90, 90}, {}), withGradient("b", {100, 0, 190, 90}, radial)});
    const auto bytes = encodePdf(drawing, pageOf(drawing, 1));
    const std::string text(bytes.begin(), bytes.end());
    EXPECT_NE(text.find("/ShadingType 2"), std::string::npos);
    EXPECT_NE(text.find("/ShadingType 3"), std::string::npos);
    EXPECT_EQ(text.find("/Subtype /Image"), std::string::npos);
    // 300 by 200 units at 96 to the inch, in points.
    EXPECT_NE(text.find("0 0 225 150"), std::string::npos);
}

// The library that writes it takes some refusals for success.
TEST(PdfFile, IsGivenUpWhereMemoryWasRefusedWhileItWasWritten) {
    const auto drawing = drawingOf({withGradient("a", {0, 0, 90, 90}, {})});
    const Progress refusing([](double) {
        easel::memory::countRefusal();
        return true;
    });
    EXPECT_THROW(encodePdf(drawing, pageOf(drawing, 1), refusing), std::bad_alloc);
}

TEST(VectorExports, CarryOpacityAndEllipsesWithoutPictures) {
    CGradientData record;
    record.SetType(kRadialGradient);
    Object object = *withGradient("a", {0, 0, 90, 90}, record);
    object.setWholeGradient(object.gradient, makeShared<const Remainder>(
                                                 Remainder{{{0, 0.25}, {1, 1}}, Affine{2, 0, 0, 0.5, 0, 0}}));
    const auto drawing = drawingOf({sealed(object)});
    const auto bytes = encodePdf(drawing, pageOf(drawing, 1));
    const std::string text(bytes.begin(), bytes.end());
    EXPECT_NE(text.find("/SMask"), std::string::npos);
    EXPECT_NE(text.find("/ShadingType 3"), std::string::npos);
    EXPECT_EQ(text.find("/Subtype /Image"), std::string::npos);

    const auto document = parsed(encodeSvg(drawing, 1));
    const auto gradient = document.child("svg").child("defs").child("radialGradient");
    EXPECT_TRUE(gradient.attribute("gradientTransform"));
    EXPECT_EQ(gradient.first_child().attribute("stop-opacity").as_double(), 0.25);
    EXPECT_FALSE(document.child("svg").child("image"));
}

// What is painted on the page, as PDF writes it; it is the first stream of the file.
std::string pageContent(const easel::files::Bytes& pdf) {
    constexpr std::string_view kBegin = "stream\n";
    const auto begin = std::search(pdf.begin(), pdf.end(), kBegin.begin(), kBegin.end()) + kBegin.size();
    const std::unique_ptr<libdeflate_decompressor, decltype(&libdeflate_free_decompressor)> decompressor(
        libdeflate_alloc_decompressor(), &libdeflate_free_decompressor);
    std::string content(100'000, '\0');
    std::size_t read = 0;
    std::size_t size = 0;
    EXPECT_EQ(libdeflate_zlib_decompress_ex(decompressor.get(), &*begin,
                                            static_cast<std::size_t>(pdf.end() - begin), content.data(),
                                            content.size(), &read, &size),
              LIBDEFLATE_SUCCESS);
    content.resize(size);
    return content;
}

TEST(PdfFile, OnALargerPageTheDrawingIsInItsPlaceAndNothingBesideIt) {
    const auto drawing =
        drawingOf({withGradient("a", {10, 20, 90, 90}, {}), withGradient("b", {250, 0, 350, 10}, {})});
    const auto pdf = encodePdf(drawing, {600, 800, 100, 50, 0.5});
    EXPECT_NE(std::string(pdf.begin(), pdf.end()).find("0 0 600 800"), std::string::npos);
    const std::string content = pageContent(pdf);
    EXPECT_NE(content.find("105 60 40 35 re W n"), std::string::npos) << content;
    // The second shape ends where the drawing does.
    EXPECT_NE(content.find("225 50 25 5 re W n"), std::string::npos) << content;
}

TEST(ExportDrawing, CancelledAtAnyReportItLeavesTheFileThatWasThere) {
    const tests::TemporaryFolder folder;
    std::vector<ObjectPtr> objects;
    objects.reserve(1000);
    for (int i = 0; i < 1000; ++i)
        objects.push_back(withGradient("", {i * 0.1, 0, i * 0.1 + 9, 90}, {}));
    const auto drawing = drawingOf(objects);
    for (const char* name : {"a.png", "a.pdf", "a.svg"}) {
        const std::filesystem::path file = folder / name;
        int reports = 0;
        double last = 0;
        ASSERT_TRUE(exportDrawing(drawing, file, {}, Progress([&](double done) {
                                      EXPECT_GE(done, last) << name;
                                      last = done;
                                      return ++reports > 0;
                                  })));
        EXPECT_LE(last, 1) << name;
        ASSERT_GE(reports, 2) << name;
        tests::writeContent(file, "before");
        for (int wanted = 0; wanted < std::min(reports, 5); ++wanted) {
            int left = wanted;
            const auto exported =
                exportDrawing(drawing, file, {}, Progress([&](double) { return left-- > 0; }));
            ASSERT_FALSE(exported) << name << " after " << wanted;
            EXPECT_TRUE(exported.error().isCancellation()) << exported.error().message();
            EXPECT_EQ(tests::contentOf(file), "before") << name << " after " << wanted;
        }
    }
}

TEST(GradientRange, StopsOutsideTheRangeMoveTheEnds) {
    const Gradient wide{LinearGeometry{{100, 0}, {200, 0}},
                        {},
                        Spread::Pad,
                        Ramp({{-0.5, {0, 0, 0}, 1}, {0.5, {65535, 0, 0}, 1}, {1.5, {0, 0, 65535}, 1}})};
    const Gradient moved = withinUnitRange(wide);
    EXPECT_EQ(std::get<LinearGeometry>(moved.geometry), (LinearGeometry{{50, 0}, {250, 0}}));
    ASSERT_EQ(moved.ramp.stops().size(), 3u);
    EXPECT_EQ(moved.ramp.stops()[0].position, 0);
    EXPECT_EQ(moved.ramp.stops()[1].position, 0.5);
    EXPECT_EQ(moved.ramp.stops()[2].position, 1);
}

TEST(GradientRange, ARadialGradientBeginsWhereItsRadiusIsNone) {
    const Gradient wide{RadialGeometry{{100, 100}, 0, {100, 100}, 50},
                        {},
                        Spread::Pad,
                        Ramp({{-1, {0, 0, 0}, 1}, {1, {65535, 65535, 65535}, 1}})};
    const Gradient moved = withinUnitRange(wide);
    EXPECT_EQ(std::get<RadialGeometry>(moved.geometry), (RadialGeometry{{100, 100}, 0, {100, 100}, 50}));
    EXPECT_EQ(moved.ramp.stops().front().position, 0);
    EXPECT_NEAR(moved.ramp.stops().front().color.red, 32768, 1);
}

TEST(GradientRange, GeometryWithoutExtentShowsTheLastColor) {
    const Ramp ramp({{0, {0, 0, 0}, 1}, {1, {1, 2, 3}, 1}});
    EXPECT_EQ(onlyColor({LinearGeometry{{5, 5}, {5, 5}}, {}, Spread::Pad, ramp})->color, (Rgb16{1, 2, 3}));
    EXPECT_EQ(onlyColor({RadialGeometry{{5, 5}, 0, {5, 5}, 0}, {}, Spread::Pad, ramp})->color,
              (Rgb16{1, 2, 3}));
    EXPECT_TRUE(onlyColor({LinearGeometry{{5, kNan}, {5, 6}}, {}, Spread::Pad, ramp}));
    EXPECT_FALSE(onlyColor({LinearGeometry{{5, 5}, {5, 6}}, {}, Spread::Pad, ramp}));
}

TEST(Export, NumbersThatAreNoneStillGiveAFile) {
    CGradientData record;
    record.SetAngle(std::numeric_limits<float>::infinity());
    record.ColorList().emplace_back(RGBColor{1, 2, 3}, kNan);
    const auto drawing = drawingOf(
        {withGradient("a", {kNan, 0, 90, kInfinity}, record), withGradient("b", {0, 0, 9, 9}, record)});
    parsed(encodeSvg(drawing, 1));
    const auto pdf = encodePdf(drawing, pageOf(drawing, 1));
    EXPECT_NE(std::string(pdf.begin(), pdf.end()).find("%%EOF"), std::string::npos);
}

} // namespace
