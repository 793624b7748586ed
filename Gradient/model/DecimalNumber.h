// Reading a number that a user typed.
#pragma once

/// The number that the text begins with, 0 if it begins with none. The decimal separator is a point, whatever
/// the desktop's language. Names of numbers ("nan", "infinity") are letters like any others.
[[nodiscard]] double ReadDecimal(char const* text);
