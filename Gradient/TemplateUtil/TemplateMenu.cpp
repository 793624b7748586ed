// The menu of templates.
#include "Gradient/TemplateUtil/TemplateMenu.h"

#include "Gradient/TemplateUtil/TemplateStore.h"
#include "host/Menus.h"

namespace {

constexpr int kFirstTemplateEntry = 5;

} // namespace

void BuildTemplateMenu(OpaqueMenuRef* menu, unsigned long fileType) {
    int const count = CountMenuItems(menu);
    std::vector<std::string> const names = GetTemplateList(fileType);
    for (int entry = kFirstTemplateEntry; entry <= count; ++entry) {
        DeleteMenuItem(menu, kFirstTemplateEntry);
    }
    for (std::string const& name : names) {
        // Appending reads its text for menu syntax, setting the text does not.
        AppendMenu(menu, "Temp");
        SetMenuItemText(menu, CountMenuItems(menu), name);
    }
}
