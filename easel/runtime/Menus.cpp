// Entries of menus.
#include "easel/runtime/Menus.h"

#include "easel/classic/MacRoman.h"
#include "easel/classic/TemplateInfo.h"

#include <utility>

namespace easel::runtime {

const MenuEntry& Menu::entry(int number) const {
    return entries_[static_cast<std::size_t>(number - 1)];
}

std::string Menu::text(int number) const {
    return classic::fromMacRoman(entry(number).text);
}

bool Menu::selectable(int number) const {
    return has(number) && entry(number).enabled && !entry(number).separator;
}

bool Menu::isHeading(int number) const {
    return has(number - 1) && entry(number - 1).separator && has(number + 1) &&
           entry(number + 1).text.ends_with(classic::kTemplateEnding);
}

void Menu::append(MenuEntry entry) {
    entries_.push_back(std::move(entry));
    ++revision_;
}

void Menu::remove(int number) {
    if (!has(number))
        return;
    entries_.erase(entries_.begin() + (number - 1));
    ++revision_;
}

void Menu::setText(int number, std::string text) {
    if (!has(number))
        return;
    entries_[static_cast<std::size_t>(number - 1)].text = std::move(text);
    ++revision_;
}

} // namespace easel::runtime
