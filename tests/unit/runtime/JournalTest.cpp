// What the journal keeps.
#include "easel/runtime/Journal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using easel::runtime::Journal;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(JournalTest, WritesNumbersTruthValuesAndTextsInTheOrderOfTheCall) {
    Journal journal;
    journal.switchOn();
    journal.note("Plain");
    journal.note("DWindow::SetUndo", 3L);
    journal.note("Mixed", short{-5}, true, 0.07, std::string("a \"b\" \\"), 4000000000u, false);
    journal.switchOff();
    EXPECT_THAT(journal.take(), ElementsAre("Plain()", "DWindow::SetUndo(3)",
                                            R"(Mixed(-5, true, 0.07, "a \"b\" \\", 4000000000, false))"));
}

TEST(JournalTest, IsEmptiedWhenItIsTakenAndKeepsNothingWhileOff) {
    Journal journal;
    journal.switchOn();
    journal.note("One");
    journal.switchOff();
    journal.note("Two");
    EXPECT_THAT(journal.take(), ElementsAre("One()"));
    EXPECT_THAT(journal.take(), IsEmpty());
}

} // namespace
