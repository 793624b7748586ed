// Pixels as an element of SVG: a PNG file in base 64 (RFC 4648, 4).
#include "easel/export/PictureElement.h"

#include "easel/export/PngFile.h"
#include "easel/svg/write/ElementText.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace easel::exports {

namespace {

std::string base64(std::span<const std::uint8_t> bytes) {
    constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t count = std::min<std::size_t>(bytes.size() - i, 3);
        std::uint32_t three = 0;
        for (std::size_t k = 0; k < 3; ++k)
            three = three << 8 | (k < count ? bytes[i + k] : 0u);
        for (std::size_t k = 0; k < 4; ++k)
            text += k <= count ? kLetters[three >> (18 - 6 * k) & 63] : '=';
    }
    return text;
}

} // namespace

std::string pictureElement(const paint::Surface& pixels, const drawing::Affine& toDrawing) {
    return "<image" + svg::attribute("width", std::to_string(pixels.width())) +
           svg::attribute("height", std::to_string(pixels.height())) +
           svg::transformAttribute("transform", toDrawing) +
           svg::attribute("href", "data:image/png;base64," + base64(encodePng(rowsOf(pixels)))) + "/>";
}

} // namespace easel::exports
