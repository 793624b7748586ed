// Where the objects of a drawing are: finds those whose box meets an area, and a few that it just misses.
#pragma once

#include "easel/drawing/DisplayList.h"

#include <functional>
#include <memory>
#include <vector>

namespace easel::drawing {

class PlaceIndex {
  public:
    PlaceIndex();
    ~PlaceIndex();
    PlaceIndex(PlaceIndex&&) noexcept;
    PlaceIndex& operator=(PlaceIndex&&) noexcept;

    // Replaces all there is by the slots from 0 on; quicker than inserting one by one. Empty boxes are found
    // by no query.
    void assign(Slot count, const std::function<Box(Slot)>& boxOf);
    void insert(const Box& box, Slot slot);
    // Box and slot are as they were inserted.
    void erase(const Box& box, Slot slot);
    // In no particular order.
    std::vector<Slot> within(const Box& area) const;

  private:
    struct Tree;

    Tree& treeOf(Slot slot);

    std::vector<std::unique_ptr<Tree>> trees_; // each for the slots of one range
};

} // namespace easel::drawing
