// `easel play`: drives the program by a script instead of a screen.
#pragma once

namespace CLI {
class App;
}

namespace easel::commands {

// Adds the command. When the command line asks for it, it is run and its exit code stored in `exitCode`.
void addPlayCommand(CLI::App& app, int& exitCode);

} // namespace easel::commands
