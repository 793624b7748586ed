// Filters as elements refer to them: the list of functions and references, and what each of them is.
#include "easel/svg/read/FilterReader.h"

#include "easel/svg/read/FilterFunctions.h"
#include "easel/svg/read/FilterSteps.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>

namespace easel::svg {

using drawing::Box;
using drawing::Filter;

namespace {

// Filters of one element are painted by recursion.
constexpr std::size_t kMostFilters = 16;
constexpr std::size_t kLongestFilterChain = 100;

// The element and those it refers to, nearest first.
std::vector<pugi::xml_node> filterChain(const Scene& scene, pugi::xml_node filter) {
    std::vector<pugi::xml_node> chain;
    while (scene.tree.svgName(filter) == "filter") {
        if (std::find(chain.begin(), chain.end(), filter) != chain.end() ||
            chain.size() == kLongestFilterChain) {
            scene.notes.add(Unsupported::Circle);
            break;
        }
        chain.push_back(filter);
        filter = scene.tree.byId(localId(hrefOf(filter)));
    }
    return chain;
}

std::string_view attributeIn(const std::vector<pugi::xml_node>& chain, const char* name) {
    for (const pugi::xml_node element : chain)
        if (const pugi::xml_attribute found = element.attribute(name))
            return trimmed(found.value());
    return {};
}

// The region of the filter, by default a tenth larger on each side than what it filters.
Box regionOf(const std::vector<pugi::xml_node>& chain, const FilterUnits& units) {
    const bool shares = attributeIn(chain, "filterUnits") != "userSpaceOnUse";
    const auto side = [&](const char* name, const char* otherwise, Axis axis, bool isPlace) {
        const auto stated = statedSide(attributeIn(chain, name), axis, isPlace, units, shares);
        return stated ? *stated : statedSide(otherwise, axis, isPlace, units, shares).value_or(0);
    };
    const double left = side("x", "-10%", Axis::Horizontal, true);
    const double top = side("y", "-10%", Axis::Vertical, true);
    const double width = side("width", "120%", Axis::Horizontal, false);
    const double height = side("height", "120%", Axis::Vertical, false);
    return width > 0 && height > 0 ? Box{left, top, left + width, top + height} : Box();
}

} // namespace

// Nothing for a list that is not valid, or refers to a filter that is not there: then nothing is filtered.
std::vector<FilterReader::Item> FilterReader::itemsOf(std::string_view text) const {
    std::vector<Item> items;
    if (text.find('(') == std::string_view::npos)
        return items;
    Scanner scanner(text);
    for (scanner.skipSpaces(); !scanner.done(); scanner.skipSpaces()) {
        const std::string_view name = scanner.word();
        if (name.empty() || !scanner.take('(') || items.size() == kMostFilters)
            return {};
        const std::string_view from = scanner.rest();
        int depth = 1;
        while (!scanner.done() && depth > 0) {
            const char c = scanner.next();
            depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        }
        if (depth > 0)
            return {};
        Item item{{}, name, from.substr(0, from.size() - scanner.rest().size() - 1)};
        if (equalIgnoringCase(name, "url")) {
            const std::string reference = "url(" + std::string(item.arguments) + ")";
            const std::string_view id = localId(reference);
            if (id.empty())
                scene_.notes.add(Unsupported::External);
            item.element = scene_.tree.byId(id);
            if (scene_.tree.svgName(item.element) != "filter")
                return {};
        } else if (!functionEffect(item.function, item.arguments, {}, {})) {
            scene_.notes.add(Unsupported::Filter);
            return {};
        }
        items.push_back(item);
    }
    return items;
}

std::size_t FilterReader::countOf(const StatedStyle& stated) const {
    return stated[Property::Filter].empty() ? 0 : itemsOf(stated[Property::Filter]).size();
}

std::vector<FilterPtr> FilterReader::filtersFor(const StatedStyle& stated, const FilteredElement& on) {
    std::vector<FilterPtr> filters;
    if (!on.place.toDrawing.invertible())
        return filters;
    Box shown = on.painted;
    for (const Item& item : itemsOf(stated[Property::Filter])) {
        filters.push_back(item.element ? readElement(item.element, on) : readFunction(item, on, shown));
        if (filters.back())
            shown = filters.back()->region;
    }
    return filters;
}

FilterPtr FilterReader::readFunction(const Item& item, const FilteredElement& on, const Box& shown) {
    const auto effect = functionEffect(item.function, item.arguments, on.place.lengths, on.place.style.color);
    if (!effect || shown.empty())
        return nullptr;
    Filter filter;
    filter.region = shown.grownBy(reachOf(*effect));
    filter.toDrawing = on.place.toDrawing;
    filter.steps.push_back({*effect, {drawing::FilterInput{}}, filter.region, false});
    return std::make_shared<const Filter>(std::move(filter));
}

FilterPtr FilterReader::readElement(pugi::xml_node element, const FilteredElement& on) {
    const std::vector<pugi::xml_node> chain = filterChain(scene_, element);
    FilterUnits units{on.box, attributeIn(chain, "primitiveUnits") == "objectBoundingBox", on.place.lengths};
    // Without an extent there are no shares of it, and what asks for them is not there.
    const bool flat = !(on.box.width() > 0 && on.box.height() > 0);
    if (flat && (units.sharesOfBox || attributeIn(chain, "filterUnits") != "userSpaceOnUse"))
        return nullptr;
    Filter filter;
    filter.toDrawing = on.place.toDrawing;
    filter.region = regionOf(chain, units);
    FilterSteps steps(scene_, on, units, filter.region, readImage_);
    for (const pugi::xml_node link : chain) {
        for (const pugi::xml_node child : link.children())
            steps.add(child);
        if (!steps.empty())
            break;
    }
    filter.steps = steps.take();
    return std::make_shared<const Filter>(std::move(filter));
}

} // namespace easel::svg
