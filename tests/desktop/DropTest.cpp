// Files dragged from another program and dropped on the window.
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

#include <fstream>

namespace desktop {
namespace {

using testing::HasSubstr;

namespace fs = std::filesystem;

class DropTest : public DesktopTest {
  protected:
    fs::path copyOfDrawing(const char* name) const {
        fs::copy_file(drawing(), folder() / name);
        return folder() / name;
    }
    // Drags files to a spot of the screen and lets go there once the pointer says that they are welcome.
    void drop(const std::vector<fs::path>& files, Spot target) {
        std::vector<std::string> command{DRAG_SOURCE};
        for (const fs::path& file : files)
            command.push_back(file.string());
        source_ = std::make_unique<Process>(command, environment(), (folder() / "drag.log").string());
        const Window window = waitForWindow("Files to drag");
        screen().moveTo(window.content.middle());
        const unsigned long arrow = screen().cursorSerial();
        screen().press();
        screen().glideTo({window.content.middle().x, window.content.bottom + 60});
        EXPECT_TRUE(eventually([&] { return screen().cursorSerial() != arrow; })) << "the drag begins";
        const unsigned long unwelcome = screen().cursorSerial();
        screen().glideTo(target);
        EXPECT_TRUE(eventually([&] { return screen().cursorSerial() != unwelcome; }))
            << "the files are welcome";
        screen().release();
    }

  private:
    std::unique_ptr<Process> source_;
};

TEST_F(DropTest, AFileDroppedOnTheCanvasOpensInThePlaceOfAnUntouchedNewDrawing) {
    const fs::path file = copyOfDrawing("other.svg");
    start({});
    const Window untitled = waitForWindow("Untitled");
    drop({file}, untitled.content.middle());
    waitForWindow("other.svg");
    waitForColor(kPlain);
    EXPECT_TRUE(vanishes("Untitled"));
}

TEST_F(DropTest, SeveralFilesDroppedOnTheToolsOpenBesideADrawingWithUnsavedChanges) {
    const std::vector<fs::path> files{copyOfDrawing("one.svg"), copyOfDrawing("two.svg")};
    startWithDrawing();
    screen().click(onScreen(160, 110));
    EXPECT_TRUE(colorVanishes(kPlain));
    const Window window = waitForWindow("drawing.svg*");
    drop(files, {window.content.left + 40, window.content.bottom - 200});
    waitForWindow("one.svg");
    waitForWindow("two.svg");
    EXPECT_TRUE(hasWindow("drawing.svg*")) << "nothing is lost";
}

TEST_F(DropTest, OfSeveralFilesTheOneThatIsNoDrawingIsNamedWithTheReasonAndTheOthersOpen) {
    const fs::path bad = folder() / "bad.svg";
    std::ofstream(bad) << "this is no drawing";
    const fs::path good = copyOfDrawing("good.svg");
    startWithDrawing();
    drop({bad, good}, drawingWindow().content.middle());
    EXPECT_THAT(messageOf(waitForDialog("Easel")), HasSubstr("bad.svg: "));
    screen().key("Escape");
    waitForWindow("good.svg");
}

} // namespace
} // namespace desktop
