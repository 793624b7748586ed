// Pictures of filtered groups, kept for as long as nothing in them changes.
#pragma once

#include "easel/drawing/Object.h"
#include "easel/paint/FilteredPicture.h"

#include <cstddef>
#include <functional>
#include <list>
#include <mutex>
#include <span>
#include <vector>

namespace easel::paint {

// May be used from several threads at once; one picture after the other is painted, so that the memory which
// all of them take together has a bound.
class FilterPictures {
  public:
    // Where the filter of a group that is in no other filtered one is computed; nothing if nothing shows.
    static std::optional<FilterGrid> gridOf(const drawing::Filter& filter, const drawing::Affine& toSheet,
                                            const PixelRect& seen);

    using Painting = std::function<std::shared_ptr<const Surface>(const FilterGrid& grid)>;

    // The picture of what the group's filter makes of the objects, for a sheet of which the pixels `seen` are
    // seen and to which `toSheet` maps the drawing. It is painted if it is not at hand; filtered groups in
    // the group may ask for theirs meanwhile. Without pixels if nothing shows.
    FilteredPicture picture(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects,
                            const drawing::Affine& toSheet, const PixelRect& seen, const Painting& paint);

  private:
    struct Entry {
        const drawing::Group* group; // its objects keep it alive
        std::vector<drawing::ObjectPtr> objects;
        FilteredPicture picture;
    };

    void keep(Entry entry);

    std::recursive_mutex lock_;
    unsigned depth_ = 0;       // how many groups in groups are being painted
    std::list<Entry> entries_; // the last one used is the first
    std::size_t bytes_ = 0;
};

} // namespace easel::paint
