// Makes dialogs and alerts from the resources of the plug-in that is loaded.
#include "easel/runtime/DialogResources.h"

#include "easel/classic/MacRoman.h"

namespace easel::runtime {

namespace {

using classic::ItemResource;
using classic::ItemResourceKind;

ItemKind kindOf(ItemResourceKind kind) {
    switch (kind) {
    case ItemResourceKind::Button:
        return ItemKind::Button;
    case ItemResourceKind::EditText:
        return ItemKind::EditText;
    case ItemResourceKind::User:
    case ItemResourceKind::Separator:
        return ItemKind::UserDrawn;
    case ItemResourceKind::Popup:
        return ItemKind::Popup;
    case ItemResourceKind::Radio:
        return ItemKind::Radio;
    case ItemResourceKind::StaticText:
        break;
    }
    return ItemKind::StaticText;
}

ButtonRole roleOf(classic::ButtonResourceRole role) {
    switch (role) {
    case classic::ButtonResourceRole::Default:
        return ButtonRole::Default;
    case classic::ButtonResourceRole::Cancel:
        return ButtonRole::Cancel;
    case classic::ButtonResourceRole::Plain:
        break;
    }
    return ButtonRole::Plain;
}

TextAlignment alignmentOf(classic::AlignmentResource alignment) {
    switch (alignment) {
    case classic::AlignmentResource::Center:
        return TextAlignment::Center;
    case classic::AlignmentResource::Right:
        return TextAlignment::Right;
    case classic::AlignmentResource::Left:
        break;
    }
    return TextAlignment::Left;
}

// The texts of resources are known to be in the host's encoding.
std::string encoded(const std::string& utf8) {
    return classic::toMacRoman(utf8).value_or("");
}

std::shared_ptr<Menu> menuOf(const classic::PluginResources& resources, int id) {
    auto menu = std::make_shared<Menu>();
    if (const classic::MenuResource* entries = resources.menu(id))
        for (const classic::MenuEntryResource& entry : *entries)
            menu->append({encoded(entry.text), entry.enabled,
                          entry.kind == classic::MenuEntryResource::Kind::Separator});
    return menu;
}

DialogItem itemOf(const classic::PluginResources& resources, const ItemResource& resource, int number) {
    DialogItem item;
    item.number = number;
    item.kind = kindOf(resource.kind);
    item.bounds = {
        .left = resource.left, .top = resource.top, .right = resource.right, .bottom = resource.bottom};
    item.text = encoded(resource.title);
    item.tooltip = resource.tip;
    item.accessibleName = resource.label.empty() ? resource.title : resource.label;
    item.divider = resource.kind == ItemResourceKind::Separator;
    item.enabled = !item.divider;
    item.role = roleOf(resource.role);
    item.alignment = alignmentOf(resource.alignment);
    item.isNumber = resource.isNumber;
    if (item.kind == ItemKind::Popup) {
        item.menu = menuOf(resources, resource.menu);
        item.value = item.menu->count() > 0 ? 1 : 0;
    }
    return item;
}

} // namespace

std::optional<DialogDescription> dialogDescription(const classic::PluginResources& resources, int id) {
    const classic::DialogResource* resource = resources.dialog(id);
    if (!resource)
        return std::nullopt;
    DialogDescription description{id, resource->title, resource->width, resource->height, {}};
    for (const ItemResource& each : resource->items)
        description.items.push_back(itemOf(resources, each, static_cast<int>(description.items.size()) + 1));
    return description;
}

std::optional<Alert> alertDescription(const classic::PluginResources& resources, int id) {
    const classic::AlertResource* resource = resources.alert(id);
    if (!resource)
        return std::nullopt;
    return Alert{id, resource->title, resource->text, resource->detail, resource->confirm, resource->decline};
}

} // namespace easel::runtime
