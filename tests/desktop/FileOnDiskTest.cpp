// What others do to the file of a drawing while it is open.
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <sys/stat.h>
#include <thread>

namespace desktop {
namespace {

using testing::HasSubstr;
using testing::Not;
namespace fs = std::filesystem;

const char* const kChanged = "data-easel-record";
// A shape that only the other program's version of the drawing has, and its color.
constexpr std::uint32_t kTheirs = 0x0a64f0;

class FileOnDiskTest : public DesktopTest {
  protected:
    void change() {
        screen().click(onScreen(160, 110));
        EXPECT_TRUE(colorVanishes(kPlain));
    }

    std::string theirs() const {
        std::string text = contents(drawing());
        return text.insert(text.rfind("</svg>"),
                           "<rect x='300' y='40' width='150' height='140' fill='#0a64f0'/>\n");
    }

    // As most programs save: whole, under the name of the old file.
    void changeByAnother() {
        const std::string text = theirs();
        std::ofstream(folder() / "theirs") << text;
        fs::rename(folder() / "theirs", drawing());
    }

    // A notice takes its place above the canvas.
    void waitForNotice() {
        const int before = top_;
        EXPECT_TRUE(eventually([&] { return top() > before; })) << "a notice";
    }
    void rememberPlace() {
        EXPECT_TRUE(eventually([&] { return top() > 0; }));
        top_ = top();
    }

    // Its buttons stand at the right, the last one puts it away. A click that comes while the notice still
    // finds its place is lost; once one was heard, the notice gives its place back.
    void pressInNotice(int fromRight) {
        const Area window = drawingWindow().content;
        int lowest = 0;
        EXPECT_TRUE(eventually([&] {
            lowest = std::max(lowest, top());
            screen().click({window.right - 50 - 98 * fromRight, window.top + 73});
            return eventually([&] { return top() > 0 && top() < lowest; }, 500ms);
        }));
    }

    // How many windows say that they use a file.
    std::ptrdiff_t marksOfUse() const {
        const fs::directory_iterator marks(folder() / "state" / "kestrad" / "open");
        return std::distance(begin(marks), end(marks));
    }

  private:
    // Of the drawing on the screen; 0 while it is not there.
    int top() const {
        const auto marker = screen().picture().find(kMarker);
        return marker ? marker->top : 0;
    }
    int top_ = 0;
};

TEST_F(FileOnDiskTest, ASaveOverWhatAnotherProgramWroteAsks) {
    startWithDrawing();
    change();
    changeByAnother();
    const std::string others = contents(drawing());
    screen().key("ctrl+s");
    EXPECT_THAT(messageOf(waitForDialog("Easel")), HasSubstr("was changed by another program"));
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Easel"));
    EXPECT_EQ(contents(drawing()), others);
    screen().key("ctrl+s");
    waitForDialog("Easel");
    screen().key("alt+o");
    EXPECT_TRUE(eventually([&] { return contents(drawing()).find(kChanged) != std::string::npos; }));
    EXPECT_EQ(quit(), 0) << "it is saved";
}

TEST_F(FileOnDiskTest, AChangeIsNoticedAndReadAgain) {
    startWithDrawing();
    rememberPlace();
    changeByAnother();
    waitForNotice();
    pressInNotice(3);
    waitForColor(kTheirs);
    EXPECT_EQ(quit(), 0) << "nothing is unsaved";
}

TEST_F(FileOnDiskTest, KeepingOnesOwnSavesOverTheChangeWithoutAskingAgain) {
    startWithDrawing();
    rememberPlace();
    changeByAnother();
    waitForNotice();
    pressInNotice(2);
    waitForWindow("drawing.svg*");
    EXPECT_THAT(saved(), Not(HasSubstr("0a64f0")));
    EXPECT_EQ(quit(), 0);
}

TEST_F(FileOnDiskTest, OnesOwnSaveIsNoNews) {
    startWithDrawing();
    change();
    rememberPlace();
    EXPECT_THAT(saved(), HasSubstr(kChanged));
    std::this_thread::sleep_for(600ms);
    screen().key("ctrl+z");
    waitForColor(kPlain);
    EXPECT_NE(saved(), "");
    EXPECT_FALSE(hasWindow("Easel")) << "no question";
    EXPECT_EQ(quit(), 0);
}

TEST_F(FileOnDiskTest, ADeletedFileIsNoticedAndCanBeSavedAgain) {
    startWithDrawing();
    rememberPlace();
    fs::remove(drawing());
    waitForNotice();
    pressInNotice(2);
    waitForWindow("drawing.svg*");
    EXPECT_THAT(saved(), HasSubstr("id=\"marker\""));
    EXPECT_EQ(quit(), 0);
}

TEST_F(FileOnDiskTest, AWriteProtectedFileIsNotReplacedWithoutAWord) {
    startWithDrawing();
    change();
    rememberPlace();
    const std::string before = contents(drawing());
    ::chmod(drawing().c_str(), 0444);
    waitForNotice();
    screen().key("ctrl+s");
    EXPECT_THAT(messageOf(waitForDialog("Easel")), HasSubstr("write-protected"));
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Easel"));
    EXPECT_EQ(contents(drawing()), before);
    screen().key("ctrl+s");
    waitForDialog("Easel");
    screen().key("alt+r");
    EXPECT_TRUE(eventually([&] { return contents(drawing()).find(kChanged) != std::string::npos; }));
    EXPECT_EQ(quit(), 0);
}

TEST_F(FileOnDiskTest, TwoProgramsWithOneFileKnowOfEachOther) {
    startWithDrawing();
    rememberPlace();
    Process second({EASEL_PROGRAM, drawing().string()}, environment(), folder() / "second.log");
    EXPECT_TRUE(eventually([&] { return windowsWith("drawing.svg") == 2; }));
    // Its window has the name before it has the file.
    EXPECT_TRUE(eventually([&] { return marksOfUse() == 2; }));
    std::this_thread::sleep_for(1s);
    second.signal(SIGTERM);
    EXPECT_EQ(second.wait(10s), 0);
    EXPECT_TRUE(eventually([&] { return windowsWith("drawing.svg") == 1; }));
    waitForNotice();
    EXPECT_EQ(quit(), 0);
}

TEST_F(FileOnDiskTest, WhatWasOpenedCanBeHadBackAfterASave) {
    const std::string before = contents(drawing());
    startWithDrawing();
    change();
    EXPECT_THAT(saved(), HasSubstr(kChanged));
    chooseInMenu({"alt+f", "v"});
    waitForDialog("Easel");
    screen().key("Tab");
    screen().key("space");
    waitForColor(kPlain);
    waitForWindow("drawing.svg*");
    EXPECT_EQ(saved(), before);
    EXPECT_EQ(quit(), 0);
}

} // namespace
} // namespace desktop
