// Names in style sheets, and the escapes in them: "\66 ill" and "f\69ll" are "fill".
#pragma once

#include "easel/svg/text/Scanner.h"

#include <string>
#include <string_view>

namespace easel::svg {

// The character that stands behind a backslash, by itself or by its number, and what ends the number with it.
// At the end of the text it is U+FFFD, as is a number that no character has.
char32_t takeEscape(std::string_view& text);

// Takes the identifier that is next and gives what it stands for; empty if there is none.
std::string takeIdentifier(Scanner& scanner);

// A text without comments in which escapes are replaced by the letters that they stand for, and those that
// keep a character from its meaning are written by its number. So the same name is always the same text, and
// no blank, quote or bracket is left that means none.
std::string withPlainNames(std::string_view text);

} // namespace easel::svg
