// Saves and moves to the trash while each call of the system fails in turn.
#include "easel/files/AtomicFile.h"
#include "easel/files/Trash.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/FailingCalls.h"
#include "tests/support/TemporaryFolder.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace easel::files;
using tests::contentOf;
using tests::errorOf;
using tests::FailingCalls;
using tests::writeContent;
namespace fs = std::filesystem;

namespace {

constexpr int kMoreThanAllCalls = 500;

// Calls play(folder, number) with 1, 2 and so on, until it says that no call had that number.
template <class Play> void withEachCallFailing(Play play) {
    int number = 1;
    for (bool came = true; came && number < kMoreThanAllCalls; ++number) {
        SCOPED_TRACE("call " + std::to_string(number));
        const tests::TemporaryFolder folder;
        came = play(folder, number);
    }
    EXPECT_GT(number, 4) << "hardly any call was made to fail";
    EXPECT_LT(number, kMoreThanAllCalls);
}

TEST(FailingSave, LeavesTheOldContentOrTheNewOneAndNoTemporaryFile) {
    withEachCallFailing([](const tests::TemporaryFolder& folder, int number) {
        writeContent(folder / "file", "old");
        Result<> saved;
        bool came = false;
        {
            const FailingCalls failing(number, EIO);
            saved = replaceFile(folder / "file", "new");
            came = FailingCalls::cameToNumber();
        }
        const std::string content = contentOf(folder / "file");
        EXPECT_TRUE(content == "new" || (content == "old" && !saved)) << content;
        if (!saved) {
            EXPECT_EQ(saved.error().code, std::errc::io_error);
        }
        EXPECT_EQ(tests::entriesIn(folder.path()), 1U);
        return came;
    });
}

// How many of the calls may fail so, each alone, without the save failing.
int survivedWith(int error) {
    int survived = 0;
    withEachCallFailing([&](const tests::TemporaryFolder& folder, int number) {
        const FailingCalls failing(number, error);
        const bool saved = replaceFile(folder / "file", "new").has_value();
        survived += saved && FailingCalls::cameToNumber() ? 1 : 0;
        return FailingCalls::cameToNumber();
    });
    return survived;
}

TEST(FailingSave, IsTriedAgainWhereOnlyANameWasTakenOrASignalCame) {
    const int survived = survivedWith(EIO);
    EXPECT_EQ(survivedWith(EEXIST), survived + 1) << "the opening";
    EXPECT_EQ(survivedWith(EINTR), survived + 1) << "the writing";
    const tests::TemporaryFolder folder;
    const FailingCalls failing("open", EEXIST);
    EXPECT_EQ(errorOf(replaceFile(folder / "file", "new")).reason,
              "no name for a temporary file could be found");
}

TEST(FailingSave, KeepsThePermissionsWhereTheOwnerCannotBeKept) {
    const tests::TemporaryFolder folder;
    writeContent(folder / "file", "old");
    ::chmod((folder / "file").c_str(), 02750);
    {
        const FailingCalls failing("fchown", EPERM);
        EXPECT_TRUE(replaceFile(folder / "file", "new"));
    }
    EXPECT_EQ(contentOf(folder / "file"), "new");
    EXPECT_EQ(fs::status(folder / "file").permissions(), static_cast<fs::perms>(0750))
        << "of a group that may be another";
}

TEST(FailingSave, DoesWithoutFlushingFoldersThatCannotBeFlushed) {
    const tests::TemporaryFolder folder;
    {
        const FailingCalls failing("fsync", EINVAL);
        EXPECT_TRUE(flushFolder(folder.path()));
    }
    {
        const FailingCalls failing("open", EACCES);
        EXPECT_TRUE(flushFolder(folder.path()));
        EXPECT_FALSE(flushFileSystem(folder.path()));
    }
    const FailingCalls failing("syncfs", EIO);
    EXPECT_EQ(errorOf(flushFileSystem(folder.path())).code, std::errc::io_error);
}

TEST(FailingSave, ASecondNameIsNoneWhereItCannotBeLockedOrMade) {
    const tests::TemporaryFolder folder;
    writeContent(folder / "file", "content");
    EXPECT_TRUE(TemporaryFile::linkTo(folder / "file"));
    for (const char* call : {"link", "open"}) {
        const FailingCalls failing(call, EIO);
        EXPECT_FALSE(TemporaryFile::linkTo(folder / "file")) << call;
    }
    EXPECT_EQ(tests::entriesIn(folder.path()), 1U);
}

TEST(FailingTrash, AFileIsWhereItWasOrInTheTrashWithItsNote) {
    // Moved, and copied where a trash is on another device.
    for (const char* name : {"", "rename"})
        withEachCallFailing([&](const tests::TemporaryFolder& folder, int number) {
            writeContent(folder / "a", "kept");
            bool came = false;
            Result<> moved;
            {
                const FailingCalls failing(name, EXDEV, number, EIO);
                moved = Trash(folder / "Trash").move(folder / "a");
                came = FailingCalls::cameToNumber();
            }
            const bool isThere = contentOf(folder / "a") == "kept";
            const bool isInTrash = contentOf(folder / "Trash/files/a") == "kept";
            EXPECT_TRUE(isThere || isInTrash);
            if (moved) {
                EXPECT_TRUE(isInTrash && !isThere);
            }
            if (!isThere) {
                EXPECT_TRUE(fs::exists(folder / "Trash/info/a.trashinfo"));
            }
            return came;
        });
}

TEST(FailingTrash, WithoutSecondNamesTheFileIsCopied) {
    const tests::TemporaryFolder folder;
    writeContent(folder / "a", "content");
    {
        const FailingCalls failing("link", EPERM);
        EXPECT_TRUE(linkOrCopy(folder / "a", folder / "b"));
        EXPECT_FALSE(linkOrCopy(folder / "none", folder / "c"));
    }
    EXPECT_EQ(contentOf(folder / "b"), "content");
    EXPECT_NE(fs::hard_link_count(folder / "b"), 2U);
}

} // namespace
