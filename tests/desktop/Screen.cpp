// Starts the server, and plays its mouse and keyboard through the XTEST extension.
#include "tests/desktop/Screen.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <map>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <unistd.h>

namespace desktop {
namespace {

constexpr std::chrono::milliseconds kStep{4};
constexpr int kStepPixels = 6;

void pause(std::chrono::milliseconds time) {
    std::this_thread::sleep_for(time);
}

// The server chooses a free number itself and writes it to a pipe when it is ready.
std::string startServer(std::unique_ptr<Process>& server, const std::string& output,
                        const std::string& size) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0)
        throw std::runtime_error("no pipe");
    server = std::make_unique<Process>(std::vector<std::string>{"Xvfb", "-displayfd", std::to_string(ends[1]),
                                                                "-screen", "0", size + "x24", "-nolisten",
                                                                "tcp", "-noreset"},
                                       std::map<std::string, std::string>{}, output);
    close(ends[1]);
    std::string number;
    char digit = 0;
    while (read(ends[0], &digit, 1) == 1 && digit != '\n')
        number += digit;
    close(ends[0]);
    if (number.empty())
        throw std::runtime_error("Xvfb does not start; see " + output);
    return ":" + number;
}

// A window may go away between being listed and being asked about.
int ignoreError(Display*, XErrorEvent*) {
    return 0;
}

} // namespace

Screen::Screen(const std::string& outputFolder, const std::string& size)
    : name_(startServer(server_, outputFolder + "/xvfb.log", size)) {
    XSetErrorHandler(ignoreError);
    display_ = XOpenDisplay(name_.c_str());
    if (!display_)
        throw std::runtime_error("cannot connect to " + name_);
    int opcode = 0;
    int error = 0;
    int major = XkbMajorVersion;
    int minor = XkbMinorVersion;
    XkbQueryExtension(display_, &opcode, &bellEvent_, &error, &major, &minor);
    XkbSelectEvents(display_, XkbUseCoreKbd, XkbBellNotifyMask, XkbBellNotifyMask);
    // On a busy machine a key may be down for long before the test gets to let it go.
    XAutoRepeatOff(display_);
    listener_ = XCreateSimpleWindow(display_, DefaultRootWindow(display_), 0, 0, 1, 1, 0, 0, 0);
    manager_ = std::make_unique<Process>(std::vector<std::string>{"openbox", "--sm-disable", "--config-file",
                                                                  SOURCE_DIR "/tests/desktop/openbox.xml"},
                                         std::map<std::string, std::string>{{"DISPLAY", name_}},
                                         outputFolder + "/openbox.log");
    XFlush(display_);
    waitForManager();
}

// The manager announces itself before it answers windows, and one that it misses then never shows. So it
// counts as there once it has taken a window in.
void Screen::waitForManager() const {
    const Atom state = XInternAtom(display_, "WM_STATE", False);
    const ::Window trial = XCreateSimpleWindow(display_, DefaultRootWindow(display_), 0, 0, 9, 9, 0, 0, 0);
    const auto taken = [&] {
        int count = 0;
        Atom* properties = XListProperties(display_, trial, &count);
        const bool found = std::find(properties, properties + count, state) != properties + count;
        if (properties)
            XFree(properties);
        return found;
    };
    bool there = false;
    for (int tries = 0; tries < 100 && !there; ++tries) {
        XMapWindow(display_, trial);
        for (int looks = 0; looks < 10 && !there; ++looks) {
            pause(std::chrono::milliseconds(10));
            there = taken();
        }
        if (!there)
            XUnmapWindow(display_, trial);
    }
    XDestroyWindow(display_, trial);
    if (!there)
        throw std::runtime_error("the window manager does not start");
}

Screen::~Screen() {
    if (display_)
        XCloseDisplay(display_);
}

void Screen::settle() const {
    XSync(display_, False);
    pause(kStep);
}

