// Finds the window's library beside the program and hands over to it.
#include "easel/commands/WindowCommand.h"

#include "easel/files/OwnLibrary.h"
#include "easel/memory/MemoryReserve.h"

#include <CLI/CLI.hpp>

#include <cstdlib>
#include <iostream>
#include <string>

namespace easel::commands {
namespace {

bool isSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value && *value != '\0';
}

bool hasDisplay() {
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY") || isSet("QT_QPA_PLATFORM");
}

} // namespace

void addWindowOptions(CLI::App& app, window::StartUp& startUp) {
    app.add_option("DRAWING", startUp.files, "Drawings (SVG) to open, each in a window of its own")
        ->type_name("");
    app.add_option("--plugin", startUp.plugin,
                   "The plug-in module to load instead of the one that came with the program")
        ->type_name("MODULE");
    app.add_option("--prefs", startUp.preferences, "The folder for defaults, templates and settings")
        ->type_name("FOLDER");
}

int runWindow(const window::StartUp& startUp, int argc, char** argv) {
    if (!hasDisplay()) {
        std::cerr << "easel: there is no display to open a window on (neither DISPLAY nor WAYLAND_DISPLAY is "
                     "set).\n"
                     "The commands play, render and templates work without one; see easel --help.\n";
        return 2;
    }
    // The libraries of the desktop want memory from the first on.
    const memory::MemoryReserve reserve;
    const auto run = files::loadedFrom(EASEL_WINDOW_LIBRARY, window::kRunWindowSymbol);
    if (!run) {
        std::cerr << "easel: there is no window: " << run.error().reason << "\n";
        return 2;
    }
    return reinterpret_cast<window::RunWindowFunction>(*run)(startUp, argc, argv);
}

} // namespace easel::commands
