// Why a line of a scenario cannot be played.
#pragma once

#include <new>
#include <stdexcept>
#include <string>

namespace easel::play {

// The message is the reason alone; who reports it adds file and line.
class PlayError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// What went wrong, for the user.
inline std::string reasonOf(const std::exception& error) {
    return dynamic_cast<const std::bad_alloc*>(&error) ? "there is not enough memory" : error.what();
}

} // namespace easel::play
