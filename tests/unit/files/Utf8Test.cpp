// Single characters of UTF-8 text.
#include "easel/files/Utf8.h"

#include <gtest/gtest.h>

namespace easel::files {
namespace {

TEST(Utf8, WritesCharactersOfEveryLength) {
    EXPECT_EQ(utf8Of(U'A'), "A");
    EXPECT_EQ(utf8Of(U'\u00e9'), "\xc3\xa9");
    EXPECT_EQ(utf8Of(U'\u20ac'), "\xe2\x82\xac");
    EXPECT_EQ(utf8Of(U'\U0001f600'), "\xf0\x9f\x98\x80");
}

TEST(Utf8, ReadsBackEveryCodePointThatItWrites) {
    for (char32_t each = 0; each <= 0x10ffff; each += each < 0x3000 ? 1 : 37) {
        if (each >= 0xd800 && each <= 0xdfff)
            continue;
        EXPECT_EQ(codePointsOf(utf8Of(each)), std::vector<char32_t>{each});
    }
}

TEST(Utf8, ReplacesWhatIsNoCharacter) {
    EXPECT_EQ(utf8Of(0xd800), "\xef\xbf\xbd");
    EXPECT_EQ(utf8Of(0x110000), "\xef\xbf\xbd");
    const std::vector<char32_t> expected{U'a', 0xfffd, U'b'};
    EXPECT_EQ(codePointsOf("a\xff"
                           "b"),
              expected);
    EXPECT_EQ(codePointsOf("a\xc3"
                           "b"),
              expected);
    EXPECT_EQ(codePointsOf("\xc0\xaf"), (std::vector<char32_t>{0xfffd, 0xfffd})) << "longer than need be";
    EXPECT_EQ(codePointsOf("\xed\xa0\x80"), (std::vector<char32_t>{0xfffd, 0xfffd, 0xfffd})) << "a surrogate";
    EXPECT_EQ(codePointsOf("\xe2\x82"), (std::vector<char32_t>{0xfffd, 0xfffd})) << "cut off";
}

} // namespace
} // namespace easel::files
