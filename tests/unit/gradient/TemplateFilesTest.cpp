// The template store and the list for deleting, on a folder that changes under their hands.
#include "Gradient/TemplateUtil/DeleteTemplateDialog.h"
#include "Gradient/TemplateUtil/TemplateMenu.h"
#include "Gradient/TemplateUtil/TemplateStore.h"
#include "Gradient/editor/TemplateHits.h"
#include "Gradient/model/GradientBlock.h"
#include "easel/runtime/CFString.h"
#include "tests/unit/gradient/EditorStage.h"

#include <gmock/gmock.h>

namespace tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Agrees to everything or to nothing.
class Asked : public IdleUser {
  public:
    easel::runtime::Answer confirm(const easel::runtime::Alert&) override { return answer; }
    // The host may say which file it could not read.
    void tell(const easel::files::Error&, const std::string&) override {}

    easel::runtime::Answer answer = easel::runtime::Answer::Yes;
};

class TemplateFiles : public testing::Test {
  protected:
    TemplateFiles() : stage_(user_) { InitTemplates(kFolder); }

    static void save(const std::string& name) {
        const StOwnedBlock block(MakeGradientData(CGradientData()));
        SaveTemplate(block.get(), name, kTemplateFileType);
    }
    static std::vector<std::string> listed() { return GetTemplateList(kTemplateFileType); }
    static bool loads(const std::string& name) { return StOwnedBlock(LoadTemplate(name)) != nullptr; }

    // Where the file lies on disk; its header file if `prefix` is "._".
    std::filesystem::path path(const std::string& name, const std::string& prefix = "") const {
        return stage_.folder() / kFolder / (prefix + name);
    }
    void removeFromDisk(const std::string& name) const {
        EXPECT_TRUE(std::filesystem::remove(path(name)));
        EXPECT_TRUE(std::filesystem::remove(path(name, "._")));
    }

    // Opens a resource file and makes the one before it current, so that closing any other one makes the
    // wrong file current.
    static void openAnother() {
        const FSSpec folder = FindSecondaryPreferencesFolder(kFolder, false);
        FSSpec spec{};
        save("open.GRD");
        ASSERT_EQ(FSMakeFSSpec(folder.vRefNum, folder.parID, ":Kept:open.GRD", &spec), kNoErr);
        const short before = CurResFile();
        ASSERT_NE(FSpOpenResFile(&spec, kReadPermission), before);
        UseResFile(before);
    }

    static constexpr const char* kFolder = "Kept";
    Asked user_;
    EditorStage stage_;
};

TEST_F(TemplateFiles, TheCurrentResourceFileComesBackEvenIfAnotherWasOpenedAfterIt) {
    openAnother();
    const short before = CurResFile();
    save("new.GRD");
    EXPECT_EQ(CurResFile(), before) << "saved";
    EXPECT_TRUE(loads("new.GRD"));
    EXPECT_EQ(CurResFile(), before) << "loaded";
    user_.answer = easel::runtime::Answer::No;
    save("new.GRD");
    EXPECT_EQ(CurResFile(), before) << "declined";
    EXPECT_FALSE(loads("missing.GRD"));
    EXPECT_EQ(CurResFile(), before) << "missing";
    EXPECT_EQ(listed().size(), 2u);
    EXPECT_EQ(CurResFile(), before) << "listed";
}

TEST_F(TemplateFiles, LoadingANameThatIsNotThereOpensNothingAndStillMakesTheFileCurrentAgain) {
    stage_.process().journal().take();
    stage_.process().journal().switchOn();
    EXPECT_FALSE(loads("missing.GRD"));
    EXPECT_THAT(stage_.process().journal().take(),
                ElementsAre("CurResFile()", testing::MatchesRegex("FSMakeFSSpec\\(.*, \"missing.GRD\"\\)"),
                            "UseResFile(1)"));
}

