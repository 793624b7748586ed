// What the command line says of itself, as plain data: manual pages and completions are made of it.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace easel::commands {

struct OptionText {
    std::vector<std::string> names; // with their dashes
    std::string value;              // what follows it; empty if nothing does
    std::string help;
};

struct ArgumentText {
    std::string name;
    std::string help;
    bool required = false;
    bool repeats = false;
};

struct CommandText {
    std::vector<std::string> path; // the program's name and those of the commands that lead here
    std::string summary;
    std::string footer; // what --help says last, in lines
    std::vector<OptionText> options;
    std::vector<ArgumentText> arguments;
    std::vector<CommandText> commands;

    const std::string& name() const { return path.back(); }
    std::string pathWith(const std::string& separator) const;
};

// All that --help shows of the program and of each command; hidden ones are left out.
CommandText describe(const CLI::App& app, const std::vector<std::string>& parents = {});

} // namespace easel::commands
