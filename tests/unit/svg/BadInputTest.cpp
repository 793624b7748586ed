// Files that are no drawings, or mean harm: each gets an error that names it and says why.
#include "easel/svg/text/Fault.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/unit/svg/ReadHelp.h"

#include <gmock/gmock.h>

#include <ctime>
#include <filesystem>

namespace {

using easel::files::Error;
using easel::svg::Fault;
using easel::svg::readBytes;

Error errorOf(const std::string& text) {
    // The processor's time, since other programs may have it too.
    const std::clock_t begin = std::clock();
    const auto result = readBytes(text, "bad.svg");
    EXPECT_LT(std::clock() - begin, 20 * CLOCKS_PER_SEC);
    if (result) {
        ADD_FAILURE() << "was read: " << text.substr(0, 200);
        return {};
    }
    const std::string message = result.error().message();
    EXPECT_EQ(message.substr(0, 9), "bad.svg: ") << message;
    EXPECT_GT(message.size(), 15U);
    return result.error();
}

std::string repeated(const std::string& text, std::size_t times) {
    std::string result;
    result.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        result += text;
    return result;
}

TEST(BadInput, MissingFilesAndFoldersAreNamed) {
    const tests::TemporaryFolder folder;
    for (const auto& [path, code] :
         {std::pair(folder / "no-such-file.svg", std::errc::no_such_file_or_directory),
          {folder.path(), std::errc::is_a_directory}}) {
        const Error error = tests::errorOf(easel::svg::readFile(path));
        EXPECT_EQ(error.code, code);
        EXPECT_NE(error.message().find(path.string()), std::string::npos);
    }
}

TEST(BadInput, AnEmptyFileIsRefused) {
    EXPECT_EQ(errorOf("").code, Fault::Empty);
}

TEST(BadInput, ATruncatedFileIsRefused) {
    const std::string whole = svgFile("<g><rect width='1' height='1'/></g>");
    for (const std::size_t size : {whole.size() - 1, whole.size() - 6, whole.size() - 12, std::size_t{30}})
        EXPECT_EQ(errorOf(whole.substr(0, size)).code, Fault::NotXml) << size;
}

TEST(BadInput, WhatIsNotXmlOrNotSvgIsRefused) {
    EXPECT_EQ(errorOf("plain text").code, Fault::NotXml);
    EXPECT_EQ(errorOf(std::string("\x89PNG\r\n\x1a\n\0\0", 10)).code, Fault::NotXml);
    EXPECT_EQ(errorOf("<a><b></a></b>").code, Fault::NotXml);
    EXPECT_EQ(errorOf("<html><body/></html>").code, Fault::NotSvg);
    EXPECT_EQ(errorOf("<svg xmlns='http://example.com/other'/>").code, Fault::NotSvg);
}

TEST(BadInput, AFileAboveTheLimitIsRefusedWithoutBeingRead) {
    const tests::TemporaryFolder folder;
    const auto path = folder / "too-large.svg";
    tests::writeContent(path, "<svg/>");
    std::filesystem::resize_file(path, std::uintmax_t{20} << 30);
    EXPECT_EQ(tests::errorOf(easel::svg::readFile(path)).code, std::errc::file_too_large);
}

TEST(BadInput, AMillionNestedElementsAreRead) {
    const std::size_t depth = 1'000'000;
    const std::clock_t begin = std::clock();
    const auto drawing =
        readOk(svgFile(repeated("<g>", depth) + "<rect width='5' height='5'/>" + repeated("</g>", depth)));
    EXPECT_EQ(drawing.size(), 1U);
    EXPECT_LT(std::clock() - begin, 20 * CLOCKS_PER_SEC);
}

TEST(BadInput, LayersAndRepetitionsNestedVeryDeepAreNamed) {
    const std::size_t depth = 100'000;
    const auto layers = readOk(svgFile(repeated("<g opacity='.5'>", depth) + "<rect width='5' height='5'/>" +
                                       repeated("</g>", depth)));
    EXPECT_EQ(layers.size(), 1U);
    EXPECT_THAT(layers.notes(), testing::ElementsAre(testing::HasSubstr("nested very deep")));

    std::string chain = "<rect id='u0' width='1' height='1'/>";
    std::string clips = "<clipPath id='c0'><rect width='1' height='1'/></clipPath>";
    for (int i = 1; i < 20'000; ++i) {
        const std::string before = std::to_string(i - 1);
        chain += "<use id='u" + std::to_string(i) + "' href='#u" + before + "'/>";
        clips += "<clipPath id='c" + std::to_string(i) + "' clip-path='url(#c" + before + ")'/>";
    }
    const auto uses = readOk(svgFile("<defs>" + chain + "</defs><use href='#u19999'/>"));
    EXPECT_THAT(uses.notes(), testing::ElementsAre(testing::HasSubstr("nested very deep")));
    const auto clipped = readOk(svgFile(clips + "<rect width='1' height='1' clip-path='url(#c19999)'/>"));
    EXPECT_THAT(clipped.notes(), testing::ElementsAre(testing::HasSubstr("nested very deep")));
}

TEST(BadInput, ReferencesInCirclesAreNoneAndNamedOnce) {
    for (const char* content :
         {"<g id='a'><use href='#a'/><use href='#a'/><rect width='9' height='9'/></g>",
          "<defs><g id='a'><use href='#b'/></g></defs><g id='b'><use href='#a'/><rect width='9' "
          "height='9'/></g>",
          "<linearGradient id='a' href='#b'/><linearGradient id='b' href='#a'/><rect width='9' height='9' "
          "fill='url(#a)'/>",
          "<clipPath id='c'><rect width='9' height='9' clip-path='url(#c)'/></clipPath>"
          "<rect width='9' height='9' clip-path='url(#c)'/>"}) {
        const std::string text = svgFile(content);
        const auto drawing = readOk(text);
        EXPECT_EQ(drawing.size(), 1U) << content;
        EXPECT_THAT(drawing.notes(), testing::ElementsAre(testing::HasSubstr("lead back to themselves")))
            << content;
        EXPECT_EQ(easel::svg::toBytes(drawing), text);
    }
}

TEST(BadInput, ShapesWithNumbersOutOfRangeAreLeftOutAndNamedOnce) {
    const std::string text =
        svgFile("<rect x='1e999' width='1' height='1'/><path d='M0 0L1e300 1e300'/>"
                "<g transform='scale(1e200)'><rect transform='scale(1e200)' width='1' height='1'/></g>"
                "<line x2='5' stroke='red' stroke-width='1e30'/><rect id='good' width='9' height='9'/>");
    const auto drawing = readOk(text);
    ASSERT_EQ(drawing.size(), 1U);
    EXPECT_EQ(drawing.object(0)->id.text(), "good");
    EXPECT_THAT(drawing.notes(), testing::ElementsAre(testing::HasSubstr("out of range")));
    EXPECT_EQ(easel::svg::toBytes(drawing), text);
}

TEST(BadInput, NumbersTooSmallForADoubleAreZero) {
    EXPECT_EQ(readOk(svgFile("<rect x='1e-999' width='5' height='5'/>")).object(0)->bounds.left, 0);
}

TEST(BadInput, ExponentialUseIsRefusedInBoundedTime) {
    std::string content = "<rect id='u0' width='1' height='1'/>";
    for (int i = 1; i < 40; ++i)
        content += "<g id='u" + std::to_string(i) + "'>" +
                   repeated("<use href='#u" + std::to_string(i - 1) + "'/>", 10) + "</g>";
    EXPECT_EQ(errorOf(svgFile(content)).code, Fault::TooComplex);
}

// The letter's outline has a hundred points, so that the text has more than a small file may make of shapes.
TEST(BadInput, LongTextIsReadAndRefusedOnlyWhereItIsRepeated) {
    const std::string text =
        "<font><font-face font-family='a' units-per-em='100'/><glyph unicode='a' d='M0 0" +
        repeated("h9v9", 50) + "'/></font><text id='t' font-family='a'>" + std::string(90'000, 'a') +
        "</text>";
    EXPECT_EQ(readOk(svgFile(text)).size(), 1U);
    EXPECT_EQ(errorOf(svgFile(text + repeated("<use href='#t'/>", 3))).code, Fault::TooComplex);
}

TEST(BadInput, EntityBombsAreRefused) {
    std::string types = "<!ENTITY e0 'fill:red;'>";
    for (int i = 1; i < 12; ++i)
        types +=
            "<!ENTITY e" + std::to_string(i) + " '" + repeated("&e" + std::to_string(i - 1) + ";", 10) + "'>";
    EXPECT_EQ(errorOf("<!DOCTYPE svg [" + types + "]><svg style='&e11;'/>").code, Fault::TooComplex);
    EXPECT_EQ(errorOf("<!DOCTYPE svg [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><svg style='&a;'/>").code,
              Fault::NotXml);
}

TEST(BadInput, ExternalReferencesAreNeverFetchedAndNamedOnce) {
    const auto drawing =
        readOk(svgFile("<use href='file:///etc/passwd#a'/><use href='http://example.com/#b'/>"));
    EXPECT_EQ(drawing.size(), 0U);
    EXPECT_EQ(drawing.notes().size(), 1U);
}

} // namespace
