// Where the objects of a drawing are: finds those whose box meets an area, and a few that it just misses.
#pragma once

#include "easel/drawing/DisplayList.h"

#include <memory>
#include <utility>
#include <vector>

namespace easel::drawing {

class PlaceIndex {
  public:
    using Item = std::pair<Box, Slot>;

    PlaceIndex();
    ~PlaceIndex();
    PlaceIndex(PlaceIndex&&) noexcept;
    PlaceIndex& operator=(PlaceIndex&&) noexcept;

    // Replaces all there is; quicker than inserting one by one. Empty boxes are found by no query.
    void assign(const std::vector<Item>& items);
    void insert(const Box& box, Slot slot);
    // Box and slot are as they were inserted.
    void erase(const Box& box, Slot slot);
    // In no particular order.
    std::vector<Slot> within(const Box& area) const;

  private:
    struct Tree;
    std::unique_ptr<Tree> tree_;
};

} // namespace easel::drawing
