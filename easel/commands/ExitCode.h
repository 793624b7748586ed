// What the program returns to its caller beside 0.
#pragma once

namespace easel::commands {

// Misuse, or a failure that no command could put into better words.
inline constexpr int kFailed = 2;

} // namespace easel::commands
