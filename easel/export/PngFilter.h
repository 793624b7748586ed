// The row filters of PNG: each byte as its difference from a guess made of its neighbours.
#pragma once

#include <cstdint>
#include <span>

namespace easel::exports {

// Values are the filter's number in the file.
enum class PngFilter : std::uint8_t { None = 0, Sub = 1, Up = 2, Paeth = 4 };

// Writes the filtered `row` to `out`. `above` is the row before it, zeros for the first; all three are
// equally long.
void filterPngRow(PngFilter filter, std::size_t bytesPerPixel, std::span<const std::uint8_t> row,
                  std::span<const std::uint8_t> above, std::span<std::uint8_t> out);

} // namespace easel::exports
