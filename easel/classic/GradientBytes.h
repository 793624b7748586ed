// A gradient as the bytes in which defaults and templates store it.
//
// Big-endian: "KGRD", version, total length, then type, angle, start, end, radii, the number of stops, each
// stop's channels and position, and a CRC-32 of all that comes before it.
#pragma once

#include "easel/classic/BigEndian.h"
#include "host/Gradient.h"

#include <optional>
#include <string>
#include <tl/expected.hpp>

namespace easel::classic {

// Nothing for a gradient without stops, which nobody could draw.
std::optional<files::Bytes> gradientToBytes(const CGradientData& gradient);

enum class GradientDamage {
    NotAGradient,   // another magic number, or too short to have one
    UnknownVersion, // written by a later program
    WrongLength,    // cut short, or with more behind it
    WrongChecksum,
    WrongStopCount, // no stop, or another number than there is room for
};

tl::expected<CGradientData, GradientDamage> gradientFromBytes(ByteView bytes);

// In words for the user.
std::string describe(GradientDamage damage);

} // namespace easel::classic
