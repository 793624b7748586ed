// Plays the steps of a scenario that act on a dialog.
#include "easel/play/DialogInput.h"

#include "easel/classic/MacRoman.h"
#include "easel/play/PlayError.h"
#include "easel/play/ScriptedUser.h"
#include "easel/runtime/Dialog.h"
#include "easel/text/Utf8.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <utility>

namespace easel::play {

namespace {

constexpr long kLastNumber = std::numeric_limits<std::int16_t>::max();

const runtime::DialogItem& itemIn(const runtime::Dialog& dialog, Arguments& arguments) {
    const long number = arguments.integer("the item", 1, kLastNumber);
    const runtime::DialogItem* item = dialog.item(static_cast<int>(number));
    if (!item)
        throw PlayError("the dialog has no item " + std::to_string(number));
    return *item;
}

const runtime::DialogItem& itemOfKind(const runtime::Dialog& dialog, Arguments& arguments,
                                      runtime::ItemKind kind, const char* name) {
    const runtime::DialogItem& item = itemIn(dialog, arguments);
    if (item.kind != kind)
        throw PlayError("item " + std::to_string(item.number) + " is no " + name);
    return item;
}

void checkFocus(const runtime::Dialog& dialog) {
    const runtime::DialogItem* item = dialog.item(dialog.focus());
    if (!item || item->kind != runtime::ItemKind::EditText)
        throw PlayError("no edit field has the focus");
}

paint::PixelPoint pixelAt(drawing::Point point) {
    return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

bool isControl(const runtime::DialogItem& item) {
    return item.kind == runtime::ItemKind::Button || item.kind == runtime::ItemKind::Popup ||
           item.kind == runtime::ItemKind::Radio;
}

// Accents that are typed after their letters make one character with them, where the text as a whole can be
// typed.
std::string composed(const std::string& utf8) {
    return classic::toMacRoman(utf8).map(classic::fromMacRoman).value_or(utf8);
}

} // namespace

drawing::Point pointInDialog(const runtime::Dialog& dialog, Arguments& arguments) {
    const runtime::DialogItem* item = arguments.takeIf("item") ? &itemIn(dialog, arguments) : nullptr;
    const drawing::Point point = arguments.point();
    arguments.done();
    const auto pixel = [](double offset, int origin) {
        constexpr double kFarthest = std::numeric_limits<std::int16_t>::max();
        return std::clamp(std::floor(offset) + origin, -kFarthest, kFarthest);
    };
    return {pixel(point.x, item ? item->bounds.left : 0), pixel(point.y, item ? item->bounds.top : 0)};
}

DialogInput::Play DialogInput::playOf(const std::string& command) {
    static const std::map<std::string, Play> all{
        {"hit", &DialogInput::hit},         {"press", &DialogInput::press}, {"move", &DialogInput::move},
        {"release", &DialogInput::release}, {"focus", &DialogInput::focus}, {"type", &DialogInput::type},
        {"erase", &DialogInput::erase},     {"set", &DialogInput::set},     {"choose", &DialogInput::choose},
    };
    const auto found = all.find(command);
    return found == all.end() ? nullptr : found->second;
}

bool DialogInput::play(runtime::Dialog& dialog, const Step& step) {
    const Play known = playOf(step.words[0]);
    if (!known)
        return false;
    Arguments arguments({step.words.begin() + 1, step.words.end()});
    (this->*known)(dialog, arguments);
    return true;
}

// The release is a step of its own that follows.
void DialogInput::hit(runtime::Dialog& dialog, Arguments& arguments) {
    const paint::PixelRect bounds = itemIn(dialog, arguments).bounds;
    arguments.done();
    pressAt(dialog,
            {std::floor((bounds.left + bounds.right) / 2.0), std::floor((bounds.top + bounds.bottom) / 2.0)});
}

void DialogInput::press(runtime::Dialog& dialog, Arguments& arguments) {
    pressAt(dialog, pointInDialog(dialog, arguments));
}

void DialogInput::pressAt(runtime::Dialog& dialog, drawing::Point where) {
    user_.press(where);
    const runtime::DialogItem* item = dialog.itemAt(pixelAt(where));
    if (!item)
        return;
    if (isControl(*item)) {
        pressedControl_ = item->number;
        return;
    }
    if (item->kind == runtime::ItemKind::EditText) {
        const int end = static_cast<int>(item->text.size());
        dialog.selectText(item->number, {end, end});
    }
    dialog.hit(item->number);
}

void DialogInput::move(runtime::Dialog& dialog, Arguments& arguments) {
    user_.moveTo(pointInDialog(dialog, arguments));
}

void DialogInput::release(runtime::Dialog& dialog, Arguments& arguments) {
    arguments.done();
    user_.release();
    const runtime::DialogItem* pressed = dialog.item(std::exchange(pressedControl_, 0));
    if (pressed && pressed->bounds.contains(pixelAt(user_.mouse().at)))
        dialog.hit(pressed->number);
}

void DialogInput::focus(runtime::Dialog& dialog, Arguments& arguments) {
    const int item = itemIn(dialog, arguments).number;
    arguments.done();
    dialog.setFocus(item);
}

void DialogInput::type(runtime::Dialog& dialog, Arguments& arguments) {
    const std::string text = arguments.text("the text");
    arguments.done();
    checkFocus(dialog);
    for (const char32_t key : text::codePointsOf(composed(text)))
        keys_.push_back(key);
}

void DialogInput::strikeKey(runtime::Dialog& dialog) {
    const char32_t key = keys_.front();
    keys_.pop_front();
    if (dialog.typeCharacter(key) == runtime::EditOutcome::Refused)
        user_.beep();
}

void DialogInput::erase(runtime::Dialog& dialog, Arguments& arguments) {
    arguments.done();
    checkFocus(dialog);
    dialog.eraseBackward();
}

void DialogInput::set(runtime::Dialog& dialog, Arguments& arguments) {
    const int item = itemOfKind(dialog, arguments, runtime::ItemKind::EditText, "edit field").number;
    const std::string text = arguments.text("the text");
    arguments.done();
    if (dialog.enterText(item, text) == runtime::EditOutcome::Refused)
        user_.beep();
}

void DialogInput::choose(runtime::Dialog& dialog, Arguments& arguments) {
    const int item = itemOfKind(dialog, arguments, runtime::ItemKind::Popup, "popup menu").number;
    const auto entry = static_cast<int>(arguments.integer("the entry", 1, kLastNumber));
    arguments.done();
    if (dialog.chooseEntry(item, entry) == runtime::EditOutcome::Refused)
        throw PlayError("entry " + std::to_string(entry) + " of item " + std::to_string(item) +
                        " cannot be chosen");
}

} // namespace easel::play
