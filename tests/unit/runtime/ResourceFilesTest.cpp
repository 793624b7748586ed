// Resource files as the plug-in opens and closes them.
#include "easel/runtime/ResourceFiles.h"
#include "tests/support/ErrorOf.h"
#include "tests/unit/classic/PairFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace easel::classic;
using namespace easel::runtime;
using namespace easel::files;
using testing::ElementsAre;
using tests::dropFile;
using tests::keptIn;
using tests::kResourceType;
using tests::writeContent;

namespace {

using AdditionError = ResourceFiles::AdditionError;

class ResourceFilesTest : public testing::Test {
  protected:
    ResourceFilesTest() {
        const auto found = files_.findSecondaryFolder("T", FolderCreation::IfMissing);
        files_.resolve(found.spec.volume, found.spec.folder, ":T:JUNK", placeholder_);
    }
    ~ResourceFilesTest() override { EXPECT_EQ(failures_, expectedFailures_); }

    std::filesystem::path folder() const { return base_ / "T"; }
    FileSpec specOf(const std::string& name) const {
        return {placeholder_.volume, placeholder_.folder, name};
    }
    char** blockOf(const std::string& content) {
        char** const block = blocks_.create(content.size());
        std::copy(content.begin(), content.end(), *block);
        return block;
    }
    std::string contentOf(char** block) { return block ? std::string(*block, *blocks_.size(block)) : "null"; }

