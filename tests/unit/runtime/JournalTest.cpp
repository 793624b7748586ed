// What the journal keeps.
#include "easel/runtime/Journal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using easel::runtime::hostJournal;
using easel::runtime::journal;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Journal, WritesNumbersTruthValuesAndTextsInTheOrderOfTheCall) {
    hostJournal().switchOn();
    journal("Plain");
    journal("DWindow::SetUndo", 3L);
    journal("Mixed", short{-5}, true, 0.07, std::string("a \"b\" \\"), 4000000000u, false);
    hostJournal().switchOff();
    EXPECT_THAT(hostJournal().take(),
                ElementsAre("Plain()", "DWindow::SetUndo(3)",
                            R"(Mixed(-5, true, 0.07, "a \"b\" \\", 4000000000, false))"));
}

TEST(Journal, IsEmptiedWhenItIsTakenAndKeepsNothingWhileOff) {
    hostJournal().switchOn();
    journal("One");
    hostJournal().switchOff();
    journal("Two");
    EXPECT_THAT(hostJournal().take(), ElementsAre("One()"));
    EXPECT_THAT(hostJournal().take(), IsEmpty());
}

} // namespace
