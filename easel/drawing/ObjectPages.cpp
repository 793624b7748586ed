// Gives a page that is shared a copy of its own before it changes.
#include "easel/drawing/ObjectPages.h"

#include <utility>

namespace easel::drawing {

void ObjectPages::add() {
    if (size_ == pages_.size() * kPageSize)
        pages_.push_back(std::make_shared<Page>());
    ++size_;
}

ObjectPtr ObjectPages::replace(Slot slot, ObjectPtr object) {
    std::shared_ptr<Page>& page = pages_[slot / kPageSize];
    if (page.use_count() > 1)
        page = std::make_shared<Page>(*page);
    return std::exchange((*page)[slot % kPageSize], std::move(object));
}

} // namespace easel::drawing
