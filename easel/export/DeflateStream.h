// Joins deflate streams that were compressed apart into one, so that a large picture can be compressed by
// several threads.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace easel::exports {

// Where the last block of a deflate stream begins and where the stream ends, in bits from its first byte.
struct DeflateEnd {
    std::size_t lastBlock = 0;
    std::size_t end = 0;
};

// Nothing if the bytes are not one whole deflate stream.
std::optional<DeflateEnd> findDeflateEnd(std::span<const std::uint8_t> stream);

enum class StreamPart { Inner, Last };

// Turns a whole deflate stream into one that another stream can follow byte by byte; a Last one is left as it
// is. Returns false, leaving the bytes alone, if they are not a whole deflate stream.
bool makeDeflatePart(std::vector<std::uint8_t>& stream, StreamPart part);

// The Adler-32 sum of two pieces laid end to end, from their own sums and the length of the second.
std::uint32_t joinedAdler32(std::uint32_t first, std::uint32_t second, std::size_t secondLength);

} // namespace easel::exports
