// Opening one file in a process of its own, as a user does: a file that is opened once more in the same
// process finds the memory and the caches of the first time, which small files gain from more than large
// ones.
#pragma once

#include <filesystem>

namespace bench {

// Prints the seconds of processor time in which the file opens, once a small drawing has been opened. False
// if the file does not open.
bool printOpeningTime(const std::filesystem::path& file);

// The time that this program prints when it is started for that.
double openingTime(const std::filesystem::path& file);

} // namespace bench
