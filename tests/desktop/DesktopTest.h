// A test that runs Easel in a window: its folders, its drawing, and the steps that many tests take.
#pragma once

#include "tests/desktop/Screen.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace desktop {

using namespace std::chrono_literals;

// Colors that nothing but a test's drawing shows.
inline constexpr std::uint32_t kPlain = 0x12c84a;  // a rectangle without a gradient
inline constexpr std::uint32_t kMarker = 0xc832fa; // a circle without a gradient, near the right edge

// The numbers of the editor's items, and where they are in its content.
struct EditorItems {
    static constexpr Area ramp{24, 264, 424, 292}; // of the colors
    static constexpr Spot position{384, 344};
    static constexpr Spot swatch{64, 344};
    static constexpr Area preview{24, 72, 424, 248};
    static constexpr Spot templates{120, 32};
    static constexpr Spot linear{280, 32};
    static constexpr Spot radial{370, 32};
    static constexpr Spot ok{284, 400};
    static constexpr Spot cancel{380, 400};
};

class DesktopTest : public testing::Test {
  protected:
    static void SetUpTestSuite();
    void SetUp() override;
    // Leaves a picture of the screen after a failure.
    void TearDown() override;

    static Screen& screen() { return *screen_; }
    // For tests that want a screen of another size. Whoever starts one ends it.
    static void startScreen(const std::string& size);
    static void endScreen() { screen_.reset(); }
    const std::filesystem::path& folder() const { return folder_; }
    std::filesystem::path configuration() const { return folder_ / "config"; }
    std::filesystem::path drawing() const { return folder_ / "drawing.svg"; }

    // Writes the test's drawing: 600 by 400, the shapes named above and #grad, a rectangle from (60, 220) to
    // (260, 360) with a linear gradient, and #round, an ellipse around (420, 290) with a radial one.
    void writeDrawing() const;
    std::string contents(const std::filesystem::path& file) const;

    // Starts the program and waits until its window is there and painted.
    void start(const std::vector<std::string>& arguments,
               const std::map<std::string, std::string>& changes = {});
    void startWithDrawing(const std::map<std::string, std::string>& environment = {});
    Process& program() { return *program_; }
    // What programs need to appear on the test's screen and nowhere else.
    std::map<std::string, std::string> environment() const;
    // Ctrl-Q, and the exit code.
    int quit();

    // Waits until it holds; false if it never does.
    static bool eventually(const std::function<bool()>& condition, std::chrono::milliseconds atMost = 10s);
    // Waits for a window whose title begins so. Fails the test if there is none.
    Window waitForWindow(const std::string& title);
    // The same for one that takes the keyboard.
    Window waitForDialog(const std::string& title);
    bool hasWindow(const std::string& title) const;
    std::size_t windowsWith(const std::string& title) const;
    // Keys that are pressed between the end of a window and when another one has the keyboard are lost, so
    // that is waited for as well, if there is any.
    bool vanishes(const std::string& title);
    // Waits until a window whose title begins so has the keyboard, which comes a little after the window.
    bool getsKeyboard(const std::string& title = {});
    bool hasKeyboard(const std::string& title) const;
    // The window of the drawing, whatever is unsaved in it.
    Window drawingWindow() { return waitForWindow("drawing.svg"); }

    // Waits until a color is on the screen, and gives its place.
    Area waitForColor(std::uint32_t color);
    bool colorVanishes(std::uint32_t color);
    // Where a point of the test's drawing is on the screen, found by the shapes of known color.
    Spot onScreen(double h, double v);

    // Option-click at a point of the drawing; the editor's window.
    Window openEditor(double h, double v);
    // Opens the popup of templates, which then hears the keyboard.
    void openTemplates(const Window& editor);
    void closeEditorWith(const std::string& key);
    static Spot in(const Window& window, Spot spot) {
        return Spot{window.content.left, window.content.top} + spot;
    }
    // A place on the editor's ramp.
    static Spot onRamp(const Window& editor, double fraction);
    // What the position field holds, through the clipboard.
    std::string positionField();

    // Presses one key after the other once a window hears them: the menu's, and those of the entries.
    void chooseInMenu(const std::vector<std::string>& keys);
    // Waits for a file dialog and answers it with a path.
    void answerFileDialog(const std::string& title, const std::filesystem::path& file);
    // Waits for the window that shows progress, and for its bar to move.
    void waitForMovingProgress();
    // What a message box says, through the clipboard.
    std::string messageOf(const Window& box);

    // Saves with Ctrl-S and gives the file's contents once it has changed.
    std::string saved();

  private:
    void answerStarterOffer() const;

    static std::unique_ptr<Screen> screen_;
    std::filesystem::path folder_;
    std::unique_ptr<Process> program_;
    std::optional<Area> plainArea_;
};

} // namespace desktop
