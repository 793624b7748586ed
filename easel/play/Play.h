// Plays scenario files.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>

namespace easel::play {

struct PlayRequest {
    std::string file;                  // the scenario, or `-` for standard input
    std::filesystem::path preferences; // empty: a fresh folder that is removed again
    std::filesystem::path plugin;      // empty: the module beside the program
};

// Exit codes of the program.
enum class PlayOutcome { Played = 0, Failed = 2 };

// Plays the scenario to its end. Answers go to `answers`, a line of JSON each; the reason for stopping goes
// to `messages` as FILE:LINE: reason.
PlayOutcome playScenario(const PlayRequest& request, std::istream& input, std::ostream& answers,
                         std::ostream& messages);

} // namespace easel::play
