// Filters as elements refer to them.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/svg/read/FilteredElement.h"

#include <memory>
#include <optional>
#include <vector>

namespace easel::svg {

using FilterPtr = std::shared_ptr<const drawing::Filter>;

class FilterReader {
  public:
    FilterReader(const Scene& scene, ReadFilterImage readImage)
        : scene_(scene), readImage_(std::move(readImage)) {}

    // How many filters the stated style asks for.
    std::size_t countOf(const StatedStyle& stated) const;
    // These filters in the order in which they work, one for each that is asked for.
    std::vector<FilterPtr> filtersFor(const StatedStyle& stated, const FilteredElement& element);

  private:
    // One item of the list: an element of the file, or a function.
    struct Item {
        pugi::xml_node element;
        std::string_view function;
        std::string_view arguments;
    };

    std::vector<Item> itemsOf(std::string_view text) const;
    FilterPtr readFunction(const Item& item, const FilteredElement& on, const drawing::Box& shown);
    FilterPtr readElement(pugi::xml_node filter, const FilteredElement& on);

    const Scene& scene_;
    ReadFilterImage readImage_;
};

} // namespace easel::svg
