// The one property that states many of a font.
#pragma once

#include <string_view>

namespace easel::svg {

// What it states, and "normal" for what it resets without naming it.
struct FontStatements {
    std::string_view style = "normal";
    std::string_view variant = "normal";
    std::string_view weight = "normal";
    std::string_view stretch = "normal";
    std::string_view size; // without the height of a line
    std::string_view families;
};

// "italic bold 12px/1.5 Georgia, serif". Size and families are empty if it is no font, or names one of the
// desktop's.
FontStatements parseFont(std::string_view shorthand);

} // namespace easel::svg
