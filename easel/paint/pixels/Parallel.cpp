// Shares out numbered pieces of work among the processor's cores.
#include "easel/paint/pixels/Parallel.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace easel::paint {

unsigned usefulThreads() {
    // To ask the system, a file has to be read.
    static const unsigned threads = std::clamp(std::thread::hardware_concurrency(), 1u, 16u);
    return threads;
}

void forEachPiece(std::size_t count, unsigned threads, const std::function<void(std::size_t piece)>& work) {
    std::atomic<std::size_t> next = 0;
    std::exception_ptr failure;
    std::mutex failureLock;
    const auto run = [&] {
        try {
            for (std::size_t piece = next++; piece < count; piece = next++)
                work(piece);
        } catch (...) {
            const std::lock_guard lock(failureLock);
            if (!failure)
                failure = std::current_exception();
            next = count;
        }
    };
    {
        std::vector<std::jthread> helpers;
        try {
            for (std::size_t i = 1; i < std::min<std::size_t>(threads, count); ++i)
                helpers.emplace_back(run);
        } catch (const std::system_error&) {
            // Where no thread can be had, those that run do all the work.
        }
        run();
    }
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace easel::paint
