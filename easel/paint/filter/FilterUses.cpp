// Which steps of a filter have a part in its result, and what that costs.
#include "easel/paint/filter/FilterUses.h"

#include <algorithm>
#include <numeric>

namespace easel::paint {

using drawing::FilterInput;

FilterUses::FilterUses(const drawing::Filter& filter) : lastUse(filter.steps.size()) {
    std::iota(lastUse.begin(), lastUse.end(), std::size_t{0});
    if (lastUse.empty())
        return;
    lastUse.back() = filter.steps.size();
    for (std::size_t i = filter.steps.size(); i-- > 0;) {
        if (lastUse[i] == i)
            continue;
        for (const FilterInput& input : filter.steps[i].inputs) {
            source = source || input.kind == FilterInput::Kind::Source;
            sourceAlpha = sourceAlpha || input.kind == FilterInput::Kind::SourceAlpha;
            if (input.kind == FilterInput::Kind::Step)
                lastUse[input.step] = std::max(lastUse[input.step], i);
        }
    }
}

std::size_t mostPictures(const drawing::Filter& filter) {
    // Of each picture there may be one in either kind of colors; the source may be there three times, and a
    // step works on two of its own.
    constexpr std::size_t kOfSourceAndStep = 5;
    const FilterUses uses(filter);
    std::size_t most = 0;
    std::size_t held = 0;
    std::vector<std::size_t> released(filter.steps.size() + 1);
    for (std::size_t i = 0; i < filter.steps.size(); ++i) {
        if (uses.lastUse[i] > i) {
            ++held;
            ++released[uses.lastUse[i]];
        }
        most = std::max(most, held);
        held -= released[i];
    }
    return kOfSourceAndStep + 2 * most;
}

} // namespace easel::paint
