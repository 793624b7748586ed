// The command line of `easel templates`.
#pragma once

namespace CLI {
class App;
}

namespace easel::commands {

// Adds the command; when it runs, it sets the exit code.
void addTemplatesCommand(CLI::App& app, int& exitCode);

} // namespace easel::commands
