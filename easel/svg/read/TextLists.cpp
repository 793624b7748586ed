#include "easel/svg/read/TextLists.h"

#include "easel/svg/text/Scanner.h"

#include <algorithm>

namespace easel::svg {

std::vector<double> parseLengthList(std::string_view text, const LengthContext& lengths, Axis axis) {
    std::vector<double> values;
    std::string_view rest = trimmed(text);
    while (!rest.empty()) {
        const std::size_t count = std::min(rest.find_first_of(" ,\t\r\n"), rest.size());
        const auto length = parseLength(rest.substr(0, count), lengths, axis);
        if (!length)
            break;
        values.push_back(*length);
        Scanner scanner(rest.substr(count));
        scanner.skipSeparator();
        rest = scanner.rest();
    }
    return values;
}

void TextLists::open(pugi::xml_node element, const LengthContext& lengths) {
    const auto list = [&](const char* name, Axis axis) {
        return parseLengthList(element.attribute(name).value(), lengths, axis);
    };
    open_.push_back({list("x", Axis::Horizontal), list("y", Axis::Vertical), list("dx", Axis::Horizontal),
                     list("dy", Axis::Vertical), list("rotate", Axis::Other)});
}

void TextLists::place(type::Character& character) {
    for (Lists& lists : open_) {
        const std::size_t i = lists.count++;
        if (i < lists.x.size())
            character.x = lists.x[i];
        if (i < lists.y.size())
            character.y = lists.y[i];
        if (i < lists.dx.size())
            character.dx = lists.dx[i];
        if (i < lists.dy.size())
            character.dy = lists.dy[i];
        // The last angle is that of all characters that follow.
        if (!lists.rotate.empty())
            character.rotate = lists.rotate[std::min(i, lists.rotate.size() - 1)];
    }
}

} // namespace easel::svg
