// Writes out what a `use` element repeats, so that one repetition can be changed alone.
#pragma once

#include "easel/svg/text/Source.h"
#include "easel/svg/write/Splices.h"

#include <string>
#include <string_view>

namespace easel::svg {

// A group that looks like the `use` element: a copy of the repeated element, with the splices in it and
// without ids.
std::string writtenOut(const std::string& text, const Repetition& repetition, const std::string& prefix,
                       Splices& splices);

} // namespace easel::svg
