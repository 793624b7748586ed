// Several programs at once on the same preferences.
#include "tests/scenario/Templates.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <random>
#include <thread>

using namespace tests;
namespace fs = std::filesystem;

namespace {

constexpr std::size_t kPrograms = 4;

// How long they quarrel: a moment, or as many seconds as the environment says.
std::chrono::milliseconds quarrelTime() {
    const char* const seconds = std::getenv("EASEL_QUARREL_SECONDS");
    return seconds ? std::chrono::seconds(std::atoi(seconds)) : std::chrono::milliseconds(1500);
}

// What somebody does in one run of the program: the arguments, and a scenario where they play one.
struct Run {
    std::string arguments;
    std::string scenario = {};
};

Run randomRun(std::mt19937& random) {
    const std::string name(1, static_cast<char>('A' + random() % 3));
    const auto playing = [](const std::string& script) { return Run{"play -", inEditor(script) + "quit\n"}; };
    switch (random() % 5) {
    case 0:
        return playing("hit 11\n");
    case 1:
        return playing("hit 11\n" + saveAs(name) + "answer yes\n");
    case 2:
        return playing(deleteRows("1"));
    case 3:
        return {"templates delete " + name};
    default:
        return {"templates import g.css --name " + name};
    }
}

std::string programIn(const Player& player) {
    return "cd '" + player.folder().string() + "' && XDG_DATA_HOME=data exec '" EASEL_PROGRAM "' ";
}

int exitStatusOf(const Player& player, const Run& run, std::size_t number) {
    const auto input = player.folder() / ("in" + std::to_string(number));
    writeContent(input, run.scenario);
    const auto command =
        programIn(player) + run.arguments + " --prefs preferences <'" + input.string() + "' >/dev/null 2>&1";
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(SharedPreferences, SeveralProgramsAtOnceDamageNothing) {
    const Player player;
    writeContent(player.folder() / "g.css", "linear-gradient(red, blue 30%, white)");
    player.playToEnd("start\nquit\n");
    const auto end = std::chrono::steady_clock::now() + quarrelTime();
    std::atomic<int> crashes = 0;
    std::vector<std::thread> programs;
    for (std::size_t number = 0; number < kPrograms; ++number)
        programs.emplace_back([&, number] {
            std::mt19937 random(static_cast<std::mt19937::result_type>(number));
            while (std::chrono::steady_clock::now() < end) {
                // A run that meets no question or an empty list ends there with 2.
                const int status = exitStatusOf(player, randomRun(random), number);
                if (status != 0 && status != 2)
                    ++crashes;
            }
        });
    for (auto& program : programs)
        program.join();
    EXPECT_EQ(crashes, 0);

    // The next start finds whole templates, whole defaults and nothing else.
    const auto played = player.playToEnd("start\nprint templates\nprint defaults\n");
    for (const auto& each : played["templates"]) {
        const std::string name = each.at("name");
        EXPECT_GT(stopsStoredIn(templateFolder(player), name), 0U) << name;
    }
    std::size_t files = 0;
    for (const auto& entry : fs::directory_iterator(templateFolder(player))) {
        EXPECT_FALSE(entry.path().filename().string().starts_with(".easel-save-")) << entry.path();
        ++files;
    }
    EXPECT_EQ(files, 2 * played["templates"].size());
    EXPECT_EQ(played["defaults"].size(), 1U);
}

} // namespace
