// The hidden commands by which a build makes manual pages and completions: `easel manual`, `easel
// completion`.
#pragma once

namespace CLI {
class App;
}

namespace easel::commands {

// Adds the commands, which look at the whole command line when they run.
void addSelfDescription(CLI::App& app, int& exitCode);

} // namespace easel::commands
