#include "easel/drawing/PathMemory.h"

#include <algorithm>
#include <atomic>
#include <limits>
#include <memory>
#include <new>
#include <utility>

namespace easel::drawing {

namespace {

// Room is counted in these.
constexpr std::size_t kUnit = 8;
constexpr std::size_t kMostRoom = std::numeric_limits<std::uint32_t>::max();

std::size_t roomFor(std::size_t verbs, std::size_t points) {
    return points * (sizeof(Point) / kUnit) + (verbs + kUnit - 1) / kUnit;
}

} // namespace

struct PathMemory::Head {
    std::atomic<std::uint32_t> uses{1};
    std::uint32_t pointCount = 0;
    std::uint32_t verbCount = 0;
    std::uint32_t room = 0;

    Point* points() { return reinterpret_cast<Point*>(this + 1); }
    Verb* verbsEnd() { return reinterpret_cast<Verb*>(this + 1) + room * kUnit; }
    Verb* lastVerb() { return verbsEnd() - verbCount; }
};

PathMemory::PathMemory(const PathMemory& other) noexcept : head_(other.head_) {
    if (head_)
        head_->uses.fetch_add(1, std::memory_order_relaxed);
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
    if (!head_ || head_->uses.fetch_sub(1, std::memory_order_acq_rel) != 1)
        return;
    std::destroy_at(head_);
    ::operator delete(head_);
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
    if (head_->uses.load(std::memory_order_acquire) != 1)
        moveTo(roomFor(head_->verbCount, head_->pointCount));
    return {head_->points(), head_->pointCount};
}

void PathMemory::add(Verb verb, std::initializer_list<Point> points) {
    const std::size_t needed = roomFor(verbs().size() + 1, this->points().size() + points.size());
    const bool shared = head_ && head_->uses.load(std::memory_order_acquire) != 1;
    if (!head_ || shared || needed > head_->room)
        moveTo(std::max(needed, head_ ? std::size_t{head_->room} * 2 : 0));
    std::uninitialized_copy(points.begin(), points.end(), head_->points() + head_->pointCount);
    head_->pointCount += static_cast<std::uint32_t>(points.size());
    ++head_->verbCount;
    std::construct_at(head_->lastVerb(), verb);
}

void PathMemory::setRoom(std::size_t verbs, std::size_t points) {
    const std::size_t room =
        roomFor(std::max(verbs, this->verbs().size()), std::max(points, this->points().size()));
    if (room > 0 && (!head_ || head_->room != room))
        moveTo(room);
}

// Goes on in memory of its own with what there is.
void PathMemory::moveTo(std::size_t room) {
    if (room > kMostRoom)
        throw std::bad_alloc();
    auto* const head = std::construct_at(static_cast<Head*>(::operator new(sizeof(Head) + room * kUnit)));
    head->room = static_cast<std::uint32_t>(room);
    if (head_) {
        std::uninitialized_copy_n(head_->points(), head_->pointCount, head->points());
        head->pointCount = head_->pointCount;
        head->verbCount = head_->verbCount;
        std::uninitialized_copy_n(head_->lastVerb(), head_->verbCount, head->lastVerb());
    }
    release();
    head_ = head;
}

} // namespace easel::drawing
