// Sets up the screen once and fresh folders for each test.
#include "tests/desktop/DesktopTest.h"

#include <algorithm>
#include <csignal>
#include <fstream>
#include <sstream>
#include <thread>

namespace desktop {

namespace fs = std::filesystem;

// How much longer everything may take than it does on a quiet machine.
constexpr int kPatience = 3;

std::unique_ptr<Screen> DesktopTest::screen_;

void DesktopTest::SetUpTestSuite() {
    fs::create_directories(TEST_OUTPUT_DIR);
    if (!screen_)
        screen_ = std::make_unique<Screen>(TEST_OUTPUT_DIR);
}

void DesktopTest::startScreen(const std::string& size) {
    fs::create_directories(TEST_OUTPUT_DIR);
    screen_ = std::make_unique<Screen>(TEST_OUTPUT_DIR, size);
}

void DesktopTest::SetUp() {
    std::string pattern = (fs::temp_directory_path() / "easel-desktop-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder_ = pattern;
    for (const char* name : {"config", "data", "home"})
        fs::create_directories(folder_ / name);
    answerStarterOffer();
    writeDrawing();
}

void DesktopTest::TearDown() {
    if (HasFailure()) {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        const std::string base = std::string(TEST_OUTPUT_DIR) + "/" + test->name();
        screen().savePicture(base + ".ppm");
        std::error_code error;
        fs::copy_file(folder_ / "easel.log", base + ".log", fs::copy_options::overwrite_existing, error);
    }
    for (const char* modifier : {"Control_L", "Shift_L"})
        screen().keyUp(modifier);
    screen().release();
    program_.reset();
    fs::remove_all(folder_);
}

// The question would stand above the drawing in every test.
void DesktopTest::answerStarterOffer() const {
    fs::create_directories(configuration() / "kestrad");
    std::ofstream(configuration() / "kestrad" / "easel.conf") << "[General]\nstarterTemplatesAnswered=true\n";
}

void DesktopTest::writeDrawing() const {
    std::ofstream(drawing()) << R"svg(<svg xmlns="http://www.w3.org/2000/svg" width="600" height="400">
  <defs>
    <linearGradient id="l"><stop offset="0" stop-color="#203080"/><stop offset="1" stop-color="#f0d060"/></linearGradient>
    <radialGradient id="r" gradientUnits="userSpaceOnUse" cx="420" cy="290" r="138.924440"><stop offset="0" stop-color="#ffffff"/><stop offset="1" stop-color="#a02040"/></radialGradient>
  </defs>
  <rect id="plain" x="60" y="40" width="200" height="140" fill="#12c84a"/>
  <circle id="marker" cx="540" cy="60" r="30" fill="#c832fa"/>
  <rect id="grad" x="60" y="220" width="200" height="140" fill="url(#l)"/>
  <ellipse id="round" cx="420" cy="290" rx="120" ry="70" fill="url(#r)"/>
</svg>
)svg";
}

std::string DesktopTest::contents(const fs::path& file) const {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

std::map<std::string, std::string> DesktopTest::environment() const {
    return {{"DISPLAY", screen().name()},
            {"WAYLAND_DISPLAY", ""},
            {"QT_QPA_PLATFORM", "xcb"},
            {"QT_SCALE_FACTOR", ""},
            {"QT_QPA_PLATFORMTHEME", ""},
            {"DBUS_SESSION_BUS_ADDRESS", "disabled:"},
            {"LC_ALL", "C.UTF-8"},
            {"HOME", folder_ / "home"},
            {"XDG_CONFIG_HOME", configuration()},
            {"XDG_DATA_HOME", folder_ / "data"},
            {"XDG_STATE_HOME", folder_ / "state"}};
}

void DesktopTest::start(const std::vector<std::string>& arguments,
                        const std::map<std::string, std::string>& changes) {
    std::vector<std::string> command{EASEL_PROGRAM};
    command.insert(command.end(), arguments.begin(), arguments.end());
    std::map<std::string, std::string> variables = environment();
    for (const auto& [name, value] : changes)
        variables[name] = value;
    program_ = std::make_unique<Process>(command, variables, folder_ / "easel.log");
}

void DesktopTest::startWithDrawing(const std::map<std::string, std::string>& environment) {
    start({drawing().string()}, environment);
    plainArea_ = waitForColor(kPlain);
    waitForColor(kMarker);
    // The window manager keeps a press back that comes while it hands the keyboard over.
    getsKeyboard();
}

int DesktopTest::quit() {
    getsKeyboard();
    screen().key("ctrl+q");
    const int code = program_->wait(kPatience * 10s).value_or(-1);
    // The server takes a program's windows off the screen a little after its end.
    EXPECT_TRUE(colorVanishes(kPlain));
    return code;
}

bool DesktopTest::eventually(const std::function<bool()>& condition, std::chrono::milliseconds atMost) {
    const auto end = std::chrono::steady_clock::now() + kPatience * atMost;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(25ms);
    }
    return true;
}

bool DesktopTest::hasWindow(const std::string& title) const {
    return screen().window([&](const Window& window) { return window.title.starts_with(title); }).has_value();
}

std::size_t DesktopTest::windowsWith(const std::string& title) const {
    const std::vector<Window> windows = screen().windows();
    return static_cast<std::size_t>(std::count_if(windows.begin(), windows.end(), [&](const Window& window) {
        return window.title.starts_with(title);
    }));
}

Window DesktopTest::waitForWindow(const std::string& title) {
    std::optional<Window> found;
    Area before;
    // A new window is moved once more by the window manager.
    const bool there = eventually([&] {
        found = screen().window([&](const Window& window) { return window.title.starts_with(title); });
        if (!found)
            return false;
        const bool still = before.left == found->content.left && before.top == found->content.top;
        before = found->content;
        return still;
    });
    if (!there)
        throw std::runtime_error("there is no window " + title);
    return *found;
}

Window DesktopTest::waitForDialog(const std::string& title) {
    Window window = waitForWindow(title);
    EXPECT_TRUE(getsKeyboard(title)) << title;
    return window;
}

bool DesktopTest::vanishes(const std::string& title) {
    return eventually([&] { return !hasWindow(title); }) &&
           eventually([&] { return screen().windows().empty() || hasKeyboard({}); });
}

bool DesktopTest::hasKeyboard(const std::string& title) const {
    return screen()
        .window([&](const Window& each) {
            return each.id == screen().activeWindow() && each.title.starts_with(title);
        })
        .has_value();
}

bool DesktopTest::getsKeyboard(const std::string& title) {
    return eventually([&] { return hasKeyboard(title); });
}

Area DesktopTest::waitForColor(std::uint32_t color) {
    std::optional<Area> area;
    if (!eventually([&] { return (area = screen().picture().find(color)).has_value(); }))
        throw std::runtime_error("a color does not show");
    return *area;
}

bool DesktopTest::colorVanishes(std::uint32_t color) {
    return eventually([&] { return !screen().picture().find(color); });
}

Spot DesktopTest::onScreen(double h, double v) {
    // The rectangle of known color begins at (60, 40) and is 200 wide.
    const double scale = plainArea_->width() / 200.0;
    return {static_cast<int>(plainArea_->left + (h - 60) * scale),
            static_cast<int>(plainArea_->top + (v - 40) * scale)};
}

Window DesktopTest::openEditor(double h, double v) {
    screen().moveTo(onScreen(h, v));
    screen().keyDown("Control_L");
    screen().click(onScreen(h, v));
    screen().keyUp("Control_L");
    const Window editor = waitForDialog("Gradient");
    // A mouse that comes before it listens is not heard. It does by the time the preview's black frame shows.
    EXPECT_TRUE(eventually([&] {
        const Area& preview = EditorItems::preview;
        const Picture shown = screen().picture();
        for (int y = preview.top - 4; y < preview.top + 4; ++y)
            if (shown.at(in(editor, {preview.left + 40, y})) == 0)
                return true;
        return false;
    }));
    return editor;
}

void DesktopTest::openTemplates(const Window& editor) {
    screen().click(in(editor, EditorItems::templates));
    EXPECT_TRUE(eventually([&] {
        return screen().popupAt(in(editor, {EditorItems::preview.left, EditorItems::preview.top}));
    }));
}

void DesktopTest::closeEditorWith(const std::string& key) {
    EXPECT_TRUE(getsKeyboard("Gradient"));
    screen().key(key);
    EXPECT_TRUE(vanishes("Gradient"));
}

Spot DesktopTest::onRamp(const Window& editor, double fraction) {
    const Area& ramp = EditorItems::ramp;
    return in(editor, {ramp.left + static_cast<int>(ramp.width() * fraction), ramp.middle().y});
}

std::string DesktopTest::positionField() {
    screen().key("ctrl+c");
    std::this_thread::sleep_for(100ms);
    return screen().clipboard();
}

void DesktopTest::chooseInMenu(const std::vector<std::string>& keys) {
    getsKeyboard();
    for (const std::string& key : keys)
        screen().key(key);
}

void DesktopTest::answerFileDialog(const std::string& title, const fs::path& file) {
    waitForDialog(title);
    screen().key("ctrl+a");
    screen().type(file.string());
    screen().key("Return");
}

void DesktopTest::waitForMovingProgress() {
    const Area content = waitForDialog("Easel").content;
    const auto bar = [&] {
        const Picture shown = screen().picture();
        std::vector<std::uint32_t> pixels;
        for (int x = content.left; x < content.right; ++x)
            pixels.push_back(shown.at({x, content.middle().y}));
        return pixels;
    };
    const auto first = bar();
    EXPECT_TRUE(eventually([&] { return bar() != first; }));
    EXPECT_TRUE(hasWindow("Easel")) << "what is being done must take longer for this test";
}

std::string DesktopTest::messageOf(const Window& box) {
    std::string text;
    eventually([&] {
        screen().click({(box.content.left + box.content.right) / 2 + 20, box.content.top + 24});
        screen().key("ctrl+a");
        screen().key("ctrl+c");
        return !(text = screen().clipboard()).empty();
    });
    return text;
}

std::string DesktopTest::saved() {
    const std::string before = contents(drawing());
    getsKeyboard("drawing.svg");
    screen().key("ctrl+s");
    eventually([&] { return contents(drawing()) != before; }, 1s);
    // What has to be written is marked in the title.
    eventually([&] { return contents(drawing()) != before || !hasWindow("drawing.svg*"); });
    return contents(drawing());
}

} // namespace desktop
