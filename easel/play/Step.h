// One thing of a scenario to be played.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace easel::play {

struct Step {
    std::size_t line = 0;           // of the script, from 1
    std::vector<std::string> words; // the command, then its arguments; never empty
};

// The steps that a line of the script consists of: `click` is press and release, `drag` is press, moves and
// release, `hit` is followed by a release, everything else is one step. Throws PlayError for a drag without a
// second point.
std::vector<Step> stepsOf(Step line);

} // namespace easel::play
