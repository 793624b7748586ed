// Numbers in the user's way of writing: decimal sign and digits.
#pragma once

#include <QString>

namespace easel::window {

// Both go character by character, so that a place in one text is the same place in the other, and leave all
// characters that are no part of a number as they are.

// "12.5" as the user writes it: "12,5" where the decimal sign is a comma.
QString inUsersDigits(QString plain);
// What the user typed, with a point as decimal sign, whether the user took the point or the usual sign.
QString inPlainDigits(QString typed);

} // namespace easel::window