void Screen::moveTo(Spot spot) {
    XTestFakeMotionEvent(display_, -1, spot.x, spot.y, CurrentTime);
    pointer_ = spot;
    settle();
}

void Screen::glideTo(Spot spot) {
    const Spot from = pointer_;
    const int far = std::max(std::abs(spot.x - from.x), std::abs(spot.y - from.y));
    const int steps = std::max(1, far / kStepPixels);
    for (int i = 1; i <= steps; ++i)
        moveTo({from.x + (spot.x - from.x) * i / steps, from.y + (spot.y - from.y) * i / steps});
}

void Screen::press(Button button) {
    XTestFakeButtonEvent(display_, static_cast<unsigned>(button), True, CurrentTime);
    settle();
}

void Screen::release(Button button) {
    XTestFakeButtonEvent(display_, static_cast<unsigned>(button), False, CurrentTime);
    settle();
}

void Screen::click(Spot spot, Button button) {
    moveTo(spot);
    press(button);
    release(button);
}

void Screen::doubleClick(Spot spot) {
    click(spot);
    click(spot);
}

void Screen::drag(const std::vector<Spot>& spots, Button button) {
    moveTo(spots.front());
    press(button);
    for (const Spot spot : spots)
        glideTo(spot);
    release(button);
}

std::uint8_t Screen::keycode(const std::string& name) const {
    const KeySym symbol = XStringToKeysym(name.c_str());
    const KeyCode code = symbol == NoSymbol ? KeyCode{0} : XKeysymToKeycode(display_, symbol);
    if (code == 0)
        throw std::runtime_error("no key " + name);
    return code;
}

void Screen::keyDown(const std::string& name) {
    XTestFakeKeyEvent(display_, keycode(name), True, CurrentTime);
    settle();
}

void Screen::keyUp(const std::string& name) {
    XTestFakeKeyEvent(display_, keycode(name), False, CurrentTime);
    settle();
}

void Screen::tap(std::uint8_t code) {
    XTestFakeKeyEvent(display_, code, True, CurrentTime);
    XTestFakeKeyEvent(display_, code, False, CurrentTime);
    settle();
}

void Screen::key(const std::string& combination) {
    static const std::map<std::string, std::string> modifiers{
        {"ctrl", "Control_L"}, {"shift", "Shift_L"}, {"alt", "Alt_L"}};
    std::istringstream words(combination);
    std::vector<std::string> held;
    std::string word;
    while (std::getline(words, word, '+')) {
        const auto modifier = modifiers.find(word);
        if (modifier == modifiers.end())
            break;
        keyDown(modifier->second);
        held.push_back(modifier->second);
    }
    tap(keycode(word));
    for (auto name = held.rbegin(); name != held.rend(); ++name)
        keyUp(*name);
}

void Screen::type(const std::string& ascii) {
    for (const char character : ascii)
        typeCharacter(static_cast<unsigned char>(character));
}

void Screen::typeCharacter(char32_t character) {
    // Symbols of Latin-1 are their own numbers; others are numbered from a fixed offset.
    const KeySym symbol = character < 0x100 ? character : (0x01000000 | character);
    KeyCode code = XKeysymToKeycode(display_, symbol);
    if (code == 0) {
        // A key that no keyboard has is given the character.
        int lowest = 0;
        int highest = 0;
        XDisplayKeycodes(display_, &lowest, &highest);
        code = static_cast<KeyCode>(highest);
        std::array<KeySym, 2> symbols{symbol, symbol};
        XChangeKeyboardMapping(display_, code, 2, symbols.data(), 1);
        XSync(display_, False);
        pause(std::chrono::milliseconds(200));
    }
    const bool shifted = XkbKeycodeToKeysym(display_, code, 0, 0) != symbol;
    if (shifted)
        keyDown("Shift_L");
    tap(code);
    if (shifted)
        keyUp("Shift_L");
}

} // namespace desktop
