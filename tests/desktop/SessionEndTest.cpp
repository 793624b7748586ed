// What becomes of unsaved changes when the desktop ends the session.
#include "tests/desktop/RecoveryTest.h"

#include <optional>

namespace desktop {
namespace {

using testing::HasSubstr;

class SessionEndTest : public RecoveryTest {
  protected:
    // Starts a session, in it the program with an unsaved change.
    void changeInSession() {
        manager_.emplace(std::vector<std::string>{SESSION_MANAGER}, std::map<std::string, std::string>(),
                         log());
        waitUntilManagerSays("listens ");
        const std::string said = contents(log());
        const std::size_t from = said.find(' ') + 1;
        startWithDrawing({{"SESSION_MANAGER", said.substr(from, said.find('\n') - from)}});
        waitUntilManagerSays("registered");
        change();
    }

    void endSessionWithQuestions() const { manager_->signal(SIGUSR1); }
    void endSessionAtOnce() const { manager_->signal(SIGUSR2); }

    void waitUntilManagerSays(const std::string& text) const {
        EXPECT_TRUE(eventually([&] { return contents(log()).find(text) != std::string::npos; })) << text;
    }

  private:
    std::string log() const { return folder() / "session.log"; }

    std::optional<Process> manager_;
};

TEST_F(SessionEndTest, WithoutTimeForQuestionsAllIsKeptForTheNextStart) {
    changeInSession();
    const std::string before = contents(drawing());
    endSessionAtOnce();
    EXPECT_EQ(program().wait(10s), 0);
    ASSERT_EQ(kept().size(), 1U);
    EXPECT_THAT(kept()[0], HasSubstr(kChanged));
    EXPECT_EQ(contents(drawing()), before);
    start({});
    waitForDialog(kOffer);
}

TEST_F(SessionEndTest, WhileTheUserIsAskedTheChangesAreSafeAndCancelGoesOn) {
    changeInSession();
    endSessionWithQuestions();
    waitForDialog("Easel");
    ASSERT_EQ(kept().size(), 1U);
    EXPECT_THAT(kept()[0], HasSubstr(kChanged));
    screen().key("Escape");
    waitUntilManagerSays("cancels");
    waitForWindow("drawing.svg*");
    EXPECT_THAT(saved(), HasSubstr(kChanged));
    EXPECT_EQ(quit(), 0);
}

TEST_F(SessionEndTest, WhatIsDiscardedIsNotAskedAboutAgain) {
    changeInSession();
    const std::string before = contents(drawing());
    endSessionWithQuestions();
    waitForDialog("Easel");
    screen().key("Tab"); // Discard
    screen().key("space");
    EXPECT_EQ(program().wait(10s), 0);
    waitUntilManagerSays("is ready");
    EXPECT_TRUE(nothingIsKept());
    EXPECT_EQ(contents(drawing()), before);
}

// The editor waits in the middle of a call of the plug-in, which has to return before the program can end.
TEST_F(SessionEndTest, AnOpenEditorIsGivenUpAtTheEnd) {
    changeInSession();
    openEditor(160, 290);
    endSessionAtOnce();
    EXPECT_EQ(program().wait(10s), 0);
    ASSERT_EQ(kept().size(), 1U);
    EXPECT_THAT(kept()[0], HasSubstr(kChanged));
}

} // namespace
} // namespace desktop
