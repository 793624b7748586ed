// Single characters of UTF-8 text.
#include "easel/text/Utf8.h"

#include <gtest/gtest.h>

namespace easel::text {
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

TEST(Utf8, TellsWhatIsWellFormed) {
    EXPECT_TRUE(isUtf8(""));
    EXPECT_TRUE(isUtf8("a\u00e9\u20ac\U0001f600\ufffd"));
    for (const char* bytes : {"\xFF", "\xC0\x80", "\xC3", "\xE2\x82", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                              "a\x80", "\xC1\xBF", "\xE0\x80\x80", "\xF0\x80\x80\x80", "\xF5\x80\x80\x80"})
        EXPECT_FALSE(isUtf8(bytes)) << bytes;
    EXPECT_FALSE(firstCharacter(std::string_view("\u20ac").substr(0, 2))) << "the rest is beyond its end";
}

} // namespace
} // namespace easel::text
