#include "easel/recovery/FileUse.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <optional>
#include <sys/wait.h>
#include <unistd.h>

using easel::recovery::FileUse;
namespace fs = std::filesystem;

namespace {

FileUse used(const fs::path& folder, const fs::path& file) {
    auto use = FileUse::begin(folder, file);
    if (!use)
        throw std::runtime_error(use.error().message());
    return *std::move(use);
}

TEST(FileUse, TwoOfOneFileKnowOfEachOther) {
    const tests::TemporaryFolder state;
    const FileUse first = used(state / "open", "/a/b.svg");
    EXPECT_FALSE(first.isShared());
    {
        const FileUse second = used(state / "open", "/a/b.svg");
        EXPECT_TRUE(first.isShared());
        EXPECT_TRUE(second.isShared());
    }
    EXPECT_FALSE(first.isShared());
}

TEST(FileUse, OtherFilesAreNothingToIt) {
    const tests::TemporaryFolder state;
    const FileUse first = used(state / "open", "/a/b.svg");
    const FileUse second = used(state / "open", "/a/c.svg");
    EXPECT_FALSE(first.isShared());
}

TEST(FileUse, ALinkIsTheFileItLeadsTo) {
    const tests::TemporaryFolder state;
    tests::writeContent(state / "file.svg", "");
    fs::create_symlink("file.svg", state / "link.svg");
    const FileUse first = used(state / "open", state / "file.svg");
    const FileUse second = used(state / "open", state / "link.svg");
    EXPECT_TRUE(first.isShared());
}

TEST(FileUse, AKilledProgramUsesNothing) {
    const tests::TemporaryFolder state;
    const FileUse mine = used(state / "open", "/a/b.svg");
    const pid_t child = ::fork();
    if (child == 0) {
        const auto use = FileUse::begin(state / "open", "/a/b.svg");
        ::raise(use ? SIGKILL : SIGTERM);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_EQ(WTERMSIG(status), SIGKILL);
    EXPECT_FALSE(mine.isShared());
    EXPECT_EQ(tests::entriesIn(state / "open"), 1U) << "what it left is cleared away";
}

} // namespace
