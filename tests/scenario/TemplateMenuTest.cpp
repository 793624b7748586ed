// The editor's popup of templates: saving, loading, deleting, on real files.
#include "tests/scenario/Editor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace {

using nlohmann::json;
using namespace tests;

// Saves what is in the open editor under that name.
std::string save(const std::string& name) {
    return "choose 9 1\nset 4 \"" + name + "\"\nhit 1\n";
}

// The entries after the four fixed ones.
std::vector<std::string> entriesIn(const json& dialog) {
    const json menu = itemOf(dialog, kTemplates)["menu"];
    return {menu.begin() + 4, menu.end()};
}

int popupIn(const json& dialog) {
    return itemOf(dialog, kTemplates)["value"];
}

class TemplateMenu : public testing::Test {
  protected:
    // Plays lines in the editor on two stops, black and white, and cancels it.
    Played edit(const std::string& script) const { return editOn(kTwoStops, script + "hit 2\n"); }
    Played editOn(const std::string& gradient, const std::string& script) const {
        return player_.playToEnd("new 400 300\nstart\n" + openEditorOn(gradient) + script + "quit\n");
    }
    // The popup's entries, as the editor shows them when it opens.
    std::vector<std::string> entries() const { return entriesIn(edit("print dialog\n")["dialog"]); }
    // The stops that the template in entry 5 gives.
    json stopsOfFirstTemplate() const {
        return editOn(kThreeStops, "choose 9 5\nhit 1\nprint object r\n")["gradient"]["stops"];
    }
    std::filesystem::path onlyHeaderFile() const {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(player_.preferences()))
            if (entry.path().filename().string().starts_with("._") && entry.path().extension() == ".GRD")
                return entry.path();
        ADD_FAILURE() << "no template is on disk";
        return {};
    }

    Player player_;
};

TEST_F(TemplateMenu, AGradientSavedUnderANameIsAFileAndAnEntryAfterTheFixedOnes) {
    const Played played = edit(save("Sunset") + "print dialog\nprint templates\n");
    EXPECT_THAT(entriesIn(played["dialog"]), testing::ElementsAre("Sunset.GRD"));
    EXPECT_EQ(popupIn(played["dialog"]), 4);
    ASSERT_EQ(played["templates"].size(), 1u);
    const json file = played["templates"][0];
    EXPECT_EQ(file["name"], "Sunset.GRD");
    EXPECT_EQ(file["type"], "GTMP");
    EXPECT_EQ(file["creator"], "*Kst");
    EXPECT_EQ(file["dataBytes"], 0);
    ASSERT_EQ(file["resources"].size(), 1u);
    EXPECT_EQ(file["resources"][0]["type"], "TMPL");
    EXPECT_EQ(file["resources"][0]["id"], 0);
    EXPECT_THAT(entries(), testing::ElementsAre("Sunset.GRD")) << "and the next time too";
}

TEST_F(TemplateMenu, ATemplateGivesBackTheWholeGradientOnOk) {
    const std::string gradient = "2 33 0.25 0.75 0.5 0.125 0.1:1,2,3 0.25:40000,50000,60000 0.9:65535,0,7";
    const json saved = editOn(gradient, save("All") + "hit 1\nprint object r\n")["gradient"];
    json loaded = editOn(kThreeStops, "choose 9 5\nhit 1\nprint object r\n")["gradient"];
    loaded["resource"] = saved["resource"];
    EXPECT_EQ(loaded, saved);
}

TEST_F(TemplateMenu, ALoadedTemplateIsKeptOnlyOnOk) {
    edit(save("One"));
    const Played played = editOn(kThreeStops, "choose 9 5\nhit 2\nprint object r\n");
    EXPECT_EQ(played["gradient"]["stops"].size(), 3u);
}

TEST_F(TemplateMenu, LoadingMakesTheFirstStopActiveAndShowsAndSelectsItsPosition) {
    editOn("1 0 0.5 0.5 0.5 0.5 0.25:1,2,3 1:0,0,0", save("One") + "hit 2\n");
    const Played played =
        editOn(kThreeStops,
               "click item 4 206 10\nchoose 9 5\nprint dialog\nhit 6\nprint dialog\ncolor cancel\nhit 2\n");
    const json field = itemOf(played.all("dialog")[0], kPosition);
    EXPECT_EQ(field["text"], "25.00");
    EXPECT_EQ(field["selection"], json({0, 5}));
    EXPECT_EQ(played.all("dialog")[1]["color"], json({1, 2, 3}));
}

