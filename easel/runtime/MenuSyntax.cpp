// The syntax in which the host interface describes items that are appended to a menu.
#include "easel/runtime/MenuSyntax.h"

namespace easel::runtime {

namespace {

constexpr std::string_view kSeparators = ";\n\r";
constexpr std::string_view kWithArgument = "!</^";

MenuEntry entryIn(std::string_view text) {
    MenuEntry entry;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '(')
            entry.enabled = false;
        else if (kWithArgument.find(text[i]) != std::string_view::npos)
            ++i;
        else
            entry.text += text[i];
    }
    entry.separator = entry.text == "-";
    return entry;
}

} // namespace

std::vector<MenuEntry> menuEntriesIn(std::string_view text) {
    std::vector<MenuEntry> entries;
    for (;;) {
        const std::size_t end = text.find_first_of(kSeparators);
        entries.push_back(entryIn(text.substr(0, end)));
        if (end == std::string_view::npos)
            return entries;
        text.remove_prefix(end + 1);
    }
}

} // namespace easel::runtime
