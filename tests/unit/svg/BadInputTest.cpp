// Files that are no drawings, or mean harm: each gets an error that names it and says why.
#include "tests/unit/svg/ReadHelp.h"

#include <ctime>
#include <filesystem>
#include <fstream>

namespace {

using easel::svg::Failure;
using easel::svg::Fault;
using easel::svg::readBytes;

Failure failureOf(const std::string& text) {
    // The processor's time, since other programs may have it too.
    const std::clock_t begin = std::clock();
    const auto result = readBytes(text, "bad.svg");
    EXPECT_LT(std::clock() - begin, 20 * CLOCKS_PER_SEC);
    const auto* const failure = std::get_if<Failure>(&result);
    if (!failure) {
        ADD_FAILURE() << "was read: " << text.substr(0, 200);
        return {};
    }
    EXPECT_EQ(failure->message.substr(0, 9), "bad.svg: ") << failure->message;
    EXPECT_GT(failure->message.size(), 15U);
    return *failure;
}

std::string repeated(const std::string& text, std::size_t times) {
    std::string result;
    result.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        result += text;
    return result;
}

TEST(BadInput, MissingFilesAndFoldersAreNamed) {
    const auto folder = std::filesystem::temp_directory_path();
    for (const auto& path : {folder / "no-such-file.svg", folder}) {
        const auto result = easel::svg::readFile(path);
        const auto& failure = std::get<Failure>(result);
        EXPECT_EQ(failure.fault, Fault::CannotRead);
        EXPECT_NE(failure.message.find(path.string()), std::string::npos);
    }
}

TEST(BadInput, AnEmptyFileIsRefused) {
    EXPECT_EQ(failureOf("").fault, Fault::Empty);
}

TEST(BadInput, ATruncatedFileIsRefused) {
    const std::string whole = svgFile("<g><rect width='1' height='1'/></g>");
    for (const std::size_t size : {whole.size() - 1, whole.size() - 6, whole.size() - 12, std::size_t{30}})
        EXPECT_EQ(failureOf(whole.substr(0, size)).fault, Fault::NotXml) << size;
}

TEST(BadInput, WhatIsNotXmlOrNotSvgIsRefused) {
    EXPECT_EQ(failureOf("plain text").fault, Fault::NotXml);
    EXPECT_EQ(failureOf(std::string("\x89PNG\r\n\x1a\n\0\0", 10)).fault, Fault::NotXml);
    EXPECT_EQ(failureOf("<a><b></a></b>").fault, Fault::NotXml);
    EXPECT_EQ(failureOf("<html><body/></html>").fault, Fault::NotSvg);
    EXPECT_EQ(failureOf("<svg xmlns='http://example.com/other'/>").fault, Fault::NotSvg);
}

TEST(BadInput, AFileAboveTheLimitIsRefusedWithoutBeingRead) {
    const auto path = std::filesystem::temp_directory_path() / "easel-too-large.svg";
    std::ofstream(path) << "<svg/>";
    std::filesystem::resize_file(path, std::uintmax_t{20} << 30);
    const auto result = easel::svg::readFile(path);
    EXPECT_TRUE(std::holds_alternative<Failure>(result));
    std::filesystem::remove(path);
}

TEST(BadInput, AMillionNestedElementsAreRefused) {
    const std::size_t depth = 1'000'000;
    EXPECT_EQ(failureOf(svgFile(repeated("<g>", depth) + repeated("</g>", depth))).fault, Fault::TooDeep);
}

TEST(BadInput, CircularReferencesAreRefused) {
    for (const char* content :
         {"<g id='a'><use href='#a'/></g>", "<g id='a'><use href='#b'/></g><g id='b'><use href='#a'/></g>",
          "<linearGradient id='a' href='#b'/><linearGradient id='b' href='#a'/><rect width='1' height='1' "
          "fill='url(#a)'/>",
          "<clipPath id='c'><rect width='1' height='1' clip-path='url(#c)'/></clipPath>"
          "<rect width='1' height='1' clip-path='url(#c)'/>"})
        EXPECT_EQ(failureOf(svgFile(content)).fault, Fault::Circular) << content;
}

TEST(BadInput, NumbersOutOfRangeAreRefused) {
    for (const char* content :
         {"<rect x='1e999' width='1' height='1'/>", "<path d='M0 0L1e300 1e300'/>",
          "<g transform='scale(1e200)'><rect transform='scale(1e200)' width='1' height='1'/></g>"})
        EXPECT_EQ(failureOf(svgFile(content)).fault, Fault::OutOfRange) << content;
}

TEST(BadInput, NumbersTooSmallForADoubleAreZero) {
    EXPECT_EQ(readOk(svgFile("<rect x='1e-999' width='5' height='5'/>")).object(0)->bounds.left, 0);
}

TEST(BadInput, ExponentialUseIsRefusedInBoundedTime) {
    std::string content = "<rect id='u0' width='1' height='1'/>";
    for (int i = 1; i < 40; ++i)
        content += "<g id='u" + std::to_string(i) + "'>" +
                   repeated("<use href='#u" + std::to_string(i - 1) + "'/>", 10) + "</g>";
    EXPECT_EQ(failureOf(svgFile(content)).fault, Fault::TooComplex);
}

TEST(BadInput, EntityBombsAreRefused) {
    std::string types = "<!ENTITY e0 'fill:red;'>";
    for (int i = 1; i < 12; ++i)
        types +=
            "<!ENTITY e" + std::to_string(i) + " '" + repeated("&e" + std::to_string(i - 1) + ";", 10) + "'>";
    EXPECT_EQ(failureOf("<!DOCTYPE svg [" + types + "]><svg style='&e11;'/>").fault, Fault::TooComplex);
    EXPECT_EQ(failureOf("<!DOCTYPE svg [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><svg style='&a;'/>").fault,
              Fault::Circular);
}

TEST(BadInput, ExternalReferencesAreNeverFetchedAndNamedOnce) {
    const auto drawing =
        readOk(svgFile("<use href='file:///etc/passwd#a'/><use href='http://example.com/#b'/>"));
    EXPECT_EQ(drawing.size(), 0U);
    EXPECT_EQ(drawing.notes().size(), 1U);
}

} // namespace
