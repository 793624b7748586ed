// What the person in front of a dialog does to it: typing, choosing, moving the focus, hitting items.
#include "easel/runtime/Dialog.h"

#include "easel/classic/MacRoman.h"
#include "easel/text/Utf8.h"

#include <algorithm>

namespace easel::runtime {

namespace {

// Whether the text can be in a field: encoded, short enough and without the codes of keys that write nothing.
bool fits(const std::string& text) {
    return text.size() <= kLongestText && std::none_of(text.begin(), text.end(), [](char letter) {
               const auto code = static_cast<unsigned char>(letter);
               return code < 0x20 || code == 0x7f;
           });
}

TextSelection within(TextSelection selection, const std::string& text) {
    const int end = static_cast<int>(text.size());
    const int from = std::clamp(selection.from, 0, end);
    return {from, std::clamp(selection.to, from, end)};
}

} // namespace

void Dialog::replaceSelection(DialogItem& field, const std::string& replacement) {
    const auto from = static_cast<std::size_t>(field.selection.from);
    const auto to = static_cast<std::size_t>(field.selection.to);
    field.text.replace(from, to - from, replacement);
    const int caret = static_cast<int>(from + replacement.size());
    field.selection = {caret, caret};
    changed(field.number, ItemChange::Text);
    hit(field.number);
}

EditOutcome Dialog::typeCharacter(char32_t character) {
    DialogItem* field = focusedField();
    const auto encoded = classic::toMacRoman(text::utf8Of(character));
    if (!field || !encoded || !fits(*encoded))
        return EditOutcome::Refused;
    const auto selected = static_cast<std::size_t>(field->selection.to - field->selection.from);
    if (field->text.size() - selected + encoded->size() > kLongestText)
        return EditOutcome::Refused;
    replaceSelection(*field, *encoded);
    return EditOutcome::Accepted;
}

EditOutcome Dialog::eraseBackward() {
    DialogItem* field = focusedField();
    if (!field)
        return EditOutcome::Refused;
    TextSelection& selection = field->selection;
    if (selection.from == selection.to)
        selection.from = std::max(0, selection.from - 1);
    replaceSelection(*field, "");
    return EditOutcome::Accepted;
}

EditOutcome Dialog::eraseForward() {
    DialogItem* field = focusedField();
    if (!field)
        return EditOutcome::Refused;
    TextSelection& selection = field->selection;
    if (selection.from == selection.to)
        selection.to = std::min(selection.to + 1, static_cast<int>(field->text.size()));
    replaceSelection(*field, "");
    return EditOutcome::Accepted;
}

EditOutcome Dialog::enterText(int number, const std::string& utf8) {
    DialogItem* field = itemOfKind(number, ItemKind::EditText);
    const auto encoded = classic::toMacRoman(utf8);
    if (!field || !encoded || !fits(*encoded))
        return EditOutcome::Refused;
    moveFocus(number);
    field->selection = {0, static_cast<int>(field->text.size())};
    replaceSelection(*field, *encoded);
    return EditOutcome::Accepted;
}

void Dialog::selectText(int number, TextSelection selection) {
    DialogItem* field = itemOfKind(number, ItemKind::EditText);
    if (!field)
        return;
    if (!focusHeld_)
        moveFocus(number);
    field->selection = within(selection, field->text);
    changed(number, ItemChange::Selection);
}

EditOutcome Dialog::chooseEntry(int number, int entry) {
    DialogItem* popup = itemOfKind(number, ItemKind::Popup);
    if (!popup || !popup->enabled || !popup->menu->selectable(entry))
        return EditOutcome::Refused;
    popup->value = entry;
    changed(number, ItemChange::Value);
    hit(number);
    return EditOutcome::Accepted;
}

void Dialog::moveFocus(int number) {
    if (focus_ == number)
        return;
    focus_ = number;
    if (observer_)
        observer_->focusChanged();
}

void Dialog::setFocus(int number) {
    const DialogItem* const target = item(number);
    if (target && target->divider)
        return;
    moveFocus(target ? number : 0);
    if (const DialogItem* field = focusedField())
        selectText(number, {0, static_cast<int>(field->text.size())});
}

void Dialog::hit(int number) {
    if (const DialogItem* target = item(number); target && target->enabled)
        hits_.push_back(number);
}

void Dialog::pressKey(DialogKey key) {
    if (standardKeys_ == StandardKeys::On)
        hit(itemWithRole(key == DialogKey::Enter ? ButtonRole::Default : ButtonRole::Cancel));
}

std::optional<int> Dialog::takeHit() {
    if (hits_.empty())
        return std::nullopt;
    const int number = hits_.front();
    hits_.pop_front();
    return number;
}

} // namespace easel::runtime
