#include "easel/drawing/DisplayList.h"

#include <algorithm>
#include <utility>

namespace easel::drawing {

namespace {
constexpr std::size_t kLargestBlock = 256;
} // namespace

bool DisplayList::holds(Slot slot) const {
    return slot < blockOf_.size() && blockOf_[slot] != kNoBlock;
}

DisplayList::Place DisplayList::placeOf(std::size_t index) const {
    const auto after = std::upper_bound(blocks_.begin() + 1, blocks_.end(), index,
                                        [](std::size_t i, const Block& block) { return i < block.begin; });
    const auto block = after - 1;
    return {static_cast<std::size_t>(block - blocks_.begin()), index - block->begin};
}

Slot DisplayList::slotAt(std::size_t index) const {
    const Place place = placeOf(index);
    return blocks_[place.block].slots[place.position];
}

std::size_t DisplayList::indexOf(Slot slot) const {
    const Block& block = blocks_[blockOf_[slot]];
    const auto found = std::find(block.slots.begin(), block.slots.end(), slot);
    return block.begin + static_cast<std::size_t>(found - block.slots.begin());
}

Slot DisplayList::newSlot() {
    objects_.add();
    blockOf_.push_back(kNoBlock);
    return static_cast<Slot>(objects_.size() - 1);
}

void DisplayList::insert(std::size_t index, Slot slot, ObjectPtr object) {
    if (blocks_.empty())
        blocks_.emplace_back();
    const Place place = placeOf(index);
    std::vector<Slot>& slots = blocks_[place.block].slots;
    slots.insert(slots.begin() + static_cast<std::ptrdiff_t>(place.position), slot);
    objects_.replace(slot, std::move(object));
    blockOf_[slot] = static_cast<std::uint32_t>(place.block);
    ++size_;
    if (slots.size() > kLargestBlock)
        split(place.block);
    recount(place.block);
}

ObjectPtr DisplayList::erase(Slot slot) {
    const std::size_t block = std::exchange(blockOf_[slot], kNoBlock);
    std::vector<Slot>& slots = blocks_[block].slots;
    slots.erase(std::find(slots.begin(), slots.end(), slot));
    --size_;
    if (slots.empty()) {
        blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(block));
        renumber(block);
    }
    recount(block);
    return objects_.replace(slot, nullptr);
}

ObjectPtr DisplayList::replace(Slot slot, ObjectPtr object) {
    return objects_.replace(slot, std::move(object));
}

void DisplayList::append(std::vector<ObjectPtr> objects) {
    blockOf_.reserve(blockOf_.size() + objects.size());
    for (ObjectPtr& object : objects) {
        if (blocks_.empty() || blocks_.back().slots.size() >= kLargestBlock / 2)
            blocks_.emplace_back();
        const Slot slot = newSlot();
        blocks_.back().slots.push_back(slot);
        objects_.replace(slot, std::move(object));
        blockOf_[slot] = static_cast<std::uint32_t>(blocks_.size() - 1);
    }
    size_ += objects.size();
    recount(0);
}

void DisplayList::split(std::size_t block) {
    Block upper;
    std::vector<Slot>& slots = blocks_[block].slots;
    const auto middle = slots.begin() + static_cast<std::ptrdiff_t>(slots.size() / 2);
    upper.slots.assign(middle, slots.end());
    slots.erase(middle, slots.end());
    blocks_.insert(blocks_.begin() + static_cast<std::ptrdiff_t>(block) + 1, std::move(upper));
    renumber(block + 1);
}

void DisplayList::renumber(std::size_t firstBlock) {
    for (std::size_t i = firstBlock; i < blocks_.size(); ++i)
        for (const Slot slot : blocks_[i].slots)
            blockOf_[slot] = static_cast<std::uint32_t>(i);
}

void DisplayList::recount(std::size_t firstBlock) {
    std::size_t begin =
        firstBlock == 0 ? 0 : blocks_[firstBlock - 1].begin + blocks_[firstBlock - 1].slots.size();
    for (std::size_t i = firstBlock; i < blocks_.size(); ++i) {
        blocks_[i].begin = begin;
        begin += blocks_[i].slots.size();
    }
}

} // namespace easel::drawing
