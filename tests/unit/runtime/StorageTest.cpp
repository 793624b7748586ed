// What the user is told about storage that fails.
#include "easel/runtime/Storage.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace easel;
using testing::ElementsAre;

namespace {

class StorageTest : public testing::Test {
  protected:
    tests::TemporaryFolder folder_;
    runtime::MemoryBlocks blocks_;
    std::vector<std::string> told_;
    runtime::Storage storage_{classic::StoragePlaces::within(folder_.path()), blocks_,
                              [this](const files::Error& error, const std::string& outcome) {
                                  told_.push_back(error.message() + ". " + outcome);
                              }};
};

const files::Error kReadOnly{"folder", "read-only", {}};

TEST_F(StorageTest, ThatNothingCanBeKeptIsToldOnceAndNotAgainOfTheDefaults) {
    storage_.tellNothingIsKept(kReadOnly);
    EXPECT_EQ(told_.size(), 1U);
    storage_.tellNothingIsKept(kReadOnly);
    storage_.tellDefaultsNotKept(kReadOnly);
    EXPECT_THAT(told_,
                ElementsAre("folder: read-only. The current gradient and templates will not be kept."));
}

TEST_F(StorageTest, ATemplateThatCouldNotBeKeptIsToldOfEvenSo) {
    storage_.tellNothingIsKept(kReadOnly);
    told_.clear();
    EXPECT_TRUE(storage_.keptAll());
    storage_.tellError(kReadOnly);
    EXPECT_THAT(told_, ElementsAre("folder: read-only. The change was not kept."));
    EXPECT_FALSE(storage_.keptAll());
}

TEST_F(StorageTest, DefaultsThatUnexpectedlyCouldNotBeKeptAreToldOf) {
    storage_.tellDefaultsNotKept(kReadOnly);
    EXPECT_THAT(told_, ElementsAre("folder: read-only. The change was not kept."));
    EXPECT_FALSE(storage_.keptAll());
}

TEST_F(StorageTest, DefaultsAreNotKeptEvenWhereThatHasBeenTold) {
    storage_.tellNothingIsKept(kReadOnly);
    EXPECT_TRUE(storage_.keptAll());
    storage_.tellDefaultsNotKept(kReadOnly);
    EXPECT_FALSE(storage_.keptAll());
}

TEST_F(StorageTest, ANameInAFolderThatIsNotThereIsRefusedWithThatReasonAndOnlyOnce) {
    classic::FileSpec spec;
    storage_.resolve(0, 0, "a", spec);
    const auto refusal = storage_.takeRefusal();
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->message(), "a: its folder is not there");
    EXPECT_FALSE(storage_.takeRefusal());
    EXPECT_TRUE(storage_.keptAll()) << "nothing was to be kept";
}

TEST_F(StorageTest, ANameThatIsRefusedSinceNothingCanBeKeptIsSomethingThatWasNotKept) {
    storage_.tellNothingIsKept(kReadOnly);
    EXPECT_TRUE(storage_.keptAll());
    classic::FileSpec spec;
    storage_.resolve(0, 0, "a", spec);
    EXPECT_EQ(storage_.takeRefusal().value_or(files::Error{}).message(), "folder: read-only");
    EXPECT_FALSE(storage_.keptAll());
}

TEST_F(StorageTest, ANameThatAFileHasOrCanHaveIsNotRefused) {
    classic::FileSpec spec;
    storage_.resolve(-1, 2, ":no folder:a", spec);
    storage_.resolve(-1, 2, "a", spec);
    EXPECT_FALSE(storage_.takeRefusal());
    tests::writeContent(folder_.path() / "a", "");
    storage_.resolve(-1, 2, "a", spec);
    EXPECT_FALSE(storage_.takeRefusal());
}

} // namespace
