// Requests for memory that the system refused, whoever made them: the program or a library that goes on
// without a word, or ends the program.
#pragma once

#include <cstddef>

namespace easel::memory {

// How many there were since the program began, on all threads. They are counted in the program itself where
// its C library is the GNU one; elsewhere, in the tests' programs and under sanitizers it stays 0.
std::size_t refusals() noexcept;

void countRefusal() noexcept;

} // namespace easel::memory
