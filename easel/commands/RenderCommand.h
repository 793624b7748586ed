// `easel render`: a drawing as a picture, without a display.
#pragma once

namespace CLI {
class App;
}

namespace easel::commands {

// Adds the command. When the command line asks for it, it is run and its exit code stored in `exitCode`.
void addRenderCommand(CLI::App& app, int& exitCode);

} // namespace easel::commands
