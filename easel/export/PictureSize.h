// How large a picture of a drawing is to be.
#pragma once

#include "easel/files/Result.h"

#include <cstdint>
#include <optional>

namespace easel::exports {

// Finer than most printers are.
inline constexpr double kUsualDotsPerInch = 300;
inline constexpr double kInch = 96; // in drawing units at scale 1

// Width or scale; neither is scale 1, a pixel for each drawing unit.
struct SizeRequest {
    std::optional<double> width; // pixels; the height follows
    std::optional<double> scale;
    // How fine what PDF and SVG can hold as pixels only is to be, such as what filters show.
    double dotsPerInch = kUsualDotsPerInch;
};

struct PictureSize {
    double scale = 1;
    int width = 0; // pixels; parts of a pixel at the right and at the bottom count as whole ones
    int height = 0;

    std::uint64_t bytes() const {
        return std::uint64_t{4} * static_cast<unsigned>(width) * static_cast<unsigned>(height);
    }
};

// No side of a picture is longer.
constexpr int kLongestSide = 1'000'000;

// An error, which names no file, if the size asked for is none that a picture can have.
files::Result<PictureSize> pictureSize(double drawingWidth, double drawingHeight, const SizeRequest& request);

// The scale asked for, of a picture without pixels; an error, which names no file, if it is none.
files::Result<double> scaleOf(double drawingWidth, const SizeRequest& request);

// Bytes of memory that programs may still take; nothing where the system does not say.
std::optional<std::uint64_t> availableMemory();

// An error, which names no file, if there is no memory for the picture; `available` in bytes.
[[nodiscard]] files::Result<> checkMemory(const PictureSize& size, std::optional<std::uint64_t> available);

} // namespace easel::exports
