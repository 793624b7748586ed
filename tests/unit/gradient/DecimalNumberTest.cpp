// Reading a number that a user typed.
#include "Gradient/model/DecimalNumber.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <string>

namespace {

/// Makes German, which writes a decimal comma, the language of the program. It is compiled into a folder of
/// the test's own, since a machine need not have it.
bool SpeakGerman() {
    tests::TemporaryFolder const folder;
    std::string const command = "localedef -i de_DE -f UTF-8 " + (folder.path() / "de_DE.UTF-8").string();
    if (std::system(command.c_str()) != 0 || setenv("LOCPATH", folder.path().c_str(), 1) != 0) {
        return false;
    }
    return std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
}

} // namespace

TEST(DecimalNumber, ReadsTheNumberThatATextBeginsWith) {
    EXPECT_EQ(ReadDecimal("50.00"), 50.0);
    EXPECT_EQ(ReadDecimal("12.5%"), 12.5);
    EXPECT_EQ(ReadDecimal("  -5"), -5.0);
    EXPECT_EQ(ReadDecimal("+.5"), 0.5);
    EXPECT_EQ(ReadDecimal("1e2"), 100.0);
}

TEST(DecimalNumber, TextWithoutANumberIsZero) {
    for (char const* const text : {"", "abc", "%", "-", ".", "nan", "-inf", "Infinity", "half 3"}) {
        EXPECT_EQ(ReadDecimal(text), 0.0) << text;
    }
}

TEST(DecimalNumber, ReadsAPointWhateverTheLanguageOfTheDesktop) {
    if (!SpeakGerman()) {
        GTEST_SKIP() << "this machine cannot make a language with a decimal comma";
    }
    ASSERT_EQ(std::atof("12.5"), 12.0) << "the language writes a comma";
    double const read = ReadDecimal("12.5");
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(read, 12.5);
}
