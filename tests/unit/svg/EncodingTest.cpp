// The encodings of files, with the bytes that their standards give for a few characters.
#include "easel/svg/text/Encoding.h"

#include <gtest/gtest.h>

#include <string>

using namespace easel::svg;
using namespace std::string_literals;

namespace {

// An a, a euro sign and a smiling face (U+1F600), which takes two units of UTF-16.
const std::string kText = "a\u20ac\U0001F600";
const std::string kBig = "\x00\x61\x20\xAC\xD8\x3D\xDE\x00"s;
const std::string kLittle = "\x61\x00\xAC\x20\x3D\xD8\x00\xDE"s;

TEST(Encoding, IsToldByTheFirstBytesElseByTheDeclaration) {
    EXPECT_EQ(detectEncoding("\xEF\xBB\xBF<svg/>"), Encoding::Utf8);
    EXPECT_EQ(detectEncoding("\xFF\xFE<\0s\0"s), Encoding::Utf16Little);
    EXPECT_EQ(detectEncoding("<\0s\0"s), Encoding::Utf16Little);
    EXPECT_EQ(detectEncoding("\xFE\xFF\0<\0s"s), Encoding::Utf16Big);
    EXPECT_EQ(detectEncoding("\0<\0s"s), Encoding::Utf16Big);
    for (const char* utf8 :
         {"<svg/>", "<?xml version='1.0'?>", "<?xml encoding='UTF-8'?>", "<?xml encoding = \"utf8\" ?>",
          "<?xml encoding?>", "<?xml encoding=latin?>", "<?xml encoding=''?>", "", "<!-- encoding='x' -->"})
        EXPECT_EQ(detectEncoding(utf8), Encoding::Utf8) << utf8;
    for (const char* other :
         {"<?xml encoding='ISO-8859-1'?>", "<?xml version=\"1.0\" encoding= \"windows-1252\"?>"})
        EXPECT_EQ(detectEncoding(other), Encoding::Bytes) << other;
}

TEST(Encoding, Utf16IsReadAndWrittenInBothOrders) {
    EXPECT_EQ(decode(kBig, Encoding::Utf16Big), kText);
    EXPECT_EQ(decode(kLittle, Encoding::Utf16Little), kText);
    EXPECT_EQ(encode(kText, Encoding::Utf16Big), kBig);
    EXPECT_EQ(encode(kText, Encoding::Utf16Little), kLittle);
}

TEST(Encoding, HalvesOfACharacterAreReplacedOneForEachUnit) {
    EXPECT_EQ(decode("\xD8\x3D\x00\x61"s, Encoding::Utf16Big), "\uFFFDa");
    EXPECT_EQ(decode("\xDE\x00\x00\x61"s, Encoding::Utf16Big), "\uFFFDa");
    EXPECT_EQ(decode("\xD8\x3D\xE0\x00"s, Encoding::Utf16Big), "\uFFFD\uE000");
    EXPECT_EQ(decode("\x00\x61\xD8\x3D"s, Encoding::Utf16Big), "a\uFFFD");
    EXPECT_EQ(decode("\x00\x61\x00"s, Encoding::Utf16Big), "a") << "an odd byte at the end is no character";
}

TEST(Encoding, EachByteOfOtherEncodingsIsACharacter) {
    EXPECT_EQ(decode("d\xE9j\xE0", Encoding::Bytes), "d\u00e9j\u00e0");
    EXPECT_EQ(encode("d\u00e9j\u00e0", Encoding::Bytes), "d\xE9j\xE0");
    EXPECT_EQ(encode("5 \u20ac", Encoding::Bytes), "5 &#8364;");
}

TEST(Encoding, Utf8StaysAsItIs) {
    EXPECT_EQ(decode("\xFF a", Encoding::Utf8), "\xFF a");
    EXPECT_EQ(encode(kText, Encoding::Utf8), kText);
}

TEST(Encoding, PlacesInTheTextAreFoundInTheBytes) {
    // One, three and four bytes of UTF-8.
    const std::vector<std::size_t> places{0, 1, 4, 8};
    EXPECT_EQ(byteOffsets(kText, Encoding::Utf16Big, places), (std::vector<std::size_t>{0, 2, 4, 8}));
    EXPECT_EQ(byteOffsets("d\u00e9j", Encoding::Bytes, {0, 1, 3}), (std::vector<std::size_t>{0, 1, 2}));
    EXPECT_EQ(byteOffsets(kText, Encoding::Utf8, places), places);
}

} // namespace
