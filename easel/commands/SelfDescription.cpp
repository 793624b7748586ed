// Manual pages into a folder, completions to standard output.
#include "easel/commands/SelfDescription.h"

#include "easel/commands/Completions.h"
#include "easel/commands/Failure.h"
#include "easel/commands/ManualPages.h"
#include "easel/files/AtomicFile.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace easel::commands {
namespace {

files::Result<> writeManual(const CommandText& program, const std::filesystem::path& folder) {
    std::vector<CommandText> pages = program.commands;
    pages.push_back(program);
    for (const CommandText& command : pages) {
        const auto file = folder / (command.pathWith("-") + ".1");
        if (auto written = files::replaceFile(file, manualPage(program, command, EASEL_VERSION)); !written)
            return written;
    }
    return {};
}

} // namespace

void addSelfDescription(CLI::App& app, int& exitCode) {
    // A group without a name keeps a command out of --help, and of what is made here.
    CLI::App* manual = app.add_subcommand("manual", "Write the manual pages into a folder")->group("");
    const auto folder = std::make_shared<std::string>();
    manual->add_option("FOLDER", *folder, "The folder, which has to be there")->required();
    manual->callback([&app, &exitCode, folder] {
        if (const auto written = writeManual(describe(app), *folder); !written)
            exitCode = fail(written.error());
    });

    CLI::App* completion = app.add_subcommand("completion", "Print a completion script")->group("");
    const auto shell = std::make_shared<std::string>();
    completion->add_option("SHELL", *shell, "bash or zsh")->required()->check(CLI::IsMember({"bash", "zsh"}));
    completion->callback([&app, shell] {
        std::cout << (*shell == "bash" ? bashCompletion(describe(app)) : zshCompletion(describe(app)));
    });
}

} // namespace easel::commands