TEST_F(TemplateFiles, ATemplateWhoseForkCannotBeOpenedGivesNoBlock) {
    save("x.GRD");
    ASSERT_TRUE(loads("x.GRD"));
    // A link to itself is there and cannot be opened, whoever runs the test.
    std::filesystem::remove(path("x.GRD", "._"));
    std::filesystem::create_symlink("._x.GRD", path("x.GRD", "._"));
    EXPECT_FALSE(loads("x.GRD"));
}

TEST_F(TemplateFiles, AGradientThatCannotBeMadeIntoBytesReplacesNothing) {
    save("a.GRD");
    CGradientData gradient;
    gradient.ColorList().clear();
    SaveGradientTemplate(gradient, "a");
    EXPECT_TRUE(loads("a.GRD"));
}

TEST_F(TemplateFiles, EveryListIsReadFromTheFolderAfresh) {
    EXPECT_THAT(listed(), IsEmpty());
    save("a.GRD");
    EXPECT_THAT(listed(), ElementsAre("a.GRD"));
    save("b.GRD");
    EXPECT_THAT(listed(), ElementsAre("a.GRD", "b.GRD"));
    removeFromDisk("a.GRD");
    EXPECT_THAT(listed(), ElementsAre("b.GRD"));
}

TEST_F(TemplateFiles, OnlyFilesOfTheTypeAreListed) {
    const StOwnedBlock block(NewHandle(4));
    SaveTemplate(block.get(), "text.GRD", FourCC("TEXT"));
    save("a");
    EXPECT_THAT(listed(), ElementsAre("a"));
}

TEST_F(TemplateFiles, DeletingANameThatIsNotThereDoesNothing) {
    save("a.GRD");
    stage_.process().journal().switchOn();
    DeleteTemplate("missing.GRD");
    EXPECT_THAT(stage_.process().journal().take(), testing::Not(testing::Contains("FSpDelete()")));
    EXPECT_THAT(listed(), ElementsAre("a.GRD"));
    DeleteTemplate("a.GRD");
    EXPECT_THAT(listed(), IsEmpty());
}

class DeletionListing : public TemplateFiles {
  protected:
    std::string row(long index) {
        const CFStringRef text = dialog_.GetListItemDescription(index);
        std::string utf8 = text != nullptr ? easel::runtime::utf8Of(text) : "none";
        CFRelease(text);
        return utf8;
    }

    CDeleteTemplateDialog dialog_{kTemplateFileType};
};

TEST_F(DeletionListing, EachDeletionMovesTheLaterNamesUp) {
    for (const char* const name : {"a.GRD", "b.GRD", "c.GRD", "d.GRD"})
        save(name);
    EXPECT_EQ(dialog_.GetListItemCount(), 4);
    EXPECT_EQ(row(1), "b.GRD");
    dialog_.DeleteListItem(1);
    EXPECT_EQ(dialog_.GetListItemCount(), 3);
    EXPECT_EQ(row(1), "c.GRD");
    dialog_.DeleteListItem(1);
    EXPECT_THAT(listed(), ElementsAre("a.GRD", "d.GRD"));
}

TEST_F(DeletionListing, ADeclinedOkIsConsumedWithoutAnErrorAndDeletesNothing) {
    save("a.GRD");
    user_.answer = easel::runtime::Answer::No;
    EXPECT_EQ(dialog_.DoCommand({0, kOKCommand}), 0);
    EXPECT_THAT(listed(), ElementsAre("a.GRD"));
}

TEST_F(DeletionListing, IndexesBeyondTheListNameNothing) {
    save("a.GRD");
    EXPECT_EQ(row(0), "a.GRD");
    for (const long index : {-1L, 1L, 4294967295L}) {
        EXPECT_EQ(row(index), "none") << index;
        dialog_.DeleteListItem(index);
    }
    EXPECT_THAT(listed(), ElementsAre("a.GRD"));
}

TEST_F(DeletionListing, AnEmptyFolderHasNothingToNameAndNothingToDelete) {
    EXPECT_EQ(dialog_.GetListItemCount(), 0);
    EXPECT_EQ(row(0), "none");
    dialog_.DeleteListItem(0);
    EXPECT_EQ(dialog_.GetListItemCount(), 0);
}

} // namespace
} // namespace tests
