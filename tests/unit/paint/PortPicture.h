// A port's image as rows of letters, to be compared with pictures drawn by hand.
#pragma once

#include "easel/paint/Port.h"

#include <string>
#include <vector>

namespace easel::paint {

// '#' black, '.' white, '?' anything else.
inline std::vector<std::string> picture(const Port& port) {
    std::vector<std::string> rows;
    for (int v = 0; v < port.imageHeight(); ++v) {
        std::string row;
        for (int h = 0; h < port.imageWidth(); ++h) {
            const std::uint32_t pixel = port.pixels()[v * port.imageWidth() + h];
            row += pixel == 0xff000000u ? '#' : pixel == 0xffffffffu ? '.' : '?';
        }
        rows.push_back(row);
    }
    return rows;
}

using Picture = std::vector<std::string>;

} // namespace easel::paint
