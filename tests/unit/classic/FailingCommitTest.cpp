// Pairs of files while each call of the system fails in turn: they are whole at every moment, and errors are
// told.
#include "easel/classic/HostFiles.h"
#include "easel/classic/PairCommit.h"
#include "tests/support/FailingCalls.h"
#include "tests/unit/classic/PairFixture.h"

#include <cerrno>
#include <gtest/gtest.h>

using namespace easel::classic;
using namespace easel::files;
using tests::dropFile;
using tests::FailingCalls;
using tests::headerWith;
using tests::keptIn;
namespace fs = std::filesystem;

namespace {

constexpr int kMoreThanAllCalls = 500;

// A folder with a file in it, and a trash beside the folder.
struct Stage {
    Stage() { fs::create_directory(folder); }

    FilePair pair() const { return {folder, "a.GRD"}; }
    std::string inTrash() const { return keptIn(base / "Trash/files", "a.GRD"); }

    tests::TemporaryFolder base;
    fs::path folder = base / "folder";
    Trash trash{base / "Trash"};
};

// Plays it with the first call failing, then the second and so on, until none is left to fail, on a stage of
// its own each. With `name`, all calls of that name fail as well.
template <class Play> void withEachCallFailing(std::string_view name, int error, Play play) {
    bool failed = true;
    int number = 1;
    for (; failed && number < kMoreThanAllCalls; ++number) {
        SCOPED_TRACE("call " + std::to_string(number));
        Stage stage;
        play(stage, [&](auto&& action) {
            const FailingCalls failing(name, error, number, EIO);
            auto done = action();
            failed = FailingCalls::cameToNumber();
            return done;
        });
    }
    EXPECT_GT(number, 5) << "hardly any call was made to fail";
    EXPECT_LT(number, kMoreThanAllCalls);
}

// What is left after the next start is one whole file or none.
void expectWhole(const Stage& stage) {
    recoverFolder(stage.folder);
    const std::string kept = keptIn(stage.folder, "a.GRD");
    EXPECT_NE(kept, "damaged");
    EXPECT_EQ(tests::entriesIn(stage.folder), kept == "none" ? 0U : 2U);
}

class FailingCommit : public testing::TestWithParam<const char*> {};

TEST_P(FailingCommit, AReplacedFileIsTheOldOrTheNewOneAndTheOldOneIsNeverLost) {
    withEachCallFailing(GetParam(), EPERM, [](Stage& stage, auto failing) {
        dropFile(stage.folder, "a.GRD", "old", tests::kTemplateType, "data");
        const auto done = failing([&] { return writePair(stage.pair(), headerWith("new"), stage.trash); });
        const std::string kept = keptIn(stage.folder, "a.GRD");
        EXPECT_TRUE(kept == "new" || kept == "old") << kept;
        if (done) {
            EXPECT_EQ(kept, "new");
            EXPECT_EQ(tests::contentOf(stage.folder / "a.GRD"), "");
        }
        if (kept == "new") {
            EXPECT_EQ(stage.inTrash(), "old");
        }
        expectWhole(stage);
    });
}

TEST_P(FailingCommit, ANewFileIsThereAsAWholeOrNotAtAll) {
    withEachCallFailing(GetParam(), EPERM, [](Stage& stage, auto failing) {
        const auto done = failing([&] { return writePair(stage.pair(), headerWith("new"), stage.trash); });
        const std::string kept = keptIn(stage.folder, "a.GRD");
        EXPECT_TRUE(kept == "new" || kept == "none") << kept;
        if (done) {
            EXPECT_EQ(kept, "new");
        }
        expectWhole(stage);
    });
}

TEST_P(FailingCommit, ADeletedFileIsInTheTrashOrWhereItWas) {
    withEachCallFailing(GetParam(), EPERM, [](Stage& stage, auto failing) {
        dropFile(stage.folder, "a.GRD", "old");
        const auto done = failing([&] { return trashPair(stage.pair(), stage.trash); });
        const std::string kept = keptIn(stage.folder, "a.GRD");
        EXPECT_TRUE(kept == "old" || kept == "none") << kept;
        if (done) {
            EXPECT_EQ(kept, "none");
        }
        if (kept == "none") {
            EXPECT_EQ(stage.inTrash(), "old");
        }
    });
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutSecondNames, FailingCommit, testing::Values("", "link"),
                         [](const auto& each) { return *each.param == '\0' ? "WithThem" : "WithoutThem"; });

TEST(FailingCommits, AHeaderThatLostItsDataForkIsKeptSomewhere) {
    withEachCallFailing("", 0, [](Stage& stage, auto failing) {
        dropFile(stage.folder, "a.GRD", "lost");
        fs::remove(stage.folder / "a.GRD");
        const auto done = failing([&] { return writePair(stage.pair(), headerWith("new"), stage.trash); });
        EXPECT_TRUE(fs::exists(stage.base / "Trash/files/._a.GRD") || fs::exists(stage.folder / "._a.GRD"));
        if (done) {
            EXPECT_EQ(keptIn(stage.folder, "a.GRD"), "new");
        }
    });
}

TEST(FailingCommits, ADeletionThatIsCutOffIsFinishedAtTheNextStart) {
    withEachCallFailing("", 0, [](Stage& stage, auto failing) {
        dropFile(stage.folder, "a.GRD", "old");
        static_cast<void>(failing([&] { return trashPair(stage.pair(), stage.trash); }));
        expectWhole(stage);
    });
}

TEST(FailingCommits, ADeletionThatWasPutOffIsReportedWhenItFails) {
    withEachCallFailing("", 0, [](Stage& stage, auto failing) {
        dropFile(stage.folder / "Templates", "a.GRD", "old");
        int reports = 0;
        const bool removed = failing([&] {
            HostFiles files(StoragePlaces{stage.folder, stage.base / "Trash"},
                            [&](const Error&) { ++reports; });
            const auto found = files.findSecondaryFolder("Templates", FolderCreation::IfMissing);
            FileSpec spec;
            return found.usable &&
                   files.resolve(found.spec.volume, found.spec.folder, ":Templates:a.GRD", spec) ==
                       FileResult::Done &&
                   files.remove(spec) == FileResult::Done;
        });
        const std::string kept = keptIn(stage.folder / "Templates", "a.GRD");
        EXPECT_TRUE(kept == "none" || (kept == "old" && (reports > 0 || !removed))) << kept;
    });
}

TEST(FailingCommits, ManyDeletionsAreFlushedTogetherAndFailuresReported) {
    Stage stage;
    dropFile(stage.folder / "Templates", "a.GRD", "old");
    std::vector<Error> reports;
    HostFiles files(StoragePlaces{stage.folder, stage.base / "Trash"},
                    [&](const Error& error) { reports.push_back(error); });
    const auto found = files.findSecondaryFolder("Templates", FolderCreation::IfMissing);
    FileSpec spec;
    files.resolve(found.spec.volume, found.spec.folder, ":Templates:a.GRD", spec);
    {
        const FailingCalls failing("syncfs", EIO);
        const HostFiles::ManyChanges many(files);
        EXPECT_EQ(files.remove(spec), FileResult::Done);
    }
    EXPECT_EQ(reports.size(), 2U) << "of the preferences and of the trash";
    EXPECT_EQ(keptIn(stage.folder / "Templates", "a.GRD"), "none");
}

TEST(FailingCommits, OfManyDeletionsNoneIsFlushedByItself) {
    Stage stage;
    dropFile(stage.folder / "Templates", "a.GRD", "old");
    int reports = 0;
    HostFiles files(StoragePlaces{stage.folder, stage.base / "Trash"}, [&](const Error&) { ++reports; });
    const auto found = files.findSecondaryFolder("Templates", FolderCreation::IfMissing);
    FileSpec spec;
    files.resolve(found.spec.volume, found.spec.folder, ":Templates:a.GRD", spec);
    {
        const FailingCalls failing("fsync", EIO);
        const HostFiles::ManyChanges many(files);
        EXPECT_EQ(files.remove(spec), FileResult::Done);
    }
    EXPECT_EQ(reports, 0) << "what flushes one file at a time is not asked";
    EXPECT_EQ(keptIn(stage.folder / "Templates", "a.GRD"), "none");
}

} // namespace
