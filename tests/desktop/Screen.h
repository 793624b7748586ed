// An X server of the test's own: its mouse, its keyboard, its windows and what they show.
#pragma once

#include "tests/desktop/Process.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct _XDisplay;

namespace desktop {

struct Spot {
    int x = 0;
    int y = 0;

    friend bool operator==(const Spot&, const Spot&) = default;
    friend Spot operator+(Spot a, Spot b) { return {a.x + b.x, a.y + b.y}; }
};

struct Area {
    int left = 0;
    int top = 0;
    int right = 0; // one past the last pixel
    int bottom = 0;

    friend bool operator==(const Area&, const Area&) = default;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    bool contains(Spot spot) const {
        return spot.x >= left && spot.x < right && spot.y >= top && spot.y < bottom;
    }
    Spot middle() const { return {(left + right) / 2, (top + bottom) / 2}; }
};

// 0xRRGGBB, row by row.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;

    std::uint32_t at(Spot spot) const {
        return pixels[static_cast<std::size_t>(spot.y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(spot.x)];
    }
    // The smallest area that holds all pixels of exactly this color.
    std::optional<Area> find(std::uint32_t color) const;
};

struct Window {
    unsigned long id = 0;
    std::string title;
    Area content; // on the screen
};

enum class Button : unsigned { Left = 1, Middle = 2, WheelUp = 4, WheelDown = 5 };

class Screen {
  public:
    // Starts the server and a window manager. The size is in pixels, as in "800x600".
    explicit Screen(const std::string& outputFolder, const std::string& size = "1400x1000");
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    // The value of DISPLAY for programs that are to appear here.
    const std::string& name() const { return name_; }

    void moveTo(Spot spot);
    void press(Button button = Button::Left);
    void release(Button button = Button::Left);
    void click(Spot spot, Button button = Button::Left);
    void doubleClick(Spot spot);
    // Press at the first spot, moves in small steps through the others, release at the last.
    void drag(const std::vector<Spot>& spots, Button button = Button::Left);
    // Moves in small steps.
    void glideTo(Spot spot);

    // Names are those of X: "a", "Return", "Control_L".
    void keyDown(const std::string& name);
    void keyUp(const std::string& name);
    // "ctrl+shift+z", "Escape"
    void key(const std::string& combination);
    void type(const std::string& ascii);
    // Any single character, also one that is on no key.
    void typeCharacter(char32_t character);

    Picture picture() const;
    // Visible windows, as the window manager lists them.
    std::vector<Window> windows() const;
    std::optional<Window> window(const std::function<bool(const Window&)>& wanted) const;
    // Whether a menu, a list or the like, which no window manager has a hand in, covers that spot.
    bool popupAt(Spot spot) const;
    // The window that has the keyboard, by the window manager's account.
    unsigned long activeWindow() const;
    // Asks a window to close, as its close button does.
    void close(const Window& window);
    // Serial number of the picture that the pointer has now.
    unsigned long cursorSerial() const;
    // How often the bell has rung since the start.
    int bells();
    // The text that a program has put into the clipboard; empty if there is none.
    std::string clipboard();
    void savePicture(const std::string& file) const;

  private:
    std::uint8_t keycode(const std::string& name) const;
    void tap(std::uint8_t code);
    void settle() const;
    void waitForManager() const;

    std::unique_ptr<Process> server_;
    std::unique_ptr<Process> manager_;
    std::string name_;
    _XDisplay* display_ = nullptr;
    unsigned long listener_ = 0;
    int bellEvent_ = 0;
    int bells_ = 0;
    Spot pointer_;
};

} // namespace desktop
