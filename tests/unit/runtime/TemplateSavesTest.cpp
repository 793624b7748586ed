// What counts as a saved template.
#include "easel/runtime/TemplateSaves.h"

#include "easel/files/AtomicFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace {

using easel::runtime::TemplateSaves;

void save(const std::filesystem::path& file) {
    // The clock of file systems ticks some hundred times a second.
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    ASSERT_TRUE(easel::files::replaceFile(file, std::string_view("bytes")));
}

TEST(TemplateSaves, AreNewAndReplacedFilesButNotDeletedOnes) {
    const tests::TemporaryFolder folder;
    save(folder.path() / "old.GRD");
    save(folder.path() / "other.GRD");
    const TemplateSaves before(folder.path());
    EXPECT_FALSE(before.any());
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    std::filesystem::remove(folder.path() / "other.GRD");
    EXPECT_FALSE(before.any());
    save(folder.path() / "old.GRD");
    EXPECT_TRUE(before.any());
    const TemplateSaves between(folder.path());
    EXPECT_FALSE(between.any());
    save(folder.path() / "new.GRD");
    EXPECT_TRUE(between.any());
}

TEST(TemplateSaves, OfAFolderThatIsMadeWithTheFirstTemplate) {
    const tests::TemporaryFolder folder;
    const TemplateSaves before(folder.path() / "templates");
    EXPECT_FALSE(before.any());
    std::filesystem::create_directory(folder.path() / "templates");
    save(folder.path() / "templates" / "new.GRD");
    EXPECT_TRUE(before.any());
}

} // namespace
