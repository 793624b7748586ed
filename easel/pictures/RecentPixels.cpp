#include "easel/pictures/RecentPixels.h"

#include <algorithm>

namespace easel::pictures {

namespace {
// 64 MiB of pixels.
constexpr std::size_t kMostShared = std::size_t{16} << 20;
} // namespace

RecentPixels& RecentPixels::shared() {
    static RecentPixels recent(kMostShared);
    return recent;
}

void RecentPixels::keep(const Pixels& pixels) {
    const std::lock_guard lock(mutex_);
    const auto known = std::find(recent_.begin(), recent_.end(), pixels);
    if (known != recent_.end())
        return recent_.splice(recent_.begin(), recent_, known);
    recent_.push_front(pixels);
    kept_ += pixels->pixels.size();
    while (kept_ > most_ && recent_.size() > 1) {
        kept_ -= recent_.back()->pixels.size();
        recent_.pop_back();
    }
}

void RecentPixels::forget(const Pixels& pixels) {
    const std::lock_guard lock(mutex_);
    if (recent_.remove(pixels) > 0)
        kept_ -= pixels->pixels.size();
}

} // namespace easel::pictures
