#include "easel/files/InPlace.h"
#include "easel/files/AtomicFile.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace easel::files;
using tests::contentOf;
using tests::writeContent;
namespace fs = std::filesystem;

namespace {

ino_t identityOf(const fs::path& file) {
    struct stat status {};
    ::stat(file.c_str(), &status);
    return status.st_ino;
}

TEST(InPlace, TheFileStaysTheSameFileWithOtherContent) {
    const tests::TemporaryFolder folder;
    writeContent(folder / "file", "a long old content");
    const ino_t before = identityOf(folder / "file");
    EXPECT_TRUE(overwriteFile(folder / "file", "new"));
    EXPECT_EQ(contentOf(folder / "file"), "new");
    EXPECT_EQ(identityOf(folder / "file"), before);
    EXPECT_EQ(tests::entriesIn(folder.path()), 1U);
}

TEST(InPlace, NoFileIsMade) {
    const tests::TemporaryFolder folder;
    const auto error = tests::errorOf(overwriteFile(folder / "file", "new"));
    EXPECT_EQ(error.file, folder / "file");
    EXPECT_EQ(tests::entriesIn(folder.path()), 0U);
}

TEST(InPlace, WhatDoesNotFitLeavesTheOldContent) {
    const tests::TemporaryFolder folder;
    writeContent(folder / "file", "old");
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{8, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    const auto error = tests::errorOf(overwriteFile(folder / "file", "longer than eight"));
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(error.reason, "File too large");
    EXPECT_EQ(contentOf(folder / "file"), "old");
}

// As somebody who is not the superuser, for whom every folder takes files.
TEST(InPlace, AFolderThatTakesNoFilesIsToldFromOtherErrors) {
    if (::getuid() != 0)
        GTEST_SKIP() << "only the superuser can become somebody else";
    const tests::TemporaryFolder folder;
    writeContent(folder / "file", "old");
    ::chmod((folder / "file").c_str(), 0666);
    ::chmod(folder.path().c_str(), 0755);
    const pid_t child = ::fork();
    if (child == 0) {
        constexpr uid_t kNobody = 65534;
        if (::setgid(kNobody) != 0 || ::setuid(kNobody) != 0)
            ::_exit(2);
        const auto replaced = replaceFile(folder / "file", "new");
        const bool told = !replaced && isForbiddenFolder(replaced.error());
        ::_exit(told && overwriteFile(folder / "file", "new") ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(contentOf(folder / "file"), "new");
    const auto other = tests::errorOf(replaceFile(folder / "none/file", "new"));
    EXPECT_FALSE(isForbiddenFolder(other));
}

} // namespace
