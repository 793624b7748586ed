// Files as the plug-in names them.
#include "easel/classic/HostFiles.h"
#include "easel/classic/MacRoman.h"
#include "tests/unit/classic/PairFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace easel::classic;
using namespace easel::files;
using testing::ElementsAre;
using tests::dropFile;
using tests::keptIn;
using tests::writeContent;
namespace fs = std::filesystem;

namespace {

constexpr FinderInfo kInfo{tests::kTemplateType, fourCharacters("*Kst")};

class HostFilesTest : public testing::Test {
  protected:
    HostFilesTest()
        : files_(StoragePlaces::within(base_ / "prefs"), [this](const Error& e) { failures_.push_back(e); }) {
        const auto found = files_.findSecondaryFolder("Templates", FolderCreation::IfMissing);
        EXPECT_TRUE(found.usable);
        EXPECT_EQ(files_.resolve(found.spec.volume, found.spec.folder, ":Templates:JUNK", placeholder_),
                  FileResult::NoSuchFile);
    }

    fs::path folder() const { return base_ / "prefs/Templates"; }
    FileResult resolve(std::string_view name, FileSpec& spec) {
        return files_.resolve(placeholder_.volume, placeholder_.folder, name, spec);
    }
    FileResult resolve(std::string_view name) {
        FileSpec spec;
        return resolve(name, spec);
    }
    FileSpec specOf(const std::string& name) const {
        return {placeholder_.volume, placeholder_.folder, name};
    }
    std::vector<std::string> listed() {
        std::vector<std::string> names;
        for (const auto& file : files_.list(placeholder_.volume, placeholder_.folder))
            if (file.info.type == tests::kTemplateType)
                names.push_back(file.hostName);
        return names;
    }
    void save(const std::string& name, const std::string& content) {
        const auto spec = specOf(name);
        files_.remove(spec);
        files_.create(spec, kInfo);
        auto opened = files_.open(spec, Access::Write).value();
        opened.header = tests::headerWith(content);
        EXPECT_TRUE(files_.write(opened));
    }

