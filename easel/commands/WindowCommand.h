// Starts the desktop window, which lives in a library of its own so that the other commands need not load it.
#pragma once

#include "easel/window/main/RunWindow.h"

namespace CLI {
class App;
}

namespace easel::commands {

// Adds what the program takes when no command is given: the drawings to open, and where the plug-in and the
// preferences are.
void addWindowOptions(CLI::App& app, window::StartUp& startUp);

// Runs the window until the user quits; the result is the program's exit code. Says on standard error why it
// cannot.
int runWindow(const window::StartUp& startUp, int argc, char** argv);

} // namespace easel::commands
