// Menus. Items are numbered from 1.
#pragma once

#include "host/Strings.h"

#pragma GCC visibility push(default)

/// A menu; the host's.
struct OpaqueMenuRef;

/// Number of items in a menu, separators included.
[[nodiscard]] short CountMenuItems(OpaqueMenuRef* menu);
/// Removes an item; the later ones move up. A number that no item has does nothing.
void DeleteMenuItem(OpaqueMenuRef* menu, short item);
/// Appends the items that a text describes: ';' and line breaks (bytes 10 and 13) separate items, and an item
/// that is a '-' alone is a divider. Within an item '(' disables it, and four characters take the one behind
/// them along: '!' gives the item a mark, '<' a style, '/' a key, '^' an icon. None of these characters gets
/// into the item's text. A text without any of them makes one item that can be chosen, with just that text.
///
/// Names that users choose can hold them. They are set with SetMenuItemText, on an item that was appended
/// under another text.
void AppendMenu(OpaqueMenuRef* menu, CStr255 const& text);
/// Sets an item's text, every character as it is: none of those that AppendMenu reads means anything, and the
/// item can be chosen or not, as before. A number that no item has does nothing.
void SetMenuItemText(OpaqueMenuRef* menu, short item, CStr255 const& text);
/// Reads an item's text, the very bytes that were set; empty if there is no such item.
void GetMenuItemText(OpaqueMenuRef* menu, short item, CStr255& text);

#pragma GCC visibility pop
