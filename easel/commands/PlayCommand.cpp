// The command line of `easel play`.
#include "easel/commands/PlayCommand.h"

#include "easel/play/Play.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace easel::commands {

void addPlayCommand(CLI::App& app, int& exitCode) {
    CLI::App* command =
        app.add_subcommand("play", "Play a scenario: drive the program by a script, without a display");
    const auto request = std::make_shared<play::PlayRequest>();
    command->add_option("SCRIPT", request->file, "The scenario; - for standard input")
        ->required()
        ->type_name("");
    command
        ->add_option("--prefs", request->preferences,
                     "The folder for defaults and templates (default: a fresh one, removed afterwards)")
        ->type_name("FOLDER");
    command
        ->add_option("--plugin", request->plugin,
                     "The plug-in module (default: the one that came with the program)")
        ->type_name("MODULE");
    command->callback([request, &exitCode] {
        exitCode = static_cast<int>(play::playScenario(*request, std::cin, std::cout, std::cerr));
    });
}

} // namespace easel::commands
