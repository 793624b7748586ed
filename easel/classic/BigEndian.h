// Big-endian numbers in bytes, as every format of the host's files stores them.
#pragma once

#include "easel/files/Bytes.h"

#include <concepts>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace easel::classic {

using ByteView = std::span<const std::uint8_t>;

// The `length` bytes at `offset`, or nothing where they do not lie within `bytes` as a whole.
inline std::optional<ByteView> part(ByteView bytes, std::uint64_t offset, std::uint64_t length) {
    if (offset > bytes.size() || length > bytes.size() - offset)
        return std::nullopt;
    return bytes.subspan(static_cast<std::size_t>(offset), static_cast<std::size_t>(length));
}

// The number at `offset`, which lies within `bytes`.
template <std::unsigned_integral Number> Number numberAt(ByteView bytes, std::size_t offset) {
    Number value = 0;
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        value = static_cast<Number>((std::uint64_t{value} << 8) | bytes[offset + i]);
    return value;
}

template <std::unsigned_integral Number> void putNumber(files::Bytes& bytes, Number value) {
    for (std::size_t i = sizeof(Number); i-- > 0;)
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

template <std::unsigned_integral Number>
void setNumber(files::Bytes& bytes, std::size_t offset, Number value) {
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        bytes[offset + i] = static_cast<std::uint8_t>(value >> (8 * (sizeof(Number) - 1 - i)));
}

inline void putBytes(files::Bytes& bytes, ByteView more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

inline ByteView viewOf(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

// A four-character code such as 'GTMP' as the 32-bit number it stands for.
constexpr std::uint32_t fourCharacters(const char (&code)[5]) {
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i)
        value = (value << 8) | static_cast<std::uint8_t>(code[i]);
    return value;
}

} // namespace easel::classic
