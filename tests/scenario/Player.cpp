// Runs the program as a child process.
#include "tests/scenario/Player.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <sys/wait.h>

namespace tests {

namespace {

constexpr const char* kScenarioName = "scenario.easel";

std::string quoted(const std::string& word) {
    std::string result = "'";
    for (const char c : word)
        result += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return result + "'";
}

int exitCodeOf(int status) {
    constexpr int kSignalBase = 128;
    return WIFEXITED(status) ? WEXITSTATUS(status) : kSignalBase + WTERMSIG(status);
}

std::vector<nlohmann::json> answersIn(const std::string& text) {
    std::vector<nlohmann::json> answers;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        answers.push_back(nlohmann::json::parse(line));
    return answers;
}

} // namespace

nlohmann::json Played::operator[](const std::string& key) const {
    const auto values = all(key);
    if (values.empty())
        ADD_FAILURE() << "nothing was printed under \"" << key << "\"";
    return values.empty() ? nlohmann::json() : values.back();
}

std::vector<nlohmann::json> Played::all(const std::string& key) const {
    std::vector<nlohmann::json> values;
    for (const nlohmann::json& answer : answers)
        if (answer.contains(key))
            values.push_back(answer.at(key));
    return values;
}

Player::Player() : preferences_(folder_ / "preferences"), plugin_(GRADIENT_MODULE) {
    std::filesystem::create_directory(preferences_);
}

Played Player::run(const std::vector<std::string>& arguments, const std::string& input) const {
    const std::filesystem::path out = folder_ / ".out";
    const std::filesystem::path err = folder_ / ".err";
    const std::filesystem::path in = folder_ / ".in";
    writeContent(in, input);
    std::string command = "cd " + quoted(folder().string()) +
                          " && XDG_DATA_HOME=" + quoted((folder_ / "data").string()) + " exec " +
                          quoted(EASEL_PROGRAM);
    for (const std::string& argument : arguments)
        command += ' ' + quoted(argument);
    command += " <" + quoted(in.string()) + " >" + quoted(out.string()) + " 2>" + quoted(err.string());
    Played played;
    played.exitCode = exitCodeOf(std::system(command.c_str()));
    played.answers = answersIn(contentOf(out));
    played.messages = contentOf(err);
    return played;
}

Played Player::play(const std::string& script) const {
    writeContent(folder_ / kScenarioName, script);
    return run({"play", kScenarioName, "--prefs", preferences_.string(), "--plugin", plugin_.string()});
}

Played Player::playToEnd(const std::string& script) const {
    Played played = play(script);
    EXPECT_EQ(played.exitCode, 0) << played.messages;
    EXPECT_EQ(played.messages, "");
    return played;
}

Played playWithTool(const std::string& script) {
    return Player().playToEnd("new 400 300\nstart\n" + script);
}

} // namespace tests
