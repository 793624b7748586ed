// The conditions of @media rules.
#pragma once

#include <string_view>

namespace easel::svg {

// The size of what the drawing is shown on, in pixels: its own.
struct MediaSize {
    double width = 0;
    double height = 0;
};

// Whether the queries, of which one is enough, hold for a light screen of this size. A feature that is not
// known does not hold; no query at all does.
bool mediaMatches(std::string_view queries, const MediaSize& size);

} // namespace easel::svg
