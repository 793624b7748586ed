// Plays scenarios with the real program and the real plug-in, and gives back what they print.
#pragma once

#include "tests/support/TemporaryFolder.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>
#include <vector>

namespace tests {

struct Played {
    int exitCode = -1; // 128 and the signal's number for a program that a signal ended
    std::vector<nlohmann::json> answers;
    std::string messages; // standard error

    // The last answer that has this key, and its value. Fails the test and gives null if there is none.
    nlohmann::json operator[](const std::string& key) const;
    // All answers that have this key, their values in order.
    std::vector<nlohmann::json> all(const std::string& key) const;
};

// A folder with a scenario in it, its preferences, the desktop's data (in `data`) and whatever the scenario
// writes. Relative paths in scenarios start from it.
class Player {
  public:
    // Keeps defaults and templates from one play to the next.
    Player();

    const std::filesystem::path& folder() const { return folder_.path(); }
    const std::filesystem::path& preferences() const { return preferences_; }
    // The module to load; the real plug-in unless it is set.
    void setPlugin(const std::filesystem::path& module) { plugin_ = module; }

    // Plays the lines. The scenario is called `scenario.easel` in messages.
    Played play(const std::string& script) const;
    // The same, and a failure of the test if the scenario is not played to its end.
    Played playToEnd(const std::string& script) const;
    // Runs the program with these arguments in the folder, `input` being its standard input.
    Played run(const std::vector<std::string>& arguments, const std::string& input = {}) const;

  private:
    TemporaryFolder folder_;
    std::filesystem::path preferences_;
    std::filesystem::path plugin_;
};

// Plays lines in a folder of their own, to the end, with a drawing of 400 by 300 and the plug-in started.
Played playWithTool(const std::string& script);

} // namespace tests
