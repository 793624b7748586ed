// Opening and saving, and what goes wrong with it.
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

#include <fstream>

namespace desktop {
namespace {

using testing::HasSubstr;

class FilesTest : public DesktopTest {};

TEST_F(FilesTest, ADrawingIsOpenedThroughTheFileMenu) {
    const std::filesystem::path other = folder() / "other.svg";
    std::filesystem::copy_file(drawing(), other);
    startWithDrawing();
    EXPECT_TRUE(getsKeyboard("drawing.svg"));
    screen().key("ctrl+o");
    answerFileDialog("Open", other);
    waitForWindow("other.svg");
    EXPECT_EQ(quit(), 0) << "all windows close";
}

TEST_F(FilesTest, OneFileDialogIsOpenAtATime) {
    const std::filesystem::path other = folder() / "other.svg";
    std::filesystem::copy_file(drawing(), other);
    start({drawing().string(), other.string()});
    const Window behind = waitForWindow("drawing.svg");
    waitForWindow("other.svg");
    EXPECT_TRUE(getsKeyboard("other.svg"));
    screen().key("ctrl+o");
    const Window dialog = waitForDialog("Open");
    // The keyboard goes to a window that is clicked, but for the dialog, which takes it back.
    screen().click({behind.content.left + 4, behind.content.bottom - 60});
    screen().key("ctrl+o");
    screen().key("ctrl+shift+s");
    EXPECT_TRUE(getsKeyboard("Open"));
    screen().close(dialog);
    EXPECT_TRUE(vanishes("Open"));
    EXPECT_FALSE(hasWindow("Save As"));
    EXPECT_EQ(quit(), 0);
}

TEST_F(FilesTest, AFileThatIsNoDrawingIsNamedWithTheReasonAndNothingElseChanges) {
    const std::filesystem::path bad = folder() / "bad.svg";
    std::ofstream(bad) << "this is no drawing";
    start({bad.string()});
    const Window box = waitForDialog("Easel");
    EXPECT_THAT(messageOf(box), HasSubstr("bad.svg"));
    screen().key("Escape");
    waitForWindow("Untitled");
    EXPECT_EQ(quit(), 0);
    EXPECT_EQ(contents(bad), "this is no drawing");
}

TEST_F(FilesTest, ADrawingThatTakesLongToReadIsWaitedForInItsOwnWindowAndCanBeCancelled) {
    {
        std::ofstream file(folder() / "long.svg");
        file << "<svg xmlns='http://www.w3.org/2000/svg' width='600' height='400'>\n";
        for (int i = 0; i < 400000; ++i)
            file << "<circle cx='300' cy='200' r='" << i % 100 << "' fill='#12c84a'/>\n";
        file << "</svg>\n";
    }
    start({(folder() / "long.svg").string()});
    const Window drawing = waitForWindow("long.svg");
    waitForDialog("Easel");
    EXPECT_FALSE(screen().picture().find(kPlain)) << "the window is there before its drawing";
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Easel"));
    EXPECT_EQ(waitForWindow("Untitled").id, drawing.id) << "an empty drawing stays";
    EXPECT_EQ(quit(), 0);
}

TEST_F(FilesTest, WithoutAUsablePluginTheProgramSaysWhyAndRuns) {
    const std::filesystem::path module = folder() / "NoPlugin.so";
    std::ofstream(module) << "not a module";
    start({"--plugin", module.string(), drawing().string()});
    const Window box = waitForDialog("Easel");
    EXPECT_THAT(messageOf(box), HasSubstr("NoPlugin.so"));
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Easel"));
    waitForColor(kPlain);
    EXPECT_EQ(quit(), 0);
}

TEST_F(FilesTest, AFailedSaveKeepsTheDrawingUnsaved) {
    startWithDrawing();
    screen().click(onScreen(160, 110));
    EXPECT_TRUE(colorVanishes(kPlain));
    std::filesystem::remove(drawing());
    std::filesystem::create_directory(drawing());
    screen().key("ctrl+s");
    const Window box = waitForDialog("Easel");
    EXPECT_THAT(messageOf(box), HasSubstr("drawing.svg"));
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Easel"));
    screen().key("ctrl+q");
    waitForDialog("Easel"); // still asks about the changes
    screen().key("alt+n");
    screen().key("Escape");
    std::filesystem::remove_all(drawing());
}

TEST_F(FilesTest, SavingUnderTheNameOfAnotherFileAsksAndLeavesTheOldOneAlone) {
    const std::filesystem::path other = folder() / "other.svg";
    std::ofstream(other) << "other";
    startWithDrawing();
    const std::string before = contents(drawing());
    screen().click(onScreen(160, 110));
    EXPECT_TRUE(colorVanishes(kPlain));
    screen().key("ctrl+shift+s");
    answerFileDialog("Save As", other);
    EXPECT_TRUE(eventually([&] { return windowsWith("Save As") == 2; })) << "the file dialog's question";
    EXPECT_EQ(contents(other), "other");
    screen().key("alt+y");
    waitForWindow("other.svg");
    EXPECT_THAT(contents(other), HasSubstr("data-easel-record"));
    EXPECT_EQ(contents(drawing()), before);
    EXPECT_EQ(quit(), 0) << "nothing is unsaved";
}

TEST_F(FilesTest, ASaveToAPlaceThatCannotBeWrittenLeavesTheDrawingUnsavedUnderItsName) {
    // A link to itself cannot be written by anybody.
    const std::filesystem::path nowhere = folder() / "nowhere.svg";
    std::filesystem::create_symlink(nowhere, nowhere);
    startWithDrawing();
    screen().click(onScreen(160, 110));
    EXPECT_TRUE(colorVanishes(kPlain));
    screen().key("ctrl+shift+s");
    answerFileDialog("Save As", nowhere);
    EXPECT_THAT(messageOf(waitForDialog("Easel")), HasSubstr("nowhere.svg\u201d could not be saved: "));
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Easel"));
    EXPECT_TRUE(hasWindow("drawing.svg*"));
}

TEST_F(FilesTest, RecentDrawingsAreListedLatestFirstAfterARestartAndOneThatIsGoneLeavesTheList) {
    const std::filesystem::path first = folder() / "first.svg";
    const std::filesystem::path second = folder() / "second.svg";
    std::filesystem::copy_file(drawing(), first);
    std::filesystem::copy_file(drawing(), second);
    start({first.string(), second.string()});
    waitForWindow("first.svg");
    waitForWindow("second.svg");
    ASSERT_EQ(quit(), 0);

    startWithDrawing();
    // The entries are drawing, second, first; the menu opens on its first one.
    chooseInMenu({"alt+f", "r", "Down", "Return"});
    waitForWindow("second.svg");
    EXPECT_TRUE(getsKeyboard("second.svg"));
    // Now second, drawing, first.
    std::filesystem::remove(first);
    chooseInMenu({"alt+f", "r", "Down", "Down", "Return"});
    EXPECT_THAT(messageOf(waitForDialog("Easel")), HasSubstr("first.svg: "));
    screen().key("Escape");
    const std::filesystem::path settings = configuration() / "kestrad" / "easel.conf";
    EXPECT_TRUE(eventually([&] { return contents(settings).find("first.svg") == std::string::npos; }));
    EXPECT_THAT(contents(settings), HasSubstr("second.svg"));
}

TEST_F(FilesTest, ALargeDrawingShowsItsProgressAndIsCancelledLeavingTheOneThatWasOpen) {
    const std::filesystem::path large = folder() / "large.svg";
    {
        std::ofstream svg(large);
        svg << R"(<svg xmlns="http://www.w3.org/2000/svg" width="600" height="400">)";
        for (int i = 0; i < 800'000; ++i)
            svg << "<path d='M1 1h9v9z'/>";
        svg << "</svg>";
    }
    startWithDrawing();
    EXPECT_TRUE(getsKeyboard("drawing.svg"));
    screen().key("ctrl+o");
    answerFileDialog("Open", large);
    waitForMovingProgress();
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Easel"));
    EXPECT_TRUE(getsKeyboard("drawing.svg"));
    waitForColor(kPlain);
    EXPECT_FALSE(hasWindow("large.svg"));
    EXPECT_EQ(quit(), 0);
}

TEST_F(FilesTest, WhatIsNotShownIsNamedOnceUntilItIsPutAway) {
    std::ofstream(drawing()) << R"(<svg xmlns="http://www.w3.org/2000/svg" width="600" height="400">
  <script>1</script><script>2</script>
  <rect x="60" y="40" width="200" height="140" fill="#12c84a"/></svg>)";
    start({drawing().string()});
    const Area below = waitForColor(kPlain);
    const Area& window = drawingWindow().content;
    screen().drag({{window.left + 100, window.top + 62}, {window.right - 140, window.top + 84}});
    std::string text;
    EXPECT_TRUE(eventually([&] {
        screen().key("ctrl+c");
        return !(text = screen().clipboard()).empty();
    }));
    EXPECT_EQ(text, "Scripts are kept in the file but not run.");
    screen().click({window.right - 50, window.top + 73});
    EXPECT_TRUE(eventually([&] { return waitForColor(kPlain).top < below.top; }))
        << "the canvas takes its place";
}

TEST_F(FilesTest, WithoutADisplayTheProgramSaysSoAndEndsWithCodeTwo) {
    start({drawing().string()}, {{"DISPLAY", ""}, {"QT_QPA_PLATFORM", ""}});
    EXPECT_EQ(program().wait(10s), 2);
    EXPECT_THAT(contents(folder() / "easel.log"), HasSubstr("no display"));
}

TEST_F(FilesTest, ADisplayThatCannotBeReachedIsSaidAndEndsWithCodeTwo) {
    start({drawing().string()}, {{"DISPLAY", ":4711"}});
    EXPECT_EQ(program().wait(10s), 2);
    EXPECT_THAT(contents(folder() / "easel.log"), HasSubstr("no window can be opened"));
}

} // namespace
} // namespace desktop