    tests::TemporaryFolder base_;
    MemoryBlocks blocks_;
    int failures_ = 0;
    int expectedFailures_ = 0;
    HostFiles::ErrorReport report_ = [this](const Error&) { ++failures_; };
    HostFiles files_{StoragePlaces::within(base_.path()), report_};
    std::vector<std::filesystem::path> unreadable_;
    ResourceFiles resources_{files_, blocks_, report_,
                             [this](const Error& error) { unreadable_.push_back(error.file); }};
    FileSpec placeholder_;
};

TEST_F(ResourceFilesTest, WhatIsAddedIsWrittenAtCloseAndTheBlockStaysTheCallers) {
    files_.create(specOf("a"), {tests::kTemplateType, 1});
    const auto number = resources_.open(specOf("a"), Access::Write);
    EXPECT_EQ(resources_.current(), number);
    char** const block = blockOf("gradient");
    EXPECT_TRUE(resources_.add(block, kResourceType, 0, ""));
    (*block)[0] = 'G';
    EXPECT_EQ(keptIn(folder(), "a"), "none");
    resources_.close(number);
    EXPECT_EQ(keptIn(folder(), "a"), "gradient");
    EXPECT_EQ(contentOf(block), "Gradient");
    EXPECT_EQ(blocks_.live(), 1U);
}

TEST_F(ResourceFilesTest, TheSearchGoesFromTheCurrentFileDownTheChain) {
    dropFile(folder(), "low", "from low");
    dropFile(folder(), "high", "from high");
    writeContent(folder() / "empty", "");
    const auto low = resources_.open(specOf("low"), Access::Read);
    const auto empty = resources_.open(specOf("empty"), Access::Read);
    const auto high = resources_.open(specOf("high"), Access::Read);
    EXPECT_THAT(resources_.openFiles(), ElementsAre(ResourceFiles::kHostFile, low, empty, high));
    EXPECT_THAT(resources_.openFiles(), testing::Each(testing::Ne(ResourceFiles::kNoFile)));
    EXPECT_EQ(contentOf(resources_.get(kResourceType, 0)), "from high");
    resources_.use(empty);
    EXPECT_EQ(contentOf(resources_.get(kResourceType, 0)), "from low");
    EXPECT_EQ(resources_.get(kResourceType, 1), nullptr);
    resources_.use(ResourceFiles::kHostFile);
    EXPECT_EQ(resources_.get(kResourceType, 0), nullptr);
}

TEST_F(ResourceFilesTest, ADetachedBlockSurvivesTheFileAndOthersGoWithIt) {
    dropFile(folder(), "a", "kept");
    const auto number = resources_.open(specOf("a"), Access::Read);
    char** const block = resources_.get(kResourceType, 0);
    EXPECT_EQ(resources_.get(kResourceType, 0), block);
    resources_.detach(block);
    EXPECT_NE(resources_.get(kResourceType, 0), block);
    resources_.detach(nullptr);
    resources_.close(number);
    EXPECT_EQ(contentOf(block), "kept");
    EXPECT_EQ(blocks_.live(), 1U);
}

TEST_F(ResourceFilesTest, ClosingMakesTheFileBeforeItCurrent) {
    dropFile(folder(), "a", "x");
    const auto first = resources_.open(specOf("a"), Access::Read);
    const auto second = resources_.open(specOf("a"), Access::Read);
    resources_.close(second);
    EXPECT_EQ(resources_.current(), first);
    resources_.close(first);
    EXPECT_EQ(resources_.current(), ResourceFiles::kHostFile);
    resources_.close(ResourceFiles::kHostFile);
    resources_.close(99);
    resources_.use(99);
    EXPECT_EQ(resources_.current(), ResourceFiles::kHostFile);
}

TEST_F(ResourceFilesTest, AFileThatCannotBeOpenedChangesNothing) {
    EXPECT_EQ(resources_.open(specOf("none"), Access::Read), ResourceFiles::kNoFile);
    EXPECT_EQ(resources_.open(specOf("none"), Access::Write), ResourceFiles::kNoFile);
    EXPECT_EQ(resources_.open(FileSpec{}, Access::Write), ResourceFiles::kNoFile);
    EXPECT_THAT(resources_.openFiles(), ElementsAre(ResourceFiles::kHostFile));
    char** const block = blockOf("x");
    EXPECT_EQ(tests::errorOf(resources_.add(block, kResourceType, 0, "")), AdditionError::NotWritable);
    EXPECT_EQ(contentOf(block), "x");
}

TEST_F(ResourceFilesTest, AFileOpenForReadingIsNeverWritten) {
    dropFile(folder(), "a", "old");
    const auto number = resources_.open(specOf("a"), Access::Read);
    EXPECT_EQ(tests::errorOf(resources_.add(blockOf("new"), kResourceType, 0, "")),
              AdditionError::NotWritable);
    resources_.close(number);
    EXPECT_EQ(keptIn(folder(), "a"), "old");
    EXPECT_FALSE(std::filesystem::exists(base_ / "Trash"));
}

TEST_F(ResourceFilesTest, WhatIsNoBlockIsNotAdded) {
    files_.create(specOf("a"), {1, 1});
    const auto number = resources_.open(specOf("a"), Access::Write);
    EXPECT_EQ(tests::errorOf(resources_.add(nullptr, kResourceType, 0, "")), AdditionError::NotABlock);
    resources_.close(number);
    EXPECT_EQ(keptIn(folder(), "a"), "damaged") << "it has no such resource";
}

TEST_F(ResourceFilesTest, ADamagedFileDoesNotOpenAndIsNamedToWhoeverWouldReadIt) {
    dropFile(folder(), "a", "x");
    const auto header = tests::contentOf(folder() / "._a");
    for (const auto& damaged : {header.substr(0, header.size() - 10), std::string("rubbish")}) {
        writeContent(folder() / "._a", damaged);
        unreadable_.clear();
        EXPECT_EQ(resources_.open(specOf("a"), Access::Read), ResourceFiles::kNoFile);
        ASSERT_EQ(unreadable_.size(), 1U);
        EXPECT_EQ(unreadable_[0].filename(), "._a");
        EXPECT_EQ(resources_.open(specOf("a"), Access::Write), ResourceFiles::kNoFile);
    }
    EXPECT_EQ(unreadable_.size(), 1U) << "who writes is told otherwise";
    EXPECT_EQ(resources_.current(), ResourceFiles::kHostFile);
    EXPECT_EQ(blocks_.live(), 0U);
}

TEST_F(ResourceFilesTest, AFileOfDamagedResourcesDoesNotOpenAndIsNamedToWhoeverWouldReadIt) {
    AppleDouble header = tests::headerWith("x");
    header.setResourceFork({1, 2, 3});
    const auto bytes = header.write();
    writeContent(folder() / "a", "");
    writeContent(folder() / "._a", {bytes.begin(), bytes.end()});
    EXPECT_EQ(resources_.open(specOf("a"), Access::Write), ResourceFiles::kNoFile);
    EXPECT_THAT(unreadable_, testing::IsEmpty());
    EXPECT_EQ(resources_.open(specOf("a"), Access::Read), ResourceFiles::kNoFile);
    EXPECT_THAT(unreadable_, ElementsAre(folder() / "a"));
}

TEST_F(ResourceFilesTest, ResourcesThatAreMoreThanAFileCanHoldAreReportedAndTheOldFileStays) {
    dropFile(folder(), "a", "old");
    const auto number = resources_.open(specOf("a"), Access::Write);
    // Resources begin in the first 16 megabytes of their file.
    for (const std::int16_t id : {std::int16_t{0}, std::int16_t{1}})
        EXPECT_TRUE(resources_.add(blockOf(std::string(17U << 20, 'x')), kResourceType, id, ""));
    expectedFailures_ = 1;
    resources_.close(number);
    EXPECT_EQ(keptIn(folder(), "a"), "old");
}

TEST_F(ResourceFilesTest, AWriteThatFailsIsReportedAndTheOldFileStays) {
    dropFile(folder(), "a", "old");
    writeContent(base_ / "Trash", "in the way");
    files_.remove(specOf("a"));
    files_.create(specOf("a"), {tests::kTemplateType, 1});
    const auto number = resources_.open(specOf("a"), Access::Write);
    resources_.add(blockOf("new"), kResourceType, 0, "");
    expectedFailures_ = 1;
    resources_.close(number);
    EXPECT_EQ(keptIn(folder(), "a"), "old");
}

} // namespace
