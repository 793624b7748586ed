// Four-character codes for types, creators, tags and commands.
#pragma once

#include <cstdint>

/// A four-character code, the first character in the highest byte.
using OSType = std::uint32_t;

/// The code spelled by four characters: FourCC("GRDT") is 0x47524454.
consteval OSType FourCC(char const (&code)[5]) {
    OSType value = 0;
    for (int i = 0; i < 4; ++i) {
        value = value << 8 | static_cast<unsigned char>(code[i]);
    }
    return value;
}
