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
/// Appends an item. The text may be read for menu syntax (';' separates items, '(' disables one and so on),
/// so names chosen by users are set with SetMenuItemText afterwards.
void AppendMenu(OpaqueMenuRef* menu, CStr255 const& text);
/// Sets an item's text, every character as it is.
void SetMenuItemText(OpaqueMenuRef* menu, short item, CStr255 const& text);
/// Reads an item's text; empty if there is no such item.
void GetMenuItemText(OpaqueMenuRef* menu, short item, CStr255& text);

#pragma GCC visibility pop