TEST_F(TemplateMenu, ALoadedTemplateStaysShownUntilAStopIsEdited) {
    edit(save("One") + save("Two"));
    const auto popupAfter = [&](const std::string& script) {
        return popupIn(edit("choose 9 6\n" + script + "print dialog\n")["dialog"]);
    };
    EXPECT_EQ(popupAfter(""), 6);
    for (const std::string keeps : {"hit 11\n", "hit 10\n", "click item 7 10 10\n", "hit 3\n", "hit 8\n",
                                    "hit 12\n", "choose 9 6\n", "hit 9\n"})
        EXPECT_EQ(popupAfter(keeps), 6) << keeps;
    for (const std::string resets :
         {"click item 4 6 10\n", "hit 5\n", "type \"5\"\n", "hit 6\ncolor cancel\n"})
        EXPECT_EQ(popupAfter(resets), 4) << resets;
}

TEST_F(TemplateMenu, ChoosingTheNeutralEntryDoesNothing) {
    const Played played =
        edit("print dialog\njournal on\nchoose 9 4\nprint dialog\nprint journal\njournal off\n");
    EXPECT_EQ(played.all("dialog")[1], played.all("dialog")[0]);
    EXPECT_THAT(played["journal"], testing::ElementsAre("GetPopMenuSelectedItem(9)", "ModalDialog()"));
}

TEST_F(TemplateMenu, ThePopupTakesEveryEntryThatARebuildAdded) {
    std::string script;
    for (int i = 0; i < 12; ++i)
        script += save(std::string("T").append(std::to_string(i)));
    const Played played = edit(script + "choose 9 16\nprint dialog\n");
    EXPECT_EQ(popupIn(played["dialog"]), 16);
    EXPECT_EQ(entriesIn(played["dialog"]).size(), 12u);
}

TEST_F(TemplateMenu, NamesAreShownCharacterForCharacter) {
    const std::vector<std::string> names{"a;b", "(off", "x-", "-", "a/B!c<d^e", "\u00e9t\u00e9 &co",
                                         "T",   "...."};
    std::string script;
    for (const std::string& name : names)
        script += save(name);
    std::vector<std::string> expected;
    for (const std::string& name : names)
        expected.push_back(name + ".GRD");
    EXPECT_THAT(entriesIn(edit(script + "print dialog\n")["dialog"]),
                testing::UnorderedElementsAreArray(expected));
    EXPECT_THAT(entries(), testing::UnorderedElementsAreArray(expected));
}

// The host reads menu syntax in the text that is appended, or may.
TEST_F(TemplateMenu, NamesAreSetAndNotAppended) {
    const Played played = edit(save("a;b") + save("(c") + "journal on\n" + save("d") + "print journal\n");
    const std::vector<std::string> journal = played["journal"];
    std::vector<std::string> rebuild;
    for (const std::string& call : journal)
        if (call.find("Menu") != std::string::npos && !call.starts_with("GetPopMenu"))
            rebuild.push_back(call);
    EXPECT_THAT(rebuild, testing::ElementsAre(
                             "CountMenuItems()", "DeleteMenuItem(5)", "DeleteMenuItem(5)",
                             "AppendMenu(\"Temp\")", "CountMenuItems()", "SetMenuItemText(5, \"(c.GRD\")",
                             "AppendMenu(\"Temp\")", "CountMenuItems()", "SetMenuItemText(6, \"a;b.GRD\")",
                             "AppendMenu(\"Temp\")", "CountMenuItems()", "SetMenuItemText(7, \"d.GRD\")"));
}

TEST_F(TemplateMenu, AnEmptyNameSavesNothing) {
    const Played played = edit("choose 9 1\nhit 1\nprint dialog\nprint templates\n");
    EXPECT_EQ(played["templates"], json::array());
    EXPECT_EQ(popupIn(played["dialog"]), 1);
}

TEST_F(TemplateMenu, ThePopupIsResetOnceItIsRebuilt) {
    const std::vector<std::string> calls = edit("journal on\n" + save("a") + "print journal\n")["journal"];
    ASSERT_GE(calls.size(), 3U);
    EXPECT_THAT(
        std::vector(calls.end() - 3, calls.end()),
        ElementsAre(testing::StartsWith("SetMenuItemText("), "SetItemCtlValue(9, 4)", "ModalDialog()"));
}

