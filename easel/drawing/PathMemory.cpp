#include "easel/drawing/PathMemory.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <utility>

namespace easel::drawing {

namespace {

// Room is counted in these.
constexpr std::size_t kUnit = 8;
// Smaller pieces are copied: what is cut off their ends would lie about unused between others.
constexpr std::size_t kLargeRoom = std::size_t{128} * 1024 / kUnit;
constexpr std::size_t kMostRoom = std::numeric_limits<std::uint32_t>::max();

std::size_t roomFor(std::size_t verbs, std::size_t points) {
    return points * (sizeof(Point) / kUnit) + (verbs + kUnit - 1) / kUnit;
}

// Memory for a head of so many bytes and that room, in place of the one before, which stays if there is none.
void* allocated(void* before, std::size_t head, std::size_t room) {
    void* const memory = room > kMostRoom ? nullptr : std::realloc(before, head + room * kUnit);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

} // namespace

// Plain data, so that it can move with its memory.
struct PathMemory::Head {
    std::uint32_t useCount = 1;
    std::uint32_t pointCount = 0;
    std::uint32_t verbCount = 0;
    std::uint32_t room = 0;

    std::atomic_ref<std::uint32_t> uses() { return std::atomic_ref(useCount); }
    Point* points() { return reinterpret_cast<Point*>(this + 1); }
    Verb* verbsEnd() { return reinterpret_cast<Verb*>(this + 1) + room * kUnit; }
    Verb* lastVerb() { return verbsEnd() - verbCount; }
};

PathMemory::PathMemory(const PathMemory& other) noexcept : head_(other.head_) {
    if (head_)
        head_->uses().fetch_add(1, std::memory_order_relaxed);
}

PathMemory::PathMemory(PathMemory&& other) noexcept : head_(std::exchange(other.head_, nullptr)) {}

PathMemory& PathMemory::operator=(PathMemory other) noexcept {
    std::swap(head_, other.head_);
    return *this;
}

PathMemory::~PathMemory() {
    release();
}

void PathMemory::release() noexcept {
    if (head_ && head_->uses().fetch_sub(1, std::memory_order_acq_rel) == 1)
        std::free(head_);
}

bool PathMemory::shared() const {
    return head_ && head_->uses().load(std::memory_order_acquire) != 1;
}

std::span<const Point> PathMemory::points() const {
    if (!head_)
        return {};
    return {head_->points(), head_->pointCount};
}

VerbList PathMemory::verbs() const {
    if (!head_)
        return {};
    return {head_->lastVerb(), head_->verbCount};
}

std::span<Point> PathMemory::ownPoints() {
    if (!head_)
        return {};
    if (shared())
        copyTo(roomFor(head_->verbCount, head_->pointCount));
    return {head_->points(), head_->pointCount};
}

void PathMemory::add(Verb verb, std::initializer_list<Point> points) {
    const std::size_t needed = roomFor(verbs().size() + 1, this->points().size() + points.size());
    if (!head_ || shared() || needed > head_->room)
        resize(std::max(needed, head_ ? std::size_t{head_->room} * 2 : 0));
    std::uninitialized_copy(points.begin(), points.end(), head_->points() + head_->pointCount);
    head_->pointCount += static_cast<std::uint32_t>(points.size());
    ++head_->verbCount;
    std::construct_at(head_->lastVerb(), verb);
}

void PathMemory::setRoom(std::size_t verbs, std::size_t points) {
    const std::size_t room =
        roomFor(std::max(verbs, this->verbs().size()), std::max(points, this->points().size()));
    if (room > 0 && (!head_ || head_->room != room))
        resize(room);
}

void PathMemory::copyTo(std::size_t room) {
    auto* const head = static_cast<Head*>(allocated(nullptr, sizeof(Head), room));
    std::construct_at(head)->room = static_cast<std::uint32_t>(room);
    if (head_) {
        std::uninitialized_copy_n(head_->points(), head_->pointCount, head->points());
        head->pointCount = head_->pointCount;
        head->verbCount = head_->verbCount;
        std::uninitialized_copy_n(head_->lastVerb(), head_->verbCount, head->lastVerb());
    }
    release();
    head_ = head;
}

// Goes on in memory of its own with that room. Of a large piece nothing is there twice where it can grow and
// shrink in its place.
void PathMemory::resize(std::size_t room) {
    if (!head_ || head_->room < kLargeRoom || shared())
        return copyTo(room);
    const std::size_t verbs = head_->verbCount;
    const auto moveVerbs = [&] {
        const Verb* const from = head_->lastVerb();
        head_->room = static_cast<std::uint32_t>(room);
        std::memmove(head_->lastVerb(), from, verbs);
    };
    if (room < head_->room)
        moveVerbs();
    head_ = static_cast<Head*>(allocated(head_, sizeof(Head), room));
    if (room > head_->room)
        moveVerbs();
}

} // namespace easel::drawing
