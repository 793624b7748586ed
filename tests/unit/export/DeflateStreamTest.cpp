// Deflate streams joined from parts must unpack to the parts' bytes laid end to end.
#include "easel/export/DeflateStream.h"

#include <gtest/gtest.h>
#include <libdeflate.h>

#include <random>
#include <string>

namespace {

using easel::exports::findDeflateEnd;
using easel::exports::joinedAdler32;
using easel::exports::makeDeflatePart;
using easel::exports::StreamPart;
using Bytes = std::vector<std::uint8_t>;

Bytes packed(const Bytes& bytes, int level) {
    libdeflate_compressor* const compressor = libdeflate_alloc_compressor(level);
    Bytes out(libdeflate_deflate_compress_bound(compressor, bytes.size()));
    out.resize(libdeflate_deflate_compress(compressor, bytes.data(), bytes.size(), out.data(), out.size()));
    libdeflate_free_compressor(compressor);
    return out;
}

Bytes unpacked(const Bytes& stream, std::size_t size) {
    libdeflate_decompressor* const decompressor = libdeflate_alloc_decompressor();
    Bytes out(size);
    std::size_t got = 0;
    const libdeflate_result result = libdeflate_deflate_decompress(decompressor, stream.data(), stream.size(),
                                                                   out.data(), out.size(), &got);
    libdeflate_free_decompressor(decompressor);
    EXPECT_EQ(result, LIBDEFLATE_SUCCESS);
    out.resize(got);
    return out;
}

// Bytes of differing character: even noise stores or codes as literals, skewed noise packs, texts repeat.
Bytes sample(unsigned seed, std::size_t size) {
    std::mt19937 random(seed);
    Bytes bytes(size);
    for (std::size_t i = 0; i < size; ++i) {
        const auto value = static_cast<unsigned>(random());
        bytes[i] = static_cast<std::uint8_t>(seed % 3 == 0   ? value
                                             : seed % 3 == 1 ? value & value >> 8 & value >> 16
                                                             : (i * i / 977) % 251 + (value % 40 == 0));
    }
    return bytes;
}

TEST(DeflateStream, JoinedPartsUnpackToAllTheirBytes) {
    for (const int level : {0, 1, 2, 4, 6, 9, 12}) {
        Bytes joined;
        Bytes expected;
        for (unsigned part = 0; part < 12; ++part) {
            const Bytes bytes = sample(part, std::size_t{900} * part * part);
            Bytes stream = packed(bytes, level);
            ASSERT_TRUE(makeDeflatePart(stream, part == 11 ? StreamPart::Last : StreamPart::Inner));
            joined.insert(joined.end(), stream.begin(), stream.end());
            expected.insert(expected.end(), bytes.begin(), bytes.end());
        }
        EXPECT_EQ(unpacked(joined, expected.size() + 1), expected) << "level " << level;
    }
}

TEST(DeflateStream, EveryEndInsideAByteIsBroughtToAByte) {
    // Short texts of growing length end at all eight bit positions.
    std::array<bool, 8> met{};
    for (std::size_t size = 0; size < 200; ++size) {
        const Bytes bytes(size, std::uint8_t{'a'});
        Bytes first = sample(1, size);
        Bytes stream = packed(first, 6);
        met[findDeflateEnd(stream)->end % 8] = true;
        ASSERT_TRUE(makeDeflatePart(stream, StreamPart::Inner));
        const Bytes last = packed(bytes, 6);
        stream.insert(stream.end(), last.begin(), last.end());
        first.insert(first.end(), bytes.begin(), bytes.end());
        ASSERT_EQ(unpacked(stream, first.size() + 1), first) << size;
    }
    EXPECT_EQ(met, (std::array<bool, 8>{true, true, true, true, true, true, true, true}));
}

TEST(DeflateStream, CutOrDamagedStreamsAreRefusedOrWalkedWithoutHarm) {
    const Bytes whole = packed(sample(2, 20000), 6);
    for (std::size_t size = 0; size + 1 < whole.size(); size += 7)
        EXPECT_FALSE(findDeflateEnd(std::span(whole).first(size))) << size;
    std::mt19937 random(7);
    for (int i = 0; i < 3000; ++i) {
        Bytes damaged = whole;
        for (int k = 0; k < 4; ++k)
            damaged[random() % damaged.size()] = static_cast<std::uint8_t>(random());
        const auto end = findDeflateEnd(damaged);
        if (end) {
            EXPECT_LE(end->end, damaged.size() * 8);
        }
    }
}

TEST(DeflateStream, AdlerSumsOfPiecesJoin) {
    const Bytes bytes = sample(1, 300000);
    const std::uint32_t whole = libdeflate_adler32(1, bytes.data(), bytes.size());
    for (const std::size_t cut :
         {std::size_t{0}, std::size_t{1}, std::size_t{65521}, std::size_t{200001}, bytes.size()}) {
        const std::uint32_t first = libdeflate_adler32(1, bytes.data(), cut);
        const std::uint32_t second = libdeflate_adler32(1, bytes.data() + cut, bytes.size() - cut);
        EXPECT_EQ(joinedAdler32(first, second, bytes.size() - cut), whole) << cut;
    }
}

} // namespace
