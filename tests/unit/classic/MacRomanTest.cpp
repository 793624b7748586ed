// Text between UTF-8 and the encoding of the host.
#include "easel/classic/MacRoman.h"
#include "tests/support/ErrorOf.h"

#include <gtest/gtest.h>
#include <iconv.h>
#include <string>
#include <utility>
#include <vector>

using namespace easel::classic;

namespace {

using Kind = EncodingError::Kind;

std::string iconvFromMacRoman(std::string bytes) {
    const iconv_t converter = iconv_open("UTF-8", "MACINTOSH");
    std::string out(16, '\0');
    char* in = bytes.data();
    char* to = out.data();
    std::size_t inLeft = bytes.size();
    std::size_t outLeft = out.size();
    const auto done = iconv(converter, &in, &inLeft, &to, &outLeft);
    iconv_close(converter);
    out.resize(done == static_cast<std::size_t>(-1) ? 0 : out.size() - outLeft);
    return out;
}

TEST(MacRoman, EveryByteSurvivesTheWayThereAndBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        const auto back = toMacRoman(fromMacRoman(text));
        ASSERT_TRUE(back) << byte;
        EXPECT_EQ(*back, text) << byte;
    }
}

TEST(MacRoman, AgreesWithTheSystemsTable) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        const auto theirs = iconvFromMacRoman(text);
        // Systems differ in three: the euro took the place of the currency sign, the increment sign is a
        // Greek letter to some, and the maker's mark has no character of its own.
        if (byte == 0xC6 || byte == 0xDB || byte == 0xF0)
            continue;
        EXPECT_EQ(fromMacRoman(text), theirs) << byte;
    }
    EXPECT_EQ(fromMacRoman("\xDB"), "€");
    EXPECT_EQ(fromMacRoman("\xC6"), "\u2206") << "the increment sign";
    EXPECT_EQ(fromMacRoman("\xF0"), "\uF8FF") << "the last character for private use";
}

TEST(MacRoman, DecomposedTextBecomesTheComposedCharacter) {
    EXPECT_EQ(toMacRoman("Cafe\u0301").value(), toMacRoman("Caf\u00E9").value());
    EXPECT_EQ(fromMacRoman(toMacRoman("A\u030Angstro\u0308m").value()), "\u00C5ngstr\u00F6m");
    EXPECT_EQ(toMacRoman("\u212B\u2126").value(), toMacRoman("\u00C5\u03A9").value());
}

TEST(MacRoman, EachLetterIsComposedWithEachMarkThatItHas) {
    struct Marked {
        std::string mark;
        std::vector<std::string> letters;
        std::vector<std::string> composed;
    };
    const std::vector<Marked> all{
        {"\u0300",
         {"A", "E", "I", "O", "U", "a", "e", "i", "o", "u"},
         {"À", "È", "Ì", "Ò", "Ù", "à", "è", "ì", "ò", "ù"}},
        {"\u0301",
         {"A", "E", "I", "O", "U", "a", "e", "i", "o", "u"},
         {"Á", "É", "Í", "Ó", "Ú", "á", "é", "í", "ó", "ú"}},
        {"\u0302",
         {"A", "E", "I", "O", "U", "a", "e", "i", "o", "u"},
         {"Â", "Ê", "Î", "Ô", "Û", "â", "ê", "î", "ô", "û"}},
        {"\u0303", {"A", "N", "O", "a", "n", "o"}, {"Ã", "Ñ", "Õ", "ã", "ñ", "õ"}},
        {"\u0308",
         {"A", "E", "I", "O", "U", "Y", "a", "e", "i", "o", "u", "y"},
         {"Ä", "Ë", "Ï", "Ö", "Ü", "Ÿ", "ä", "ë", "ï", "ö", "ü", "ÿ"}},
        {"\u030A", {"A", "a"}, {"Å", "å"}},
        {"\u0327", {"C", "c"}, {"Ç", "ç"}},
        {"\u0338", {"="}, {"≠"}},
    };
    for (const Marked& marked : all)
        for (std::size_t i = 0; i < marked.letters.size(); ++i) {
            const std::string composed = toMacRoman(marked.composed.at(i)).value();
            EXPECT_EQ(composed.size(), 1U);
            EXPECT_EQ(toMacRoman(marked.letters[i] + marked.mark).value_or("none"), composed)
                << marked.composed[i];
        }
}

TEST(MacRoman, CharactersThatUnicodeTakesForTheSameAreTheSame) {
    const std::pair<const char*, const char*> all[] = {{"\u037E", ";"}, {"\u0387", "·"}, {"\u1FEF", "`"},
                                                       {"\u1FFD", "´"}, {"\u2126", "Ω"}, {"\u212A", "K"},
                                                       {"\u212B", "Å"}};
    for (const auto& [one, other] : all)
        EXPECT_EQ(toMacRoman(one).value_or("none"), toMacRoman(other).value()) << other;
}

TEST(MacRoman, ACharacterItLacksIsNamedAndNothingIsMangled) {
    const auto error = tests::errorOf(toMacRoman("Sunset \u65E5"));
    EXPECT_EQ(error.kind, Kind::NotInEncoding);
    EXPECT_EQ(error.culprit, "\u65E5");
    EXPECT_EQ(tests::errorOf(toMacRoman("\xC2\x80")).kind, Kind::NotInEncoding) << "the first beyond ASCII";
    EXPECT_EQ(toMacRoman("\x7F").value(), "\x7F");
    EXPECT_EQ(tests::errorOf(toMacRoman("x\u0301")).kind, Kind::NotInEncoding);
    EXPECT_EQ(tests::errorOf(toMacRoman("\u0301")).kind, Kind::NotInEncoding);
    EXPECT_EQ(tests::errorOf(toMacRoman("\xF0\x9F\x8E\xA8")).culprit, "\xF0\x9F\x8E\xA8");
}

TEST(MacRoman, MalformedUtf8IsRefused) {
    EXPECT_EQ(tests::errorOf(toMacRoman("a\x80")).kind, Kind::NotUtf8);
}

} // namespace
