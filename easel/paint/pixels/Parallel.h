// Shares out numbered pieces of work among the processor's cores.
#pragma once

#include <cstddef>
#include <functional>

namespace easel::paint {

// How many threads are worth starting on this machine; at least 1.
unsigned usefulThreads();

// Calls work(0) to work(count - 1), each once, on up to `threads` threads, the caller's among them, and
// returns when all are done. After an exception no new piece is begun, and the first exception is thrown
// here.
void forEachPiece(std::size_t count, unsigned threads, const std::function<void(std::size_t piece)>& work);

} // namespace easel::paint
