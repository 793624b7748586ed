// How a command fails.
#pragma once

#include "easel/files/Result.h"

namespace easel::commands {

// The exit code of misuse, and of a failure that no command could put into better words.
inline constexpr int kFailed = 2;

// Writes the error to the standard error stream and returns the exit code.
int fail(const files::Error& error);

} // namespace easel::commands
