// Implements host/Menus.h.
#include "host/Menus.h"

#include "easel/classic/MacRoman.h"
#include "easel/runtime/MenuSyntax.h"
#include "easel/runtime/Menus.h"
#include "easel/runtime/Process.h"

#include <algorithm>
#include <limits>

using easel::runtime::journal;
using easel::runtime::Menu;

namespace {

Menu* menuOf(OpaqueMenuRef* ref) {
    return reinterpret_cast<Menu*>(ref);
}

} // namespace

short CountMenuItems(OpaqueMenuRef* ref) {
    journal("CountMenuItems");
    const Menu* menu = menuOf(ref);
    constexpr int kMost = std::numeric_limits<short>::max();
    return menu ? static_cast<short>(std::min(menu->count(), kMost)) : short{0};
}

void DeleteMenuItem(OpaqueMenuRef* ref, short item) {
    journal("DeleteMenuItem", item);
    if (Menu* menu = menuOf(ref))
        menu->remove(item);
}

void AppendMenu(OpaqueMenuRef* ref, const CStr255& text) {
    journal("AppendMenu", easel::classic::fromMacRoman(text.Text()));
    if (Menu* menu = menuOf(ref))
        for (easel::runtime::MenuEntry& entry : easel::runtime::menuEntriesIn(text.Text()))
            menu->append(std::move(entry));
}

void SetMenuItemText(OpaqueMenuRef* ref, short item, const CStr255& text) {
    journal("SetMenuItemText", item, easel::classic::fromMacRoman(text.Text()));
    if (Menu* menu = menuOf(ref))
        menu->setText(item, text.Text());
}

void GetMenuItemText(OpaqueMenuRef* ref, short item, CStr255& text) {
    journal("GetMenuItemText", item);
    const Menu* menu = menuOf(ref);
    text.Assign(menu && menu->has(item) ? menu->entry(item).text : std::string());
}
