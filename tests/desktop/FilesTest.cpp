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
    screen().key("ctrl+o");
    answerFileDialog("Open", other);
    waitForWindow("other.svg");
    EXPECT_EQ(quit(), 0) << "all windows close";
}

TEST_F(FilesTest, AFileThatIsNoDrawingIsNamedWithTheReasonAndNothingElseChanges) {
    const std::filesystem::path bad = folder() / "bad.svg";
    std::ofstream(bad) << "this is no drawing";
    start({bad.string()});
    const Window box = waitForWindow("Easel");
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
    const Window progress = waitForWindow("Easel");
    EXPECT_FALSE(screen().picture().find(kPlain)) << "the window is there before its drawing";
    screen().close(progress);
    EXPECT_TRUE(vanishes("Easel"));
    EXPECT_EQ(waitForWindow("Untitled").id, drawing.id) << "an empty drawing stays";
    EXPECT_EQ(quit(), 0);
}

TEST_F(FilesTest, WithoutAUsablePluginTheProgramSaysWhyAndRuns) {
    const std::filesystem::path module = folder() / "NoPlugin.so";
    std::ofstream(module) << "not a module";
    start({"--plugin", module.string(), drawing().string()});
    const Window box = waitForWindow("Easel");
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
    const Window box = waitForWindow("Easel");
    EXPECT_THAT(messageOf(box), HasSubstr("drawing.svg"));
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Easel"));
    screen().key("ctrl+q");
    waitForWindow("Easel"); // still asks about the changes
    screen().key("alt+n");
    screen().key("Escape");
    std::filesystem::remove_all(drawing());
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
