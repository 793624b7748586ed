// An open dialog as the host handles it: items, values, drawing and what its observer is told.
#include "easel/runtime/Dialog.h"

#include "easel/paint/Port.h"
#include "easel/runtime/Ports.h"

#include <algorithm>
#include <utility>

namespace easel::runtime {

namespace {

paint::Port portFor(int width, int height, const DialogScreen& screen) {
    paint::Port port({.right = width, .bottom = height}, screen.scale, screen.theme.background);
    port.state().background = screen.theme.erased;
    return port;
}

} // namespace

Dialog::Dialog(DialogDescription description, const DialogScreen& screen, Ports& ports)
    : id_(description.id), title_(std::move(description.title)), width_(description.width),
      height_(description.height), items_(std::move(description.items)), screen_(screen), ports_(ports),
      port_(std::make_unique<paint::Port>(portFor(width_, height_, screen))) {
    ports_.add(*port_);
    const auto field = std::find_if(items_.begin(), items_.end(),
                                    [](const DialogItem& each) { return each.kind == ItemKind::EditText; });
    if (field != items_.end())
        setFocus(field->number);
    invalidateDrawnItems();
}

Dialog::~Dialog() {
    ports_.forget(*port_);
}

DialogItem* Dialog::find(int number) {
    const bool known = number >= 1 && number <= static_cast<int>(items_.size());
    return known ? &items_[static_cast<std::size_t>(number - 1)] : nullptr;
}

const DialogItem* Dialog::item(int number) const {
    return const_cast<Dialog*>(this)->find(number);
}

DialogItem* Dialog::itemOfKind(int number, ItemKind kind) {
    DialogItem* found = find(number);
    return found && found->kind == kind ? found : nullptr;
}

const DialogItem* Dialog::itemAt(paint::PixelPoint point) const {
    const auto found = std::find_if(items_.begin(), items_.end(),
                                    [point](const DialogItem& each) { return each.bounds.contains(point); });
    return found == items_.end() ? nullptr : &*found;
}

int Dialog::itemWithRole(ButtonRole role) const {
    const auto found = std::find_if(items_.begin(), items_.end(),
                                    [role](const DialogItem& each) { return each.role == role; });
    return found == items_.end() ? 0 : found->number;
}

void Dialog::changed(int item, ItemChange change) {
    if (observer_)
        observer_->itemChanged(item, change);
}

void Dialog::setText(int number, std::string text) {
    DialogItem* target = find(number);
    if (!target)
        return;
    text.resize(std::min(text.size(), kLongestText));
    target->text = std::move(text);
    const int end = static_cast<int>(target->text.size());
    target->selection = {end, end};
    changed(number, ItemChange::Text);
}

void Dialog::setValue(int number, int value) {
    if (DialogItem* radio = itemOfKind(number, ItemKind::Radio))
        radio->value = value != 0 ? 1 : 0;
    else if (DialogItem* popup = itemOfKind(number, ItemKind::Popup))
        popup->value = std::clamp(value, std::min(1, popup->menu->count()), popup->menu->count());
    else
        return;
    changed(number, ItemChange::Value);
}

void Dialog::setDrawProcedure(int number, ItemDrawProcedure procedure) {
    if (DialogItem* target = itemOfKind(number, ItemKind::UserDrawn))
        target->draw = procedure;
    invalidate(number);
}

void Dialog::setDivider(int number, bool divider) {
    if (DialogItem* target = itemOfKind(number, ItemKind::UserDrawn))
        target->divider = divider;
}

void Dialog::invalidate(int number) {
    DialogItem* target = itemOfKind(number, ItemKind::UserDrawn);
    if (!target)
        return;
    target->invalid = true;
    changed(number, ItemChange::Invalid);
}

void Dialog::invalidateDrawnItems() {
    for (const DialogItem& each : items_)
        invalidate(each.number);
}

void Dialog::show() {
    if (shown_)
        return;
    shown_ = true;
    // A field that the program has not touched since opens as one that was tabbed into.
    if (const DialogItem* field = focusedField(); field && field->selection.from == field->selection.to)
        setFocus(field->number);
    if (observer_)
        observer_->shownChanged();
}

void Dialog::setScreen(const DialogScreen& screen) {
    if (screen == screen_)
        return;
    screen_ = screen;
    paint::Port fresh = portFor(width_, height_, screen);
    fresh.state() = port_->state();
    fresh.state().background = screen.theme.erased;
    fresh.addDamage(fresh.bounds());
    // The place in memory stays, since it may be the current port.
    *port_ = std::move(fresh);
    invalidateDrawnItems();
}

bool Dialog::hasInvalidItems() const {
    return std::any_of(items_.begin(), items_.end(), [](const DialogItem& each) { return each.invalid; });
}

void Dialog::drawInvalidItems() {
    const CurrentPortScope current(ports_, *port_);
    for (DialogItem& each : items_) {
        if (!std::exchange(each.invalid, false))
            continue;
        if (each.draw)
            each.draw(ref(), static_cast<short>(each.number));
    }
}

ItemContent* Dialog::contentAt(paint::PixelPoint place) {
    const DialogItem* const found = itemAt(place);
    DialogItem* const drawn = found ? itemOfKind(found->number, ItemKind::UserDrawn) : nullptr;
    if (!drawn)
        return nullptr;
    drawn->contentReported = false;
    return &drawn->content;
}

void Dialog::erased(const paint::PixelRect& area) {
    for (DialogItem& each : items_)
        each.content.erased(area);
}

void Dialog::painted(const paint::PixelRect& area, const drawing::Rgb16& color) {
    ItemContent* const content = contentAt({area.left, area.top});
    if (content && itemAt({area.left, area.top})->bounds == area)
        content->color = color;
}

void Dialog::flush() {
    const paint::PixelRect damage = port_->takeDamage();
    if (!observer_)
        return;
    for (DialogItem& each : items_) {
        if (each.menu && std::exchange(each.menuReported, each.menu->revision()) != each.menu->revision())
            changed(each.number, ItemChange::Menu);
        if (!std::exchange(each.contentReported, true))
            changed(each.number, ItemChange::Content);
    }
    if (!damage.empty())
        observer_->pixelsDrawn(damage);
}

} // namespace easel::runtime
