// The objects of a drawing from back to front, quick to change and to number however many there are.
#pragma once

#include "easel/drawing/ObjectPages.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace easel::drawing {

// The list is cut into blocks of some hundred entries, so that finding, inserting and deleting at an index,
// and finding the index of an entry, take time that grows with the square root of the number of entries at
// most.
class DisplayList {
  public:
    std::size_t size() const { return size_; }
    // Slots that were given out, in the list or not.
    std::size_t slotCount() const { return blockOf_.size(); }
    bool holds(Slot slot) const;
    // index < size()
    Slot slotAt(std::size_t index) const;
    // The slot is in the list.
    std::size_t indexOf(Slot slot) const;
    const ObjectPtr& object(Slot slot) const { return objects_[slot]; }

    // Gives out a slot that is in no list yet.
    Slot newSlot();
    // index <= size(); the slot was given out and is not in the list.
    void insert(std::size_t index, Slot slot, ObjectPtr object);
    // The object, which the list holds no longer. The slot may be inserted again.
    ObjectPtr erase(Slot slot);
    // The object that was there.
    ObjectPtr replace(Slot slot, ObjectPtr object);
    // Appends many at once.
    void append(std::vector<ObjectPtr> objects);

    // Back to front.
    template <class Visitor> void forEach(Visitor visit) const {
        for (const Block& block : blocks_)
            for (const Slot slot : block.slots)
                visit(slot, objects_[slot]);
    }

  private:
    static constexpr std::uint32_t kNoBlock = UINT32_MAX;

    struct Block {
        std::size_t begin = 0; // the index of its first entry
        std::vector<Slot> slots;
    };
    struct Place {
        std::size_t block = 0;
        std::size_t position = 0;
    };

    Place placeOf(std::size_t index) const;
    void split(std::size_t block);
    // Entries from this block on have new blocks, or only new indices.
    void renumber(std::size_t firstBlock);
    void recount(std::size_t firstBlock);

    std::vector<Block> blocks_;
    ObjectPages objects_;
    std::vector<std::uint32_t> blockOf_; // by slot
    std::size_t size_ = 0;
};

} // namespace easel::drawing
