// The file of defaults: what is kept in it, and what is said where that cannot be.
#include "easel/classic/DefaultsStore.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace easel::classic;
using easel::files::Bytes;
using testing::HasSubstr;
using tests::contentOf;
using tests::writeContent;

namespace {

TEST(DefaultsStore, KeepsEachTypeAndIdByItself) {
    const tests::TemporaryFolder base;
    const DefaultsStore store(StoragePlaces::within(base / "not/yet/there"));
    EXPECT_TRUE(store.read().value().resources().empty());
    EXPECT_TRUE(store.put({1, 10001, 0, "Gradient Default", {1, 2}}));
    EXPECT_TRUE(store.put({1, 10002, 0, "Other", {3}}));
    EXPECT_TRUE(store.put({1, 10001, 0, "Gradient Default", {4}}));
    const auto fork = store.read().value();
    EXPECT_EQ(fork.resources().size(), 2U);
    EXPECT_EQ(fork.find(1, 10001)->data, Bytes{4});
    EXPECT_EQ(fork.find(1, 10001)->name, "Gradient Default");
    EXPECT_EQ(fork.find(1, 10002)->data, Bytes{3});
    EXPECT_EQ(tests::entriesIn(base / "not/yet/there"), 1U);
}

TEST(DefaultsStore, ADamagedFileIsAnErrorAndGoesToTheTrashBeforeItIsReplaced) {
    const tests::TemporaryFolder base;
    const DefaultsStore store(StoragePlaces::within(base.path()));
    writeContent(store.file(), "rubbish of some length");
    EXPECT_EQ(tests::errorOf(store.read()).file, store.file());
    EXPECT_TRUE(store.put({1, 1, 0, "", {7}}));
    EXPECT_EQ(store.read().value().find(1, 1)->data, Bytes{7});
    EXPECT_EQ(tests::contentOf(base / "Trash/files/Defaults.rsrc"), "rubbish of some length");
}

TEST(DefaultsStore, TwoStoresWithOneFileSeeEachOthersChanges) {
    const tests::TemporaryFolder base;
    const DefaultsStore one(StoragePlaces::within(base.path()));
    const DefaultsStore other(StoragePlaces::within(base.path()));
    EXPECT_TRUE(one.put({1, 1, 0, "", {1}}));
    EXPECT_TRUE(other.put({1, 2, 0, "", {2}}));
    EXPECT_TRUE(one.put({1, 1, 0, "", {3}}));
    EXPECT_EQ(other.read().value().resources().size(), 2U);
    EXPECT_EQ(other.read().value().find(1, 1)->data, Bytes{3});
}

TEST(DefaultsStore, AFileThatCannotBeReadIsLeftAlone) {
    const tests::TemporaryFolder base;
    const DefaultsStore store(StoragePlaces::within(base.path()));
    std::filesystem::create_directory(store.file());
    EXPECT_FALSE(store.put({1, 1, 0, "", {1}}));
    EXPECT_TRUE(std::filesystem::is_directory(store.file()));
}

TEST(DefaultsStore, AFolderThatCannotBeMadeIsTheOneThatIsNamed) {
    const tests::TemporaryFolder base;
    writeContent(base / "file", "in the way");
    const auto folder = base / "file/preferences";
    const auto error = tests::errorOf(DefaultsStore(StoragePlaces::within(folder)).put({1, 1, 0, "", {1}}));
    EXPECT_EQ(error.file, folder);
    EXPECT_EQ(error.code, std::errc::not_a_directory);
}

TEST(DefaultsStore, ADamagedFileThatNoTrashTakesStaysAsItIs) {
    const tests::TemporaryFolder base;
    const DefaultsStore store(StoragePlaces::within(base.path()));
    writeContent(store.file(), "rubbish of some length");
    writeContent(base / "Trash", "in the way");
    EXPECT_FALSE(store.put({1, 1, 0, "", {7}}));
    EXPECT_EQ(contentOf(store.file()), "rubbish of some length");
}

TEST(DefaultsStore, AFileIsTooLargeBeyond64Megabytes) {
    const tests::TemporaryFolder base;
    const DefaultsStore store(StoragePlaces::within(base.path()));
    constexpr std::uintmax_t kLargest = 64U << 20;
    writeContent(store.file(), "");
    std::filesystem::resize_file(store.file(), kLargest);
    EXPECT_THAT(tests::errorOf(store.read()).reason, HasSubstr("map"))
        << "it is read, and there is nothing in it";
    std::filesystem::resize_file(store.file(), kLargest + 1);
    EXPECT_EQ(tests::errorOf(store.read()).code, std::errc::file_too_large);
}

} // namespace
