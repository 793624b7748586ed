// A handler for `new` that frees one piece after the other.
#include "easel/memory/MemoryReserve.h"

#include "easel/memory/LibraryCall.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace easel::memory {

namespace {

constexpr std::size_t kPieceBytes = std::size_t{2} << 20;

MemoryReserve* gReserve = nullptr;

} // namespace

MemoryReserve::MemoryReserve(Source source) : source_(source), owner_(std::this_thread::get_id()) {
    gReserve = this;
    memoryIsLeft();
    std::set_new_handler(giveOut);
}

MemoryReserve::~MemoryReserve() {
    std::set_new_handler(nullptr);
    gReserve = nullptr;
    for (const std::atomic<void*>& piece : pieces_)
        std::free(piece);
}

void MemoryReserve::giveOut() {
    for (std::size_t i = 0; i < gReserve->share(); ++i)
        if (void* const given = gReserve->pieces_[i].exchange(nullptr))
            return std::free(given);
    throw std::bad_alloc();
}

// How many pieces, from the first on, this thread may have.
std::size_t MemoryReserve::share() const {
    const bool mayHaveAll = LibraryCall::isUnderWayOnThisThread() || std::this_thread::get_id() == owner_;
    return mayHaveAll ? pieces_.size() : pieces_.size() / 2;
}

bool memoryIsLeft() {
    if (!gReserve)
        return true;
    for (std::atomic<void*>& piece : gReserve->pieces_)
        if (!piece)
            piece = gReserve->source_(kPieceBytes);
    return std::all_of(gReserve->pieces_.begin(), gReserve->pieces_.end(),
                       [](const std::atomic<void*>& piece) { return piece.load() != nullptr; });
}

void demandMemory() {
    if (!memoryIsLeft())
        throw std::bad_alloc();
}

} // namespace easel::memory
