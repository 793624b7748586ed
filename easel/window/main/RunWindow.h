// The one door between the command line and the desktop: no type of the window system passes through it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace easel::window {

// What the command line asked of the window. Empty paths stand for the usual places.
struct StartUp {
    std::string version;
    std::vector<std::filesystem::path> files;
    std::filesystem::path plugin;
    std::filesystem::path preferences;
};

// The name and the type of the one function that the window's library exports. It shows a window for each
// file (or an empty one), runs until the last is closed, and returns the program's exit code: 0, or 2 if
// there is no display.
inline constexpr const char* kRunWindowSymbol = "easelRunWindow";
using RunWindowFunction = int (*)(const StartUp& startUp, int argc, char** argv);

} // namespace easel::window

extern "C" int easelRunWindow(const easel::window::StartUp& startUp, int argc, char** argv);
