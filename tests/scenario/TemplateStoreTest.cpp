// Saving, listing, loading and deleting templates as files.
#include "tests/scenario/Templates.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tests;
using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = std::filesystem;
namespace classic = easel::classic;

namespace {

const std::string kAddStop = "click item 4 " + onRamp(100) + "\n";

std::vector<std::string> storeCalls(const json& journal) {
    std::vector<std::string> calls;
    for (const std::string call : journal)
        for (const char* name :
             {"CurResFile", "UseResFile", "FSMakeFSSpec", "FSpDelete", "FSpCreateResFile", "FSpOpenResFile",
              "AddResource", "CloseResFile", "GetResource", "DetachResource", "Confirm", "EnumerShell"})
            if (call.starts_with(std::string(name) + "("))
                calls.push_back(call);
    return calls;
}

TEST(TemplateStore, TheFolderIsMadeWhenThePluginStarts) {
    const Player player;
    player.playToEnd("start\n");
    EXPECT_TRUE(fs::is_directory(templateFolder(player)));
    EXPECT_TRUE(fs::is_empty(templateFolder(player)));
}

TEST(TemplateStore, SavingUnderANewNameAsksNothingAndCreatesTheFile) {
    const Player player;
    const auto played = player.playToEnd(
        inEditor(kAddStop + "journal on\n" + saveAs("Sunset") + "print journal\nprint templates\n"));
    const json resource{{"type", "TMPL"}, {"id", 0}, {"name", ""}, {"bytes", 118}};
    EXPECT_EQ(played["templates"], json::array({{{"name", "Sunset.GRD"},
                                                 {"type", "GTMP"},
                                                 {"creator", "*Kst"},
                                                 {"dataBytes", 0},
                                                 {"resources", json::array({resource})}}}));
    EXPECT_EQ(stopsStoredIn(templateFolder(player), "Sunset.GRD"), 3U);
    EXPECT_THAT(storeCalls(played["journal"]),
                ElementsAre("CurResFile()", "FSMakeFSSpec(-1, 3, \"Sunset.GRD\")", "FSpDelete()",
                            "FSpCreateResFile(709587828, 1196707152, 0)", "FSpOpenResFile(2)",
                            "UseResFile(2)", "AddResource(1414352972, 0, \"\")", "CloseResFile(2)",
                            "UseResFile(1)", "EnumerShell(-1, 3, 1196707152)"));
}

TEST(TemplateStore, SavingUnderAnExistingNameAsksAndDecliningLeavesTheOldFileByteForByte) {
    const Player player;
    player.playToEnd(inEditor(saveAs("Sunset")));
    const auto before = contentOf(templateFolder(player) / "._Sunset.GRD");
    const auto played = player.playToEnd(inEditor(
        kAddStop + "choose 9 1\nset 4 \"Sunset\"\nhit 1\nprint dialog\nanswer no\nprint templates\n"));
    EXPECT_EQ(played.all("dialog")[0]["id"], 9320);
    EXPECT_EQ(played["templates"].size(), 1U);
    EXPECT_EQ(contentOf(templateFolder(player) / "._Sunset.GRD"), before);
    EXPECT_FALSE(fs::exists(player.folder() / "data/Trash"));
}

TEST(TemplateStore, ConfirmingReplacesTheFileAndTheOldOneLiesInTheTrash) {
    const Player player;
    player.playToEnd(inEditor(saveAs("Sunset")));
    player.playToEnd(inEditor(kAddStop + saveAs("Sunset") + "answer yes\n"));
    EXPECT_EQ(stopsStoredIn(templateFolder(player), "Sunset.GRD"), 3U);
    const auto trash = player.folder() / "data/Trash";
    EXPECT_EQ(stopsStoredIn(trash / "files", "Sunset.GRD"), 2U);
    EXPECT_TRUE(contentOf(trash / "info/Sunset.GRD.trashinfo").find("/Gradient%20Templates/Sunset.GRD\n") !=
                std::string::npos);
    EXPECT_EQ(entriesIn(templateFolder(player)), 2U);
}

TEST(TemplateStore, AReplacedFileKeepsNothingElseThatTheOldOneHeld) {
    const Player player;
    dropTemplate(player, "Sunset.GRD", {1, 2, 3}, kTemplateType, classic::fourCharacters("Xtra"));
    writeContent(templateFolder(player) / "Sunset.GRD", "data of its own");
    const auto played = player.playToEnd(inEditor(saveAs("Sunset") + "answer yes\nprint templates\n"));
    EXPECT_EQ(played["templates"][0]["dataBytes"], 0);
    EXPECT_EQ(played["templates"][0]["resources"].size(), 1U);
    EXPECT_EQ(contentOf(player.folder() / "data/Trash/files/Sunset.GRD"), "data of its own");
}

TEST(TemplateStore, ANameThatCannotBeResolvedIsAskedAboutThoughNoFileExistsAndNothingIsWritten) {
    const Player player;
    writeContent(player.preferences() / "b.GRD", "outside");
    for (const char* name : {"a:b", ":b", "::b", "._b"}) {
        const auto played = player.play(
            inEditor(saveAs(name) + "print dialog\nanswer yes\nprint templates\nprint resourcefiles\n"));
        EXPECT_EQ(played.exitCode, 0) << played.messages;
        EXPECT_EQ(played.all("dialog")[0]["id"], 9320) << name;
        EXPECT_EQ(played["templates"], json::array()) << name;
        EXPECT_EQ(played["resourceFiles"], json({{"current", 1}, {"open", {1}}}));
    }
    EXPECT_EQ(contentOf(player.preferences() / "b.GRD"), "outside");
    EXPECT_EQ(entriesIn(templateFolder(player)), 0U);
}

TEST(TemplateStore, AnEmptyFolderListsNothing) {
    const auto played = Player().playToEnd(inEditor("print dialog\nprint templates\n"));
    EXPECT_THAT(offered(played.all("dialog")[0]), IsEmpty());
    EXPECT_EQ(played["templates"], json::array());
}

TEST(TemplateStore, LoadingOpensTheFileForReadingAndDetachesItsResource) {
    const Player player;
    player.playToEnd(inEditor(saveAs("Sunset")));
    const auto played =
        player.playToEnd("start\nnew 9 9\noptions\njournal on\nchoose 9 5\nprint journal\nhit 2\n");
    EXPECT_THAT(storeCalls(played["journal"]),
                ElementsAre("CurResFile()", "FSMakeFSSpec(-1, 3, \"Sunset.GRD\")", "FSpOpenResFile(1)",
                            "UseResFile(2)", "GetResource(1414352972, 0)", "DetachResource()",
                            "CloseResFile(2)", "UseResFile(1)"));
}

TEST(TemplateStore, ADeclinedSaveMakesTheFileCurrentAgainThatWasAndDoesNothingElse) {
    const Player player;
    const auto played = player.playToEnd(
        inEditor(saveAs("Sunset") + "journal on\n" + saveAs("Sunset") + "answer no\nprint journal\n"));
    EXPECT_THAT(storeCalls(played["journal"]),
                ElementsAre("CurResFile()", "FSMakeFSSpec(-1, 3, \"Sunset.GRD\")", "Confirm(9320)",
                            "UseResFile(1)", "EnumerShell(-1, 3, 1196707152)"));
}

TEST(TemplateStore, TheListingHoldsEveryTemplateFileUnderItsFullNameAndNoOther) {
    const Player player;
    const auto bytes = *classic::gradientToBytes(CGradientData());
    dropTemplate(player, "Sunset.GRD", bytes);
    dropTemplate(player, "no suffix", bytes);
    dropTemplate(player, "other type.GRD", bytes, classic::fourCharacters("TEXT"));
    writeContent(templateFolder(player) / "stray.GRD", "no header file");
    writeContent(templateFolder(player) / "._orphan.GRD", "no file");
    fs::create_directory(templateFolder(player) / "folder.GRD");
    const auto played = player.playToEnd(inEditor("print dialog\nprint templates\n"));
    EXPECT_THAT(offered(played.all("dialog")[0]), ElementsAre("no suffix", "Sunset.GRD"));
    EXPECT_THAT(namesIn(played["templates"]),
                ElementsAre("no suffix", "other type.GRD", "stray.GRD", "Sunset.GRD"));
    EXPECT_EQ(played["templates"][1]["type"], "TEXT");
}

TEST(TemplateStore, AFileDroppedInByHandShowsAtTheNextRebuild) {
    const Player player;
    player.playToEnd("start\n");
    dropTemplate(player, "Dropped.GRD", *classic::gradientToBytes(threeStopGradient()));
    const auto played = player.playToEnd(inEditor("print dialog\nchoose 9 5\n") +
                                         "add rect r 0 0 9 9\nclick 5 5\nprint object r\n");
    EXPECT_THAT(offered(played.all("dialog")[0]), ElementsAre("Dropped.GRD"));
    EXPECT_EQ(played["gradient"]["stops"],
              json({{0.0, 0, 0, 0}, {0.25, 65535, 0, 0}, {1.0, 65535, 65535, 65535}}));
}

TEST(TemplateStore, NoResourceFileStaysOpenAfterSavingLoadingListingAndDeleting) {
    const Player player;
    const auto played =
        player.playToEnd("print resourcefiles\n" + inEditor(saveAs("a") +
                                                            "print resourcefiles\nchoose 9 5\n"
                                                            "print resourcefiles\n" +
                                                            saveAs("a") + "answer no\nprint resourcefiles\n" +
                                                            deleteRows("1") + "print resourcefiles\n"));
    for (const auto& files : played.all("resourceFiles"))
        EXPECT_EQ(files["open"], json({1}));
}

TEST(TemplateStore, AFileWithoutTheResourceLeavesTheGradientAsItWas) {
    const Player player;
    dropTemplate(player, "other.GRD", *classic::gradientToBytes(CGradientData()), kTemplateType,
                 classic::fourCharacters("Xtra"));
    player.playToEnd("start\nnew 9 9\noptions\n" + kAddStop + "choose 9 5\n" + saveAs("after") + "hit 2\n");
    EXPECT_EQ(stopsStoredIn(templateFolder(player), "after.GRD"), 3U);
}

// Bytes that are no gradient give the default one; a file that cannot be read at all changes nothing and is
// named.
TEST(TemplateStore, ADamagedGradientGivesTheDefaultAndADamagedFileLeavesTheGradientAsItWas) {
    auto bytes = *classic::gradientToBytes(threeStopGradient());
    bytes[40] ^= 1;
    const Player player;
    dropTemplate(player, "1 flipped.GRD", bytes);
    for (const char* name : {"2 cut.GRD", "3 rubbish.GRD"})
        dropTemplate(player, name, *classic::gradientToBytes(threeStopGradient()));
    const auto header = contentOf(templateFolder(player) / "._2 cut.GRD");
    writeContent(templateFolder(player) / "._2 cut.GRD", header.substr(0, header.size() / 2));
    writeContent(templateFolder(player) / "._3 rubbish.GRD", std::string(300, '?'));
    const auto shown = player.playToEnd(inEditor("print dialog\n"));
    EXPECT_THAT(offered(shown["dialog"]), ElementsAre("1 flipped.GRD", "2 cut.GRD", "3 rubbish.GRD"));

    player.playToEnd(inEditor(kAddStop + "choose 9 5\n" + saveAs("zzz")));
    EXPECT_EQ(storedIn(templateFolder(player), "zzz.GRD"), *classic::gradientToBytes(CGradientData()));
    for (const auto& [entry, name] : {std::pair("6", "2 cut.GRD"), {"7", "3 rubbish.GRD"}}) {
        const auto played =
            player.play(inEditor(kAddStop + "choose 9 " + entry + "\n" + saveAs("zzz") + "answer yes\n"));
        EXPECT_EQ(played.exitCode, 0);
        EXPECT_THAT(played.messages, testing::HasSubstr(name));
        EXPECT_EQ(stopsStoredIn(templateFolder(player), "zzz.GRD"), 3U) << "the stop that was added is kept";
    }
}

TEST(TemplateStore, ADeletedTemplateLiesInTheTrash) {
    const Player player;
    const auto played = player.playToEnd(inEditor(saveAs("a") + kAddStop + saveAs("b") + saveAs("c") +
                                                  deleteRows("1 2") + "print dialog\nprint templates\n"));
    EXPECT_THAT(namesIn(played["templates"]), ElementsAre("c.GRD"));
    EXPECT_THAT(offered(played["dialog"]), ElementsAre("c.GRD"));
    const auto trash = player.folder() / "data/Trash/files";
    EXPECT_EQ(stopsStoredIn(trash, "a.GRD"), 2U);
    EXPECT_EQ(stopsStoredIn(trash, "b.GRD"), 3U);
    EXPECT_EQ(entriesIn(templateFolder(player)), 2U);
}

TEST(TemplateStore, WithoutAFolderOfTheirOwnScenariosLeaveNothingBehind) {
    const Player player;
    writeContent(player.folder() / "s.easel",
                 inEditor(saveAs("a") + saveAs("a") + "answer yes\n" + deleteRows("1")) + "quit\n");
    fs::create_directory(player.folder() / "tmp");
    ::setenv("TMPDIR", (player.folder() / "tmp").c_str(), 1);
    const auto played = player.run({"play", "s.easel", "--plugin", GRADIENT_MODULE});
    ::unsetenv("TMPDIR");
    EXPECT_EQ(played.exitCode, 0) << played.messages;
    EXPECT_TRUE(fs::is_empty(player.folder() / "tmp"));
    EXPECT_FALSE(fs::exists(player.folder() / "data"));
}

} // namespace
