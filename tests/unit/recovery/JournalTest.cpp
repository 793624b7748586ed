#include "easel/recovery/Journal.h"
#include "easel/files/AtomicFile.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <set>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using easel::recovery::Journal;
using tests::contentOf;
namespace fs = std::filesystem;

namespace {

Journal begun(const fs::path& folder, const fs::path& origin = "/home/user/flower.svg") {
    auto journal = Journal::begin(folder, origin);
    if (!journal)
        throw std::runtime_error(journal.error().message());
    return *std::move(journal);
}

// What a program leaves that ends without a word.
void leave(const fs::path& folder, const fs::path& origin, const std::string& drawing) {
    EXPECT_TRUE(begun(folder, origin).keep(drawing));
}

TEST(Journal, WhatWasLastKeptIsFoundWhenTheProgramIsGone) {
    const tests::TemporaryFolder state;
    const fs::path folder = state / "deep/recovery";
    {
        const Journal journal = begun(folder);
        EXPECT_TRUE(journal.keep("first"));
        EXPECT_TRUE(journal.keep("second"));
    }
    const auto found = Journal::abandonedIn(folder);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].origin(), "/home/user/flower.svg");
    EXPECT_EQ(contentOf(found[0].drawing()), "second");
    EXPECT_TRUE(found[0].drawing().filename().string().starts_with("flower-"));
}

TEST(Journal, AJournalThatAProgramHasIsNobodyElses) {
    const tests::TemporaryFolder state;
    const Journal journal = begun(state.path());
    EXPECT_TRUE(journal.keep("mine"));
    EXPECT_TRUE(Journal::abandonedIn(state.path()).empty());
    EXPECT_EQ(contentOf(journal.drawing()), "mine");
}

TEST(Journal, OneThatWasTakenOverIsNotOfferedToTheNextProgram) {
    const tests::TemporaryFolder state;
    leave(state.path(), "/a.svg", "drawing");
    const auto taken = Journal::abandonedIn(state.path());
    EXPECT_EQ(taken.size(), 1U);
    EXPECT_TRUE(Journal::abandonedIn(state.path()).empty());
}

TEST(Journal, OneThatWasTakenOverAndLeftAgainIsStillThere) {
    const tests::TemporaryFolder state;
    leave(state.path(), "/a.svg", "drawing");
    Journal::abandonedIn(state.path());
    EXPECT_EQ(Journal::abandonedIn(state.path()).size(), 1U);
}

TEST(Journal, AKilledProgramLetsGoOfItsJournal) {
    const tests::TemporaryFolder state;
    const pid_t child = ::fork();
    if (child == 0) {
        const auto journal = Journal::begin(state.path(), "/a.svg");
        if (journal && journal->keep("drawing"))
            ::raise(SIGKILL);
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    const auto found = Journal::abandonedIn(state.path());
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(contentOf(found[0].drawing()), "drawing");
}

TEST(Journal, NothingStaysOfOneThatIsRemoved) {
    const tests::TemporaryFolder state;
    Journal journal = begun(state.path());
    EXPECT_TRUE(journal.keep("drawing"));
    journal.remove();
    EXPECT_EQ(tests::entriesIn(state.path()), 0U);
}

TEST(Journal, OneThatHoldsNoDrawingYetIsClearedAway) {
    const tests::TemporaryFolder state;
    begun(state.path());
    EXPECT_TRUE(Journal::abandonedIn(state.path()).empty());
    EXPECT_EQ(tests::entriesIn(state.path()), 0U);
}

TEST(Journal, TheLatestComesFirst) {
    const tests::TemporaryFolder state;
    for (const char* name : {"/1.svg", "/2.svg", "/3.svg"})
        leave(state.path(), name, name);
    for (auto& journal : Journal::abandonedIn(state.path())) {
        const int age = 10 * (4 - (journal.origin().string()[1] - '0'));
        fs::last_write_time(journal.drawing(), fs::file_time_type::clock::now() - std::chrono::seconds(age));
    }
    const auto found = Journal::abandonedIn(state.path());
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0].origin(), "/3.svg");
    EXPECT_EQ(found[2].origin(), "/1.svg");
}

TEST(Journal, AnyNameOfAFileIsKept) {
    const tests::TemporaryFolder state;
    const std::string odd = "/a\nb/\xff\xfe" + std::string(200, 'x') + ".svg";
    leave(state.path(), odd, "odd");
    leave(state.path(), {}, "none");
    std::set<std::string> origins;
    for (const auto& journal : Journal::abandonedIn(state.path()))
        origins.insert(journal.origin().string());
    EXPECT_EQ(origins, (std::set<std::string>{odd, ""}));
}

TEST(Journal, OthersCannotReadWhatIsKept) {
    const tests::TemporaryFolder state;
    const Journal journal = begun(state / "recovery");
    EXPECT_TRUE(journal.keep("drawing"));
    for (const auto& entry : fs::directory_iterator(state / "recovery"))
        EXPECT_EQ(fs::status(entry).permissions() & static_cast<fs::perms>(077), fs::perms::none) << entry;
    EXPECT_EQ(fs::status(state / "recovery").permissions(), static_cast<fs::perms>(0700));
}

TEST(Journal, WhatCannotBeKeptLeavesWhatWasKeptBefore) {
    const tests::TemporaryFolder state;
    const Journal journal = begun(state.path());
    EXPECT_TRUE(journal.keep("before"));
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{8, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    const auto error = tests::errorOf(journal.keep("a drawing too large for the limit"));
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(error.file, journal.drawing());
    EXPECT_EQ(error.reason, "File too large");
    EXPECT_EQ(contentOf(journal.drawing()), "before");
    EXPECT_EQ(tests::entriesIn(state.path()), 2U) << "a temporary file was left";
}

TEST(Journal, AFolderThatCannotBeMadeIsNamed) {
    const tests::TemporaryFolder state;
    tests::writeContent(state / "file", "");
    const auto journal = Journal::begin(state / "file/recovery", {});
    ASSERT_FALSE(journal);
    EXPECT_EQ(journal.error().file, state / "file/recovery");
}

} // namespace
