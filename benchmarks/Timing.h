// How long a piece of work takes.
#pragma once

#include <algorithm>
#include <chrono>
#include <ctime>
#include <vector>

namespace bench {

// Processor counts only the time that this thread was running, so that other programs on the machine disturb
// less.
enum class Clock { Processor, Wall };

inline double now(Clock clock) {
    if (clock == Clock::Wall)
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

inline double median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

constexpr int kRuns = 15;

template <class Work> double secondsOf(const Work& work, Clock clock = Clock::Processor) {
    const double begin = now(clock);
    work();
    return now(clock) - begin;
}

// The medians of two works that take turns, so that what the machine does besides meets both alike.
struct Pair {
    double ours;
    double peer;
};

template <class Ours, class Peer> Pair mediansOf(const Ours& ours, const Peer& peer) {
    std::vector<double> first;
    std::vector<double> second;
    ours();
    peer();
    for (int i = 0; i < kRuns; ++i) {
        second.push_back(secondsOf(peer));
        first.push_back(secondsOf(ours));
    }
    return {median(first), median(second)};
}

} // namespace bench