TEST_F(TemplateMenu, ACancelledNameSavesNothingAndLeavesThePopupAtSave) {
    const Played played = edit("choose 9 1\ntype \"Nothing\"\nhit 2\nprint dialog\nprint templates\n");
    EXPECT_EQ(played["templates"], json::array());
    EXPECT_EQ(popupIn(played["dialog"]), 1);
}

TEST_F(TemplateMenu, TheNameHasNoMoreThanTwentyCharacters) {
    const Played played =
        edit("choose 9 1\ntype \"abcdefghijklmnopqrst\"\nprint dialog\ntype \"u\"\nprint dialog\n"
             "set 4 \"ABCDEFGHIJKLMNOPQRSTUVWXYZ\"\nprint dialog\nhit 1\nprint templates\n");
    const auto dialogs = played.all("dialog");
    EXPECT_EQ(dialogs[0]["id"], 5206);
    EXPECT_EQ(itemOf(dialogs[0], 4)["text"], "abcdefghijklmnopqrst");
    EXPECT_EQ(itemOf(dialogs[1], 4)["text"], "abcdefghijklmnopqrst") << "the last one is taken away at once";
    EXPECT_EQ(itemOf(dialogs[2], 4)["text"], "ABCDEFGHIJKLMNOPQRST");
    EXPECT_EQ(played["templates"][0]["name"], "ABCDEFGHIJKLMNOPQRST.GRD");
}

TEST_F(TemplateMenu, ATwentyFirstCharacterTypedInTheMiddlePushesTheLastOneOut) {
    const Played played = edit("choose 9 1\nset 4 \"abcdefghijklmnopqrst\"\nhit 2\nchoose 9 1\n"
                               "type \"abcdefghijklmnopqrs\"\ntype \"tuvw\"\nprint dialog\nhit 2\n");
    EXPECT_EQ(itemOf(played["dialog"], 4)["text"], "abcdefghijklmnopqrst");
}

TEST_F(TemplateMenu, TheNameDialogOpensEmptyOnTheFieldInFrontOfTheEditor) {
    const Played played = edit(save("One") + "choose 9 1\nprint dialog\nhit 2\nprint dialog\n");
    EXPECT_EQ(itemOf(played.all("dialog")[0], 4)["text"], "");
    EXPECT_EQ(played.all("dialog")[1]["id"], 5000);
}

TEST_F(TemplateMenu, ANameInUseAsksBeforeItReplaces) {
    edit(save("One"));
    const Played declined =
        editOn(kThreeStops, save("One") + "print dialog\nanswer no\nprint dialog\nhit 2\n");
    EXPECT_EQ(declined.all("dialog")[0]["id"], 9320);
    EXPECT_EQ(declined.all("dialog")[0]["kind"], "alert");
    EXPECT_EQ(declined.all("dialog")[0]["text"], "Replace the template of this name?");
    EXPECT_EQ(popupIn(declined.all("dialog")[1]), 4) << "also when nothing was saved";
    EXPECT_EQ(stopsOfFirstTemplate().size(), 2u);
    editOn(kThreeStops, save("One") + "answer yes\nhit 2\n");
    EXPECT_EQ(stopsOfFirstTemplate().size(), 3u);
    EXPECT_THAT(entries(), testing::ElementsAre("One.GRD"));
}

// Replaces a piece of the only template's header file by another of the same length.
void damage(const std::filesystem::path& header, const std::string& piece, const std::string& by) {
    std::fstream file(header, std::ios::in | std::ios::out | std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(file)), {});
    const std::size_t place = bytes.find(piece);
    ASSERT_NE(place, std::string::npos) << piece;
    file.seekp(static_cast<std::streamoff>(place));
    file.write(by.data(), static_cast<std::streamsize>(by.size()));
}

TEST_F(TemplateMenu, AFileWithoutATemplateInItLeavesTheGradientAndStillMakesTheFirstStopActive) {
    edit(save("One"));
    damage(onlyHeaderFile(), "TMPL", "TMPX");
    const Played played = editOn(
        kThreeStops, "click item 4 206 10\nchoose 9 5\nprint dialog\ntype \"10\"\nhit 1\nprint object r\n");
    EXPECT_EQ(popupIn(played["dialog"]), 5);
    EXPECT_EQ(itemOf(played["dialog"], kPosition)["text"], "0.00");
    EXPECT_EQ(itemOf(played["dialog"], kPosition)["selection"], json({0, 4}));
    EXPECT_EQ(played["gradient"]["stops"],
              json({{narrowed(0.1), 0, 0, 0}, {0.5, 65535, 0, 0}, {1.0, 65535, 65535, 65535}}));
}

