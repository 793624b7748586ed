#include "easel/memory/Refusals.h"

#include <atomic>

namespace easel::memory {

namespace {

std::atomic<std::size_t> gRefusals = 0;

} // namespace

std::size_t refusals() noexcept {
    return gRefusals.load(std::memory_order_relaxed);
}

void countRefusal() noexcept {
    gRefusals.fetch_add(1, std::memory_order_relaxed);
}

} // namespace easel::memory
