// Reading a number that a user typed.
#pragma once

/// The number that the text begins with, after blanks; 0 if it begins with none. What counts as a number, and
/// which one it is, is as for std::atof in the C locale: the decimal separator is a point whatever the
/// desktop's language, hexadecimal digits follow "0x", and a number too large for a double is infinite.
/// "inf" and "infinity" are such a number too, so that a position typed so becomes the largest there is.
/// "nan" is not: it reads as 0 like every other text that is no number, since a stop without a place could
/// not be kept in order with the others.
[[nodiscard]] double ReadDecimal(char const* text);
