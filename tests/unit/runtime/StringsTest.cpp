// The length-prefixed strings of the interface.
#include "host/Strings.h"
#include "easel/runtime/CFString.h"

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
    text.Delete(0, 1);
    EXPECT_EQ(text.Text(), "ae") << "counted from 1";
}

TEST(Strings, TakeOverATextAndKeepTheirCapacity) {
    CStr32 shorter;
    CStr32& same = shorter;
    shorter.Assign("Sunset");
    shorter = same;
    EXPECT_EQ(shorter.Text(), "Sunset");
    CStr32 other;
    other = shorter;
    EXPECT_EQ(other.Text(), "Sunset");
    EXPECT_EQ(other.Capacity(), 31u);
    const char* const none = nullptr;
    EXPECT_EQ(CStr255(none).Length(), 0u);
}

TEST(Strings, OfANumberHaveAsManyDecimalsAsAreAskedFor) {
    const auto said = [](double value, short precision) {
        CStr255 text;
        DoubleToStr(value, precision, text);
        return text.Text();
    };
    EXPECT_EQ(said(50, 2), "50.00");
    EXPECT_EQ(said(-0.625, 1), "-0.6");
    EXPECT_EQ(said(12.75, 0), "13");
    EXPECT_EQ(said(12.75, -3), "13") << "there are no fewer than none";
    EXPECT_EQ(said(0.5, 100), "0.5" + std::string(99, '0'));
    EXPECT_EQ(said(0.5, 300), said(0.5, 100));
}

TEST(StringObjects, ComeOfKnownEncodingsAndOfBytesOnly) {
    const std::array<unsigned char, 3> bytes{2, 'a', 'b'};
    const auto other = static_cast<CFStringEncoding>(0x0600);
    EXPECT_EQ(CFStringCreateWithPascalString(kCFAllocatorDefault, bytes.data(), other), nullptr);
    EXPECT_EQ(CFStringCreateWithPascalString(kCFAllocatorDefault, nullptr, kCFStringEncodingMacRoman),
              nullptr);
    EXPECT_EQ(CFRetain(nullptr), nullptr);
    CFRelease(nullptr);
}

TEST(StringObjects, LastAsLongAsAReferenceIsLeft) {
    const CFStringRef text = CStr255("Sunset").CreateCopy();
    EXPECT_EQ(CFRetain(text), text);
    CFRelease(text);
    EXPECT_EQ(easel::runtime::utf8Of(text), "Sunset");
    CFRelease(text);
}

} // namespace