    tests::TemporaryFolder base_;
    std::vector<Error> failures_;
    HostFiles files_;
    FileSpec placeholder_;
};

TEST_F(HostFilesTest, APathThroughTheFolderGivesTheFoldersOwnId) {
    EXPECT_EQ(placeholder_.name, "JUNK");
    const auto again = files_.findSecondaryFolder("Templates", FolderCreation::Never);
    EXPECT_NE(again.spec.folder, placeholder_.folder);
    FileSpec same;
    EXPECT_EQ(files_.resolve(again.spec.volume, again.spec.folder, ":Templates:JUNK", same),
              FileResult::NoSuchFile);
    EXPECT_EQ(same, placeholder_);
    EXPECT_FALSE(fs::exists(folder() / "JUNK"));
}

TEST_F(HostFilesTest, ResolvingTellsFilesFromMissingOnesAndFillsTheSpecForBoth) {
    dropFile(folder(), "a:b.GRD", "x");
    FileSpec spec;
    EXPECT_EQ(resolve("a/b.GRD", spec), FileResult::Done);
    EXPECT_EQ(spec, specOf("a/b.GRD"));
    EXPECT_EQ(resolve("none.GRD", spec), FileResult::NoSuchFile);
    EXPECT_EQ(spec, specOf("none.GRD"));
}

TEST_F(HostFilesTest, NamesThatDoNotResolveGiveNeitherResultAndLeaveTheSpecAlone) {
    writeContent(base_ / "prefs/outside.GRD", "");
    for (const char* name :
         {"", ".", "..", "a:b", ":x", "::outside.GRD", ":outside.GRD", "Templates:x", "._a.GRD", ":..:x"}) {
        FileSpec spec = specOf("before");
        const auto result = resolve(name, spec);
        EXPECT_NE(result, FileResult::Done) << name;
        EXPECT_NE(result, FileResult::NoSuchFile) << name;
        EXPECT_EQ(spec, specOf("before")) << name;
    }
}

TEST_F(HostFilesTest, UnknownVolumesAndFoldersHaveTheirOwnResults) {
    FileSpec spec;
    EXPECT_EQ(files_.resolve(0, 0, "x", spec), FileResult::NoSuchVolume);
    EXPECT_EQ(files_.resolve(placeholder_.volume, 99, "x", spec), FileResult::NoSuchFolder);
    EXPECT_EQ(files_.resolve(placeholder_.volume, placeholder_.folder + 1, "x", spec),
              FileResult::NoSuchFolder)
        << "the next one to be known";
    EXPECT_EQ(files_.resolve(placeholder_.volume, 1, "x", spec), FileResult::NoSuchFolder);
    EXPECT_EQ(files_.resolve(placeholder_.volume, 2, ":None:x", spec), FileResult::NoSuchFolder);
    EXPECT_EQ(files_.resolve(placeholder_.volume, 2, ":..:x", spec), FileResult::BadName);
    EXPECT_EQ(files_.remove(FileSpec{}), FileResult::BadName);
    EXPECT_EQ(files_.create(FileSpec{}, kInfo), FileResult::BadName);
    EXPECT_FALSE(files_.open(FileSpec{}, Access::Write));
    EXPECT_TRUE(files_.list(0, 0).empty());
}

TEST_F(HostFilesTest, ListingsHoldEveryFileOfTheTypeWhateverItsNameInAlphabeticalOrder) {
    dropFile(folder(), "zebra.GRD", "x");
    dropFile(folder(), "Apple.GRD", "x");
    dropFile(folder(), "no ending", "x");
    dropFile(folder(), "other.GRD", "x", fourCharacters("TEXT"));
    dropFile(folder(), "Cafe\u0301.GRD", "x");
    writeContent(folder() / "no header.GRD", "");
    writeContent(folder() / "._no data.GRD", "");
    fs::create_directory(folder() / "folder.GRD");
    EXPECT_THAT(listed(),
                ElementsAre("Apple.GRD", toMacRoman("Caf\u00E9.GRD").value(), "no ending", "zebra.GRD"));
    EXPECT_EQ(files_.list(placeholder_.volume, placeholder_.folder).size(), 6U);
}

TEST_F(HostFilesTest, AnEmptyFolderListsNothing) {
    EXPECT_TRUE(listed().empty());
}

TEST_F(HostFilesTest, ATemplateWhoseHeaderFileIsDamagedIsListed) {
    dropFile(folder(), "a.GRD", "x");
    const auto whole = tests::contentOf(folder() / "._a.GRD");
    for (const std::size_t size : {0U, 10U, 40U, 60U, 200U}) {
        writeContent(folder() / "._a.GRD", whole.substr(0, size));
        EXPECT_THAT(listed(), ElementsAre("a.GRD")) << size;
    }
    writeContent(folder() / "._a.GRD", std::string(500, 'x'));
    EXPECT_THAT(listed(), ElementsAre("a.GRD"));
}

TEST_F(HostFilesTest, AFileWithADecomposedNameIsFoundUnderTheComposedOne) {
    dropFile(folder(), "Cafe\u0301.GRD", "old");
    const auto name = toMacRoman("Caf\u00E9.GRD").value();
    EXPECT_EQ(resolve(name), FileResult::Done);
    save(name, "new");
    EXPECT_EQ(keptIn(folder(), "Cafe\u0301.GRD"), "new");
    EXPECT_FALSE(fs::exists(folder() / "Caf\u00E9.GRD"));
}

TEST_F(HostFilesTest, DeletingAndMakingAFileIsOneChangeOnDisk) {
    dropFile(folder(), "a.GRD", "old");
    const auto spec = specOf("a.GRD");
    EXPECT_EQ(files_.remove(spec), FileResult::Done);
    EXPECT_EQ(keptIn(folder(), "a.GRD"), "old");
    EXPECT_EQ(files_.create(spec, kInfo), FileResult::Done);
    EXPECT_EQ(keptIn(folder(), "a.GRD"), "old");
    auto opened = files_.open(spec, Access::Write).value();
    EXPECT_EQ(keptIn(folder(), "a.GRD"), "old");
    opened.header = tests::headerWith("new");
    EXPECT_TRUE(files_.write(opened));
    EXPECT_EQ(keptIn(folder(), "a.GRD"), "new");
    EXPECT_EQ(keptIn(base_ / "prefs/Trash/files", "a.GRD"), "old");
}

TEST_F(HostFilesTest, ADeletionIsCarriedOutBeforeAnythingElseIsAsked) {
    for (const char* name : {"a.GRD", "b.GRD", "c.GRD"})
        dropFile(folder(), name, "x");
    files_.remove(specOf("a.GRD"));
    EXPECT_EQ(resolve("a.GRD"), FileResult::NoSuchFile);
    files_.remove(specOf("b.GRD"));
    EXPECT_THAT(listed(), ElementsAre("c.GRD"));
    files_.remove(specOf("c.GRD"));
    files_.settle();
    EXPECT_EQ(keptIn(folder(), "c.GRD"), "none");
    EXPECT_EQ(files_.remove(specOf("c.GRD")), FileResult::NoSuchFile);
}

TEST_F(HostFilesTest, AFileThatIsMadeAndNeverOpenedIsThereWithoutResources) {
    EXPECT_EQ(files_.create(specOf("a.GRD"), kInfo), FileResult::Done);
    EXPECT_THAT(listed(), ElementsAre("a.GRD"));
    EXPECT_EQ(files_.create(specOf("a.GRD"), kInfo), FileResult::AlreadyExists);
    const auto opened = files_.open(specOf("a.GRD"), Access::Read);
    EXPECT_TRUE(opened.value().header.resourceFork().empty());
}

TEST_F(HostFilesTest, AChangeThatFailsLaterIsReported) {
    dropFile(folder(), "a.GRD", "old");
    writeContent(base_ / "prefs/Trash", "in the way");
    EXPECT_EQ(files_.remove(specOf("a.GRD")), FileResult::Done);
    EXPECT_EQ(resolve("a.GRD"), FileResult::Done);
    ASSERT_EQ(failures_.size(), 1U);
    EXPECT_NE(failures_[0].message().find("Trash"), std::string::npos);
}

TEST_F(HostFilesTest, AFolderThatVanishedIsMadeAgainByTheNextSave) {
    fs::remove_all(base_ / "prefs");
    EXPECT_EQ(resolve("a.GRD"), FileResult::NoSuchFile);
    save("a.GRD", "new");
    EXPECT_EQ(keptIn(folder(), "a.GRD"), "new");
}

TEST_F(HostFilesTest, AFolderThatCannotBeMadeIsAFailureThatNamesIt) {
    writeContent(base_ / "prefs/Blocked", "a file");
    const auto found = files_.findSecondaryFolder("Blocked", FolderCreation::IfMissing);
    ASSERT_FALSE(found.usable);
    EXPECT_EQ(found.usable.error().file, base_ / "prefs/Blocked");
    FileSpec spec;
    EXPECT_EQ(files_.resolve(found.spec.volume, found.spec.folder, ":Blocked:JUNK", spec),
              FileResult::NoSuchFolder);
    EXPECT_FALSE(files_.findSecondaryFolder("../outside", FolderCreation::Never).usable);
    EXPECT_FALSE(fs::exists(base_ / "outside"));
}

TEST_F(HostFilesTest, WhatACrashLeftIsClearedWhenTheFolderIsFoundNextTime) {
    writeContent(folder() / ".easel-save-0123456789abcdef~", "half");
    files_.findSecondaryFolder("Templates", FolderCreation::Never);
    EXPECT_EQ(tests::entriesIn(folder()), 0U);
}

TEST_F(HostFilesTest, OfTwoProgramsOnOneFolderTheLaterSaveWinsAndBothSeeIt) {
    HostFiles other(StoragePlaces::within(base_ / "prefs"), [](const Error&) {});
    other.findSecondaryFolder("Templates", FolderCreation::IfMissing);
    FileSpec placeholder;
    other.resolve(-1, 2, ":Templates:JUNK", placeholder);
    // The other one has been asked to replace the file when this one does.
    const FileSpec spec{placeholder.volume, placeholder.folder, "a"};
    save("a", "first");
    other.remove(spec);
    other.create(spec, kInfo);
    auto opened = other.open(spec, Access::Write).value();
    opened.header = tests::headerWith("the other's");
    save("a", "second");
    EXPECT_EQ(keptIn(folder(), "a"), "second");
    EXPECT_TRUE(other.write(opened));
    EXPECT_EQ(keptIn(folder(), "a"), "the other's");
    EXPECT_THAT(listed(), ElementsAre("a"));
    EXPECT_EQ(other.list(placeholder.volume, placeholder.folder).size(), 1U);
    EXPECT_EQ(keptIn(base_ / "prefs/Trash/files", "a.2"), "second");
}

TEST_F(HostFilesTest, AListingShowsEveryChangeAtOnce) {
    for (int i = 0; i < 20; ++i) {
        const std::string name(1, static_cast<char>('a' + i));
        dropFile(folder(), name, "x");
        EXPECT_EQ(listed().size(), 1U);
        EXPECT_EQ(listed().size(), 1U);
        files_.remove(specOf(name));
        EXPECT_TRUE(listed().empty());
    }
}

} // namespace
