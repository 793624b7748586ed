// Pictures of filtered groups, and how much memory they may take.
#include "easel/paint/FilterPictures.h"

#include <algorithm>
#include <iterator>

namespace easel::paint {

namespace {

constexpr std::size_t kMebibyte = std::size_t{1} << 20;
// What is kept, and what one filter may take while it is computed. Filters inside another one get a quarter
// of what it gets, so that all of them together take a third more at most.
constexpr std::size_t kMostKept = 48 * kMebibyte;
constexpr std::size_t kMostPainting = 80 * kMebibyte;
constexpr unsigned kDeepestFilter = 8;

std::size_t bytesOf(const FilteredPicture& picture) {
    return static_cast<std::size_t>(picture.pixels->stride()) *
           static_cast<std::size_t>(picture.pixels->height());
}

class Deeper {
  public:
    explicit Deeper(unsigned& depth) : depth_(depth) { ++depth_; }
    ~Deeper() { --depth_; }
    Deeper(const Deeper&) = delete;
    Deeper& operator=(const Deeper&) = delete;

  private:
    unsigned& depth_;
};

} // namespace

std::optional<FilterGrid> FilterPictures::gridOf(const drawing::Filter& filter,
                                                 const drawing::Affine& toSheet, const PixelRect& seen) {
    return gridFor(filter, toSheet, seen, kMostPainting);
}

FilteredPicture FilterPictures::picture(const drawing::Group& group,
                                        std::span<const drawing::ObjectPtr> objects,
                                        const drawing::Affine& toSheet, const PixelRect& seen,
                                        const Painting& paint) {
    const std::lock_guard lock(lock_);
    const auto grid = gridFor(*group.filter, toSheet, seen, kMostPainting >> (2 * depth_));
    if (!grid || depth_ == kDeepestFilter)
        return {};
    const auto known = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return entry.group == &group && entry.picture.grid == *grid &&
               std::equal(entry.objects.begin(), entry.objects.end(), objects.begin(), objects.end());
    });
    if (known != entries_.end()) {
        entries_.splice(entries_.begin(), entries_, known);
        return known->picture;
    }
    const Deeper deeper(depth_);
    FilteredPicture picture{*grid, paint(*grid)};
    keep({&group, {objects.begin(), objects.end()}, picture});
    return picture;
}

// What the group showed before takes no more room.
void FilterPictures::keep(Entry entry) {
    const auto old = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& one) {
        return one.group == entry.group && one.picture.grid == entry.picture.grid;
    });
    if (old != entries_.end()) {
        bytes_ -= bytesOf(old->picture);
        entries_.erase(old);
    }
    bytes_ += bytesOf(entry.picture);
    entries_.push_front(std::move(entry));
    while (bytes_ > kMostKept && entries_.size() > 1) {
        bytes_ -= bytesOf(entries_.back().picture);
        entries_.pop_back();
    }
}

} // namespace easel::paint
