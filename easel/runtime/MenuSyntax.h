// The syntax in which the host interface describes items that are appended to a menu.
#pragma once

#include "easel/runtime/Menus.h"

#include <string_view>
#include <vector>

namespace easel::runtime {

// ';' and line breaks separate items, and '-' alone is a divider. '(' disables its item; '!', '<', '/' and
// '^' take the character behind them along (marks, styles, keys and icons are not shown here). A text without
// any of them is one item.
std::vector<MenuEntry> menuEntriesIn(std::string_view text);

} // namespace easel::runtime
