// Writes out what a `use` element repeats, so that one use instance can be changed alone.
#pragma once

#include "easel/svg/text/Source.h"
#include "easel/svg/write/Splices.h"

#include <string>
#include <string_view>
#include <unordered_set>

namespace easel::svg {

using IdSet = std::unordered_set<std::string>;

// A group that looks like the `use` element: a copy of the repeated element, with the splices in it and
// without ids, but for those that style sheets may ask for.
std::string writtenOut(const std::string& text, const UseInstance& instance, const std::string& prefix,
                       const IdSet& idsInSheets, Splices& splices);

} // namespace easel::svg
