// Reading a number that a user typed.
#include "Gradient/model/DecimalNumber.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <random>
#include <string>

namespace {

// Makes German, which writes a decimal comma, the language of the program. It is compiled into a folder of
// the test's own, since a machine need not have it.
bool SpeakGerman() {
    tests::TemporaryFolder const folder;
    std::string const command = "localedef -i de_DE -f UTF-8 " + (folder.path() / "de_DE.UTF-8").string();
    if (std::system(command.c_str()) != 0 || setenv("LOCPATH", folder.path().c_str(), 1) != 0) {
        return false;
    }
    return std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
}

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Pieces of numbers in any order, so that many texts are numbers or nearly so.
std::string RandomText(std::mt19937& random) {
    static constexpr const char* kPieces[] = {"0",
                                              "1",
                                              "9",
                                              "5",
                                              "12",
                                              "00",
                                              "000000000000",
                                              ".",
                                              "e",
                                              "E",
                                              "-",
                                              "+",
                                              "x",
                                              "0x",
                                              "0X",
                                              "p",
                                              "P",
                                              "a",
                                              "F",
                                              " ",
                                              "\t",
                                              "inf",
                                              "INF",
                                              "inity",
                                              "nan",
                                              "nan(12)",
                                              "e400",
                                              "e-400",
                                              "e308",
                                              "e-308",
                                              "e-324",
                                              "p1024",
                                              "p-1074",
                                              "p-1075",
                                              "%",
                                              ",",
                                              "8",
                                              "ffffffffffffff",
                                              "1.7976931348623157",
                                              "2.2250738585072011",
                                              "_",
                                              "\n"};
    std::string text;
    const auto count = 1 + random() % 7;
    for (unsigned i = 0; i < count; ++i) {
        text += kPieces[random() % std::size(kPieces)];
    }
    return text;
}

} // namespace

TEST(DecimalNumber, ReadsTheNumberThatATextBeginsWith) {
    EXPECT_EQ(ReadDecimal("50.00"), 50.0);
    EXPECT_EQ(ReadDecimal("12.5%"), 12.5);
    EXPECT_EQ(ReadDecimal("  -5"), -5.0);
    EXPECT_EQ(ReadDecimal("+.5"), 0.5);
    EXPECT_EQ(ReadDecimal("1e2"), 100.0);
    EXPECT_EQ(ReadDecimal("1e"), 1.0);
    EXPECT_EQ(ReadDecimal("0x1.8p1"), 3.0);
    EXPECT_EQ(ReadDecimal("0xg"), 0.0);
}

TEST(DecimalNumber, TextWithoutANumberIsZero) {
    for (const char* const text : {"", "abc", "%", "-", "+-5", ".", "half 3", "in", "e5", "x10"}) {
        EXPECT_EQ(ReadDecimal(text), 0.0) << text;
    }
}

TEST(DecimalNumber, InfinityIsANumberAndNotANumberIsNone) {
    EXPECT_EQ(ReadDecimal("inf"), kInfinity);
    EXPECT_EQ(ReadDecimal(" -Infinity"), -kInfinity);
    for (const char* const text : {"nan", "-NaN", "nan(12)"}) {
        EXPECT_EQ(ReadDecimal(text), 0.0) << text;
    }
}

TEST(DecimalNumber, BeyondWhatADoubleHoldsIsInfiniteAndBelowItZero) {
    EXPECT_EQ(ReadDecimal("1e400"), kInfinity);
    EXPECT_EQ(ReadDecimal("-0x1p1024"), -kInfinity);
    EXPECT_EQ(ReadDecimal("1e-400"), 0.0);
    EXPECT_EQ(ReadDecimal("1e99999999999999999999"), kInfinity);
    EXPECT_EQ(ReadDecimal("1e-99999999999999999999"), 0.0);
    // The digits decide together with the exponent.
    EXPECT_EQ(ReadDecimal(("1" + std::string(400, '0') + "e-50").c_str()), kInfinity);
    EXPECT_EQ(ReadDecimal(("." + std::string(400, '0') + "1e50").c_str()), 0.0);
    EXPECT_EQ(ReadDecimal((std::string(240, '0') + "1e-400").c_str()), 0.0);
    EXPECT_EQ(ReadDecimal(("0x1" + std::string(300, '0') + "p-100").c_str()), kInfinity);
    // A decimal digit weighs one power of the exponent's base, a hexadecimal one four.
    EXPECT_EQ(ReadDecimal(("1" + std::string(400, '0') + "e-750").c_str()), 0.0);
    EXPECT_EQ(ReadDecimal(("0x1" + std::string(1500, '0') + "p-4600").c_str()), kInfinity);
    EXPECT_EQ(ReadDecimal(("0x1" + std::string(1500, '0') + "p-7200").c_str()), 0.0);
}

TEST(DecimalNumber, ReadsEveryTextAsTheCLibraryDoesInItsOwnLocale) {
    ASSERT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
    std::mt19937 random(11);
    for (int round = 0; round < 500000; ++round) {
        std::string const text = RandomText(random);
        const double expected = std::strtod(text.c_str(), nullptr);
        const double read = ReadDecimal(text.c_str());
        if (std::isnan(expected)) {
            ASSERT_EQ(read, 0.0) << text;
        } else if (expected == 0.0 || std::abs(expected) >= std::numeric_limits<double>::min()) {
            ASSERT_EQ(std::bit_cast<std::uint64_t>(read), std::bit_cast<std::uint64_t>(expected)) << text;
        } else {
            // Some C libraries round the last bit of the very smallest numbers wrongly.
            ASSERT_NEAR(read, expected, std::numeric_limits<double>::denorm_min()) << text;
        }
    }
}

TEST(DecimalNumber, ReadsAPointWhateverTheLanguageOfTheDesktop) {
    if (!SpeakGerman()) {
        GTEST_SKIP() << "this machine cannot make a language with a decimal comma";
    }
    ASSERT_EQ(std::atof("12.5"), 12.0) << "the language writes a comma";
    const double read = ReadDecimal("12.5");
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(read, 12.5);
}
