// Journals and marks on files in use while each call of the system fails in turn.
#include "easel/recovery/FileUse.h"
#include "easel/recovery/Journal.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/FailingCalls.h"
#include "tests/support/TemporaryFolder.h"

#include <cerrno>
#include <gtest/gtest.h>

using namespace easel::recovery;
using tests::contentOf;
using tests::FailingCalls;
namespace fs = std::filesystem;

namespace {

constexpr int kMoreThanAllCalls = 300;

// Whether `action` came to the call with this number, which failed.
template <class Action> bool withCallFailing(int number, Action action) {
    const FailingCalls failing(number, EIO);
    action();
    return FailingCalls::cameToNumber();
}

TEST(FailingJournal, WhatWasKeptBeforeIsKeptWhateverFails) {
    int number = 1;
    for (bool came = true; came && number < kMoreThanAllCalls; ++number) {
        SCOPED_TRACE(number);
        const tests::TemporaryFolder state;
        {
            const auto journal = Journal::begin(state.path(), "/a.svg");
            ASSERT_TRUE(journal);
            ASSERT_TRUE(journal->keep("before"));
            bool kept = false;
            came = withCallFailing(number, [&] { kept = journal->keep("after").has_value(); });
            const std::string content = contentOf(journal->drawing());
            EXPECT_TRUE(content == "after" || (content == "before" && !kept)) << content;
        }
        EXPECT_EQ(Journal::abandonedIn(state.path()).size(), 1U);
    }
    EXPECT_GT(number, 5);
    EXPECT_LT(number, kMoreThanAllCalls);
}

TEST(FailingJournal, OneThatCannotBeBegunLeavesNothingAndSaysWhy) {
    int failures = 0;
    int number = 1;
    for (bool came = true; came && number < kMoreThanAllCalls; ++number) {
        SCOPED_TRACE(number);
        const tests::TemporaryFolder state;
        const fs::path folder = state / "recovery";
        came = withCallFailing(number, [&] {
            const auto journal = Journal::begin(folder, "/a.svg");
            if (!journal) {
                ++failures;
                EXPECT_EQ(journal.error().code, std::errc::io_error);
            }
        });
        Journal::abandonedIn(folder);
        if (fs::exists(folder)) {
            EXPECT_EQ(tests::entriesIn(folder), 0U);
        }
    }
    EXPECT_GT(failures, 1);
    EXPECT_LT(number, kMoreThanAllCalls);
}

TEST(FailingJournal, WithoutLocksThereIsNone) {
    const tests::TemporaryFolder state;
    const FailingCalls failing("flock", ENOLCK);
    EXPECT_EQ(tests::errorOf(Journal::begin(state.path(), {})).code, std::errc::no_lock_available);
    EXPECT_EQ(tests::entriesIn(state.path()), 0U);
    EXPECT_FALSE(FileUse::begin(state.path(), "/a.svg"));
}

TEST(FailingJournal, OnesThatCannotBeOpenedOrLockedAreLeftAlone) {
    const tests::TemporaryFolder state;
    {
        const auto journal = Journal::begin(state.path(), "/a.svg");
        ASSERT_TRUE(journal && journal->keep("drawing"));
    }
    for (const char* call : {"open", "flock"}) {
        const FailingCalls failing(call, EACCES);
        EXPECT_TRUE(Journal::abandonedIn(state.path()).empty()) << call;
    }
    EXPECT_EQ(Journal::abandonedIn(state.path()).size(), 1U);
    EXPECT_TRUE(Journal::abandonedIn(state / "none").empty());
}

TEST(FailingJournal, AMarkThatCannotBeLookedAtIsNobodys) {
    const tests::TemporaryFolder state;
    const auto mine = FileUse::begin(state.path(), "/a.svg");
    const auto theirs = FileUse::begin(state.path(), "/a.svg");
    ASSERT_TRUE(mine && theirs);
    EXPECT_TRUE(mine->isShared());
    const FailingCalls failing("open", EACCES);
    EXPECT_FALSE(mine->isShared());
    EXPECT_FALSE(FileUse::begin(state.path(), "/a.svg"));
}

TEST(FailingJournal, OneThatWasMovedFromOrRemovedHasNothingToRemove) {
    const tests::TemporaryFolder state;
    auto journal = Journal::begin(state.path(), "/a.svg");
    ASSERT_TRUE(journal && journal->keep("drawing"));
    journal->remove();
    tests::writeContent(journal->drawing(), "of somebody else by now");
    journal->remove();
    EXPECT_EQ(contentOf(journal->drawing()), "of somebody else by now");
}

} // namespace
