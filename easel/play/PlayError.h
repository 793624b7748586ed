// Why a line of a scenario cannot be played.
#pragma once

#include <stdexcept>

namespace easel::play {

// The message is the reason alone; who reports it adds file and line.
class PlayError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

} // namespace easel::play
