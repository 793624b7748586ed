// The command line of Easel.
#include "easel/commands/Failure.h"
#include "easel/commands/MemoryFailure.h"
#include "easel/commands/PlayCommand.h"
#include "easel/commands/RenderCommand.h"
#include "easel/commands/SelfDescription.h"
#include "easel/commands/TemplatesCommand.h"
#include "easel/commands/WindowCommand.h"

#include <CLI/CLI.hpp>

#include <csignal>
#include <cstdio>
#include <exception>
#include <new>

namespace {

int run(int argc, char** argv) {
    CLI::App app{"Easel, a drawing application with a gradient tool", "easel"};
    app.set_version_flag("--version", "easel " EASEL_VERSION);
    easel::window::StartUp startUp;
    startUp.version = EASEL_VERSION;
    easel::commands::addWindowOptions(app, startUp);
    int exitCode = 0;
    easel::commands::addPlayCommand(app, exitCode);
    easel::commands::addRenderCommand(app, exitCode);
    easel::commands::addTemplatesCommand(app, exitCode);
    easel::commands::addSelfDescription(app, exitCode);
    // Last, as a command takes over the words that the program has when it is added.
    app.footer("Files:\n"
               "  $XDG_CONFIG_HOME/kestrad (usually ~/.config/kestrad)\n"
               "The current gradient, the templates and the settings of the window.");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : easel::commands::kFailed;
    }
    const bool hadCommand = !app.get_subcommands().empty();
    return hadCommand ? exitCode : easel::commands::runWindow(startUp, argc, argv);
}

} // namespace

int main(int argc, char** argv) {
    // A file that may not grow further is an error of the write, to be told like any other.
    std::signal(SIGXFSZ, SIG_IGN);
    easel::commands::explainLackOfMemory();
    try {
        return run(argc, argv);
    } catch (const std::bad_alloc&) {
        std::fputs(easel::commands::kNotEnoughMemory, stderr);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "easel: %s\n", error.what());
    }
    return easel::commands::kFailed;
}
