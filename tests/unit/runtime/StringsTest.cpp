// The length-prefixed strings of the interface.
#include "host/Strings.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace {

TEST(Strings, AreEqualIfTheirTextsAreWhateverTheirCapacity) {
    const CStr255 text("Sunset");
    EXPECT_TRUE(text == CStr255(std::string("Sunset")));
    EXPECT_TRUE(text == CStr32(text));
    EXPECT_FALSE(text == CStr255("Sunse"));
    EXPECT_FALSE(text == CStr255());
    EXPECT_TRUE(CStr255() == CStr32());
}

TEST(Strings, CutWhatIsLongerThanTheirCapacity) {
    const CStr255 most(std::string(300, 'a'));
    EXPECT_EQ(most.Length(), 255u);
    EXPECT_EQ(most.Text(), std::string(255, 'a'));
    const CStr32 cut(most);
    EXPECT_EQ(cut.Capacity(), 31u);
    EXPECT_EQ(cut.Text(), std::string(31, 'a'));
    EXPECT_EQ(cut.c_str(), cut.Text());
}

TEST(Strings, HaveTheirLengthInFrontOfTheirBytes) {
    const std::array<unsigned char, 5> bytes{3, 'a', 'b', 'c', 'd'};
    const CStr255 text = CStr255::FromPascal(bytes.data());
    EXPECT_EQ(text.Text(), "abc");
    EXPECT_EQ(text.PascalBytes()[0], 3);
    EXPECT_EQ(text.PascalBytes()[3], 'c');
}

TEST(Strings, LoseTheBytesThatAreDeletedAndIgnoreThoseBeyondTheEnd) {
    CStr255 text("abcdef");
    text.Delete(2, 3);
    EXPECT_EQ(text.Text(), "aef");
    text.Delete(3, 9);
    EXPECT_EQ(text.Text(), "ae");
    text.Delete(5, 1);
    EXPECT_EQ(text.Text(), "ae");
}

} // namespace
