// The command line of Easel.
#include "easel/commands/PlayCommand.h"

#include <CLI/CLI.hpp>

int main(int argc, char** argv) {
    CLI::App app{"Easel, a drawing application with a gradient tool"};
    app.set_version_flag("--version", "easel " EASEL_VERSION);
    int exitCode = 0;
    easel::commands::addPlayCommand(app, exitCode);
    CLI11_PARSE(app, argc, argv);
    return exitCode;
}
