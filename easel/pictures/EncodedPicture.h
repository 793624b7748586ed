// Pictures in files of pixels: PNG, JPEG, GIF, and WebP where its loader is installed.
#pragma once

#include "easel/drawing/Picture.h"

#include <memory>
#include <string>
#include <variant>

namespace easel::pictures {

// Why a picture cannot be shown.
enum class Refusal : std::uint8_t {
    UnknownFormat, // or one that this installation cannot decode
    Damaged,
    TooLarge, // more pixels than kMostPixels
};

// What is decoded takes up to 8 bytes for each pixel while it is made.
inline constexpr std::int64_t kMostPixels = std::int64_t{24} << 20;

using Opened = std::variant<std::shared_ptr<const drawing::Picture>, Refusal>;

// Looks at the beginning of the file only: what comes behind is decoded when it is asked for, and may turn
// out to be damaged.
Opened openPicture(std::string bytes);

} // namespace easel::pictures
