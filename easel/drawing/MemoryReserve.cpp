// A handler for `new` that frees one piece after the other.
#include "easel/drawing/MemoryReserve.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <utility>

namespace easel::drawing {

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
    for (void* piece : pieces_)
        std::free(piece);
}

void MemoryReserve::giveOut() {
    if (std::this_thread::get_id() == gReserve->owner_)
        for (void*& piece : gReserve->pieces_)
            if (piece)
                return std::free(std::exchange(piece, nullptr));
    throw std::bad_alloc();
}

bool memoryIsLeft() {
    if (!gReserve)
        return true;
    for (void*& piece : gReserve->pieces_)
        if (!piece)
            piece = gReserve->source_(kPieceBytes);
    return std::all_of(gReserve->pieces_.begin(), gReserve->pieces_.end(),
                       [](const void* piece) { return piece; });
}

void demandMemory() {
    if (!memoryIsLeft())
        throw std::bad_alloc();
}

} // namespace easel::drawing