TEST_F(TemplateMenu, DamagedBytesGiveTheDefaultGradient) {
    editOn(kThreeStops, save("One") + "hit 2\n");
    damage(onlyHeaderFile(), "KGRD", "XXXX");
    const Played played = editOn("2 0 0.1 0.2 0.1 0.2 0.3:1,2,3 0.6:4,5,6",
                                 "choose 9 5\nprint dialog\nhit 1\nprint object r\n");
    EXPECT_EQ(itemOf(played["dialog"], kPosition)["text"], "0.00");
    EXPECT_EQ(itemOf(played["dialog"], kLinear)["value"], 0)
        << "the kind's buttons are not part of the refresh";
    EXPECT_EQ(played["gradient"]["type"], 1);
    EXPECT_EQ(played["gradient"]["stops"], json({{0.0, 0, 0, 0}, {1.0, 65535, 65535, 65535}}));
}

TEST_F(TemplateMenu, SelectedTemplatesAreDeletedAndNoOthers) {
    const std::string fill = save("A") + save("B") + save("C") + save("D") + save("E");
    const Played played =
        edit(fill + "choose 9 2\nprint dialog\nselect 5 2 1\nprint dialog\ncommand ok\nprint dialog\n" +
             "answer yes\nprint dialog\nprint templates\n");
    const auto dialogs = played.all("dialog");
    EXPECT_EQ(dialogs[0]["id"], "delete");
    EXPECT_EQ(dialogs[0]["title"], "Delete Templates");
    EXPECT_EQ(dialogs[0]["selected"], json::array());
    const std::vector<std::string> rows = dialogs[0]["rows"];
    ASSERT_EQ(rows.size(), 5u);
    EXPECT_EQ(dialogs[1]["selected"], json({1, 2, 5}));
    EXPECT_EQ(dialogs[2]["id"], 9321);
    EXPECT_THAT(entriesIn(dialogs[3]), testing::ElementsAre(rows[2], rows[3]));
    EXPECT_EQ(popupIn(dialogs[3]), 4);
    EXPECT_EQ(played["templates"].size(), 2u);
}

TEST_F(TemplateMenu, ADeclinedDeletionLeavesTheListOpenWithItsSelection) {
    const Played played =
        edit(save("A") + save("B") + "choose 9 2\nselect 2\ncommand ok\nanswer no\nprint dialog\n" +
             "command cancel\nprint dialog\n");
    EXPECT_EQ(played.all("dialog")[0]["id"], "delete");
    EXPECT_EQ(played.all("dialog")[0]["selected"], json({2}));
    EXPECT_EQ(entriesIn(played.all("dialog")[1]).size(), 2u);
    EXPECT_EQ(popupIn(played.all("dialog")[1]), 4) << "reset after every run of the list";
}

TEST_F(TemplateMenu, OkWithNothingSelectedDoesNothing) {
    const Played played =
        edit(save("A") + "choose 9 2\ncommand ok\nprint dialog\nselect 1\nselect\ncommand ok\n" +
             "print dialog\ncommand cancel\nprint dialog\n");
    EXPECT_EQ(played.all("dialog")[0]["id"], "delete") << "no question is asked";
    EXPECT_EQ(played.all("dialog")[1]["id"], "delete");
    EXPECT_EQ(entriesIn(played.all("dialog")[2]).size(), 1u);
}

TEST_F(TemplateMenu, AnEmptyListHasNoRowsToAskFor) {
    const Played played = edit("choose 9 2\nprint dialog\ncommand ok\ncommand cancel\nprint dialog\n");
    EXPECT_EQ(played.all("dialog")[0]["rows"], json::array());
    EXPECT_EQ(popupIn(played.all("dialog")[1]), 4);
}

TEST_F(TemplateMenu, AListOfOneRowAtATimeCannotNameRowsThatAreNotThere) {
    const Played played = player_.play("new 400 300\nstart\noptions\nchoose 9 2\nselect 1\n");
    EXPECT_EQ(played.exitCode, 2);
    EXPECT_THAT(played.messages, testing::HasSubstr("scenario.easel:5: "));
}

} // namespace
