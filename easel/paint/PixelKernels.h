// The inner loops of painting, compiled for each SIMD instruction set and chosen when the program runs. All
// of them give the same pixels.
#pragma once

#include <array>
#include <cstdint>

namespace easel::paint {

// Pixels that LinearSteps reaches over.
constexpr int kBlock = 16;

// By how much the colors of a block's pixels differ from its first one's, in 256ths of a level modulo 65536:
// blue in the low half and red in the high half of `blueRed`, green in the low half of `green`.
struct LinearSteps {
    alignas(64) std::array<std::uint32_t, kBlock> blueRed;
    alignas(64) std::array<std::uint32_t, kBlock> green;
};

// Blue, green and red of a first pixel and their change over a block, modulo 2 to the 32: levels times 2 to
// the 24, with half a level added for rounding.
struct LinearStart {
    std::array<std::uint32_t, 3> color;
    std::array<std::uint32_t, 3> blockStep;
};

// Writes `count` opaque pixels. Up to `room` pixels (at least `count`) may be written over; what is in those
// beyond `count` is then undefined.
void fillLinear(std::uint32_t* pixels, int count, int room, const LinearStart& start,
                const LinearSteps& steps);

// Pixel k has the distance sqrt(u u + height) + lean u with u = offset + k, and the color
// color + slope (distance - reference) for blue, green and red in levels.
struct RadialRun {
    float offset;
    float height;
    float lean;
    float reference;
    std::array<float, 3> color;
    std::array<float, 3> slope;
};

// As fillLinear.
void fillRadial(std::uint32_t* pixels, int count, int room, const RadialRun& run);

// Pixel k gets the color color + k step (blue, green, red, 255 for alpha; in levels) laid over it with the
// weight weight + k weightStep, from 0 to 1.
struct BlendRun {
    alignas(16) std::array<float, 4> color;
    alignas(16) std::array<float, 4> step;
    float weight;
    float weightStep;
};

void blendLinear(std::uint32_t* pixels, int count, const BlendRun& run);

} // namespace easel::paint
