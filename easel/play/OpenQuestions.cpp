// Describes what is open in front of the drawing.
#include "easel/play/OpenQuestions.h"

#include "easel/runtime/Alert.h"
#include "easel/runtime/DeletionList.h"
#include "easel/runtime/Dialog.h"

#include <algorithm>

namespace easel::play {

namespace {

const char* kindName(runtime::ItemKind kind) {
    switch (kind) {
    case runtime::ItemKind::Button:
        return "button";
    case runtime::ItemKind::EditText:
        return "edit";
    case runtime::ItemKind::UserDrawn:
        return "user";
    case runtime::ItemKind::Popup:
        return "popup";
    case runtime::ItemKind::Radio:
        return "radio";
    case runtime::ItemKind::StaticText:
        break;
    }
    return "static";
}

Json textsOf(const runtime::Menu& menu) {
    Json texts = Json::array();
    for (int number = 1; number <= menu.count(); ++number)
        texts.push_back(menu.text(number));
    return texts;
}

Json describe(const runtime::DialogItem& item) {
    const paint::PixelRect& bounds = item.bounds;
    Json json{{"item", item.number},
              {"kind", kindName(item.kind)},
              {"bounds", {bounds.top, bounds.left, bounds.bottom, bounds.right}}};
    if (item.kind != runtime::ItemKind::UserDrawn && item.kind != runtime::ItemKind::Popup)
        json["text"] = item.shownText();
    if (item.kind == runtime::ItemKind::EditText)
        json["selection"] = {item.selection.from, item.selection.to};
    if (item.kind == runtime::ItemKind::UserDrawn)
        json["invalid"] = item.invalid;
    if (item.kind == runtime::ItemKind::Popup || item.kind == runtime::ItemKind::Radio)
        json["value"] = item.value;
    if (item.kind == runtime::ItemKind::Popup)
        json["menu"] = textsOf(*item.menu);
    return json;
}

Json describe(const runtime::Dialog* dialog) {
    Json items = Json::array();
    for (const runtime::DialogItem& item : dialog->items())
        items.push_back(describe(item));
    return {{"id", dialog->id()}, {"items", std::move(items)}};
}

Json describe(const runtime::Alert* alert) {
    return {{"id", alert->id}, {"kind", "alert"}, {"text", alert->message()}};
}

Json describe(const ColorQuestion* question) {
    const RGBColor& color = question->color;
    return {{"id", "color"}, {"prompt", question->prompt}, {"color", {color.red, color.green, color.blue}}};
}

Json describe(runtime::DeletionList* list) {
    Json rows = Json::array();
    for (int row = 0; row < list->count(); ++row)
        rows.push_back(list->text(row));
    Json selected = Json::array();
    for (const int row : list->selection())
        selected.push_back(row + 1);
    return {{"id", "delete"}, {"title", list->title()}, {"rows", std::move(rows)}, {"selected", selected}};
}

} // namespace

runtime::Dialog* OpenQuestions::frontDialog() const {
    const auto front = std::find_if(all_.rbegin(), all_.rend(), [](const Question& each) {
        return std::holds_alternative<runtime::Dialog*>(each);
    });
    return front == all_.rend() ? nullptr : std::get<runtime::Dialog*>(*front);
}

Json OpenQuestions::describeFront() const {
    if (all_.empty())
        return nullptr;
    return std::visit([](auto* question) { return describe(question); }, all_.back());
}

} // namespace easel::play
