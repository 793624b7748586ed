// How the text of a scenario is cut into lines, words and steps.
#include "easel/play/Script.h"
#include "easel/play/Arguments.h"
#include "easel/play/PlayError.h"
#include "easel/play/Steps.h"
#include "tests/support/ErrorOf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace easel::play;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(SplitWords, SeparatesByAnyBlanks) {
    EXPECT_THAT(splitWords(" a\tbc   d\r"), ElementsAre("a", "bc", "d"));
    EXPECT_THAT(splitWords(""), IsEmpty());
    EXPECT_THAT(splitWords(" \t"), IsEmpty());
}

TEST(SplitWords, KeepsBlanksAndEscapesInQuotes) {
    EXPECT_THAT(splitWords(R"(type "a b" "" "\"\\" "#")"), ElementsAre("type", "a b", "", "\"\\", "#"));
}

TEST(SplitWords, EndsAtAComment) {
    EXPECT_THAT(splitWords("a # b"), ElementsAre("a"));
    EXPECT_THAT(splitWords("a#b"), ElementsAre("a"));
    EXPECT_THAT(splitWords("#"), IsEmpty());
}

TEST(SplitWords, RefusesOpenQuotesOtherEscapesAndOtherEncodings) {
    for (const std::string line :
         {"\"", "a \"b", "\"\\", "\"\\n\"", "\xff", "a \xc3", "\xed\xa0\x80", "\xc0\xaf"})
        EXPECT_THROW(splitWords(line), PlayError) << line;
}

TEST(Script, CountsEveryLineAndSkipsThoseWithoutWords) {
    Script script("one\n\n# two\r\nthree 3\nfour");
    ASSERT_TRUE(script.next());
    EXPECT_EQ(script.lineNumber(), 1u);
    ASSERT_TRUE(script.next());
    EXPECT_EQ(script.lineNumber(), 4u);
    EXPECT_THAT(script.words(), ElementsAre("three", "3"));
    ASSERT_TRUE(script.next());
    EXPECT_EQ(script.lineNumber(), 5u);
    EXPECT_FALSE(script.next());
}

TEST(Script, ReachesABadLineOnlyAfterTheLinesBeforeIt) {
    Script script("good\n\"bad\n");
    EXPECT_TRUE(script.next());
    EXPECT_THROW(script.next(), PlayError);
    EXPECT_EQ(script.lineNumber(), 2u);
}

std::vector<std::vector<std::string>> stepWords(const std::string& script) {
    Steps steps(script);
    std::vector<std::vector<std::string>> words;
    while (const auto step = steps.next())
        words.push_back(step->words);
    return words;
}

TEST(Steps, TakeClicksAndDragsApart) {
    using Words = std::vector<std::string>;
    EXPECT_THAT(stepWords("click 1 2"), ElementsAre(Words{"press", "1", "2"}, Words{"release"}));
    EXPECT_THAT(stepWords("click item 4 1 2"),
                ElementsAre(Words{"press", "item", "4", "1", "2"}, Words{"release"}));
    EXPECT_THAT(stepWords("drag item 4 1 2 3 4 5 6"),
                ElementsAre(Words{"press", "item", "4", "1", "2"}, Words{"move", "item", "4", "3", "4"},
                            Words{"move", "item", "4", "5", "6"}, Words{"release"}));
}

TEST(Steps, EndWithTheFirstFailure) {
    Steps steps("one\ntwo\n");
    steps.next();
    steps.fail(1, "first");
    steps.fail(2, "second");
    EXPECT_FALSE(steps.next());
    EXPECT_EQ(tests::errorOf(steps.outcome()).line, 1u);
    EXPECT_EQ(tests::errorOf(steps.outcome()).reason, "first");
}

TEST(Steps, FailAtALineThatCannotBeRead) {
    Steps steps("one\ndrag 1\n");
    EXPECT_TRUE(steps.next());
    EXPECT_FALSE(steps.next());
    EXPECT_EQ(tests::errorOf(steps.outcome()).line, 2u);
}

TEST(Arguments, ReadNumbersWhole) {
    EXPECT_EQ(parseNumber("-1.5e3", "x"), -1500);
    EXPECT_EQ(parseNumber("inf", "x"), std::numeric_limits<double>::infinity());
    for (const std::string word : {"", "1x", "x1", "1,5", "0x10", "--1", "1e999"})
        EXPECT_THROW(parseNumber(word, "x"), PlayError) << word;
}

TEST(Arguments, ReadWholeNumbersWithinBounds) {
    EXPECT_EQ(parseInteger("-3", "x", -3, 3), -3);
    for (const std::string word : {"", "4", "1.0", "99999999999999999999", "-4", " 1"})
        EXPECT_THROW(parseInteger(word, "x", -3, 3), PlayError) << word;
}

} // namespace
