// PNG files read back by a decoder that is not ours.
#include "easel/export/PngFile.h"
#include "tests/support/ErrorOf.h"

#include <gtest/gtest.h>
#include <spng.h>

#include <fstream>
#include <memory>
#include <random>

namespace {

using easel::exports::encodePng;
using easel::exports::PixelRows;
using easel::exports::rowsOf;
using easel::paint::Surface;

struct Decoded {
    spng_ihdr header{};
    std::vector<std::uint8_t> pixels; // four bytes each, not premultiplied
};

Decoded decoded(const std::vector<std::uint8_t>& file) {
    const std::unique_ptr<spng_ctx, decltype(&spng_ctx_free)> png(spng_ctx_new(0), &spng_ctx_free);
    Decoded result;
    spng_set_png_buffer(png.get(), file.data(), file.size());
    EXPECT_EQ(spng_get_ihdr(png.get(), &result.header), 0);
    std::size_t size = 0;
    EXPECT_EQ(spng_decoded_image_size(png.get(), SPNG_FMT_RGBA8, &size), 0);
    result.pixels.resize(size);
    EXPECT_EQ(spng_decode_image(png.get(), result.pixels.data(), size, SPNG_FMT_RGBA8, 0), 0);
    // The end of the stream and the sums are only looked at when the decoder comes to the last chunk.
    EXPECT_EQ(spng_decode_chunks(png.get()), 0);
    return result;
}

// The four bytes that a premultiplied pixel should become.
std::array<int, 4> plain(std::uint32_t pixel) {
    const int alpha = static_cast<int>(pixel >> 24);
    const auto channel = [&](unsigned shift) {
        const int value = static_cast<int>(pixel >> shift & 255);
        return alpha == 0 ? value
                          : static_cast<int>(std::min(255.0, std::floor(value * 255.0 / alpha + 0.5)));
    };
    return {channel(16), channel(8), channel(0), alpha};
}

void expectSamePixels(const PixelRows& picture, const Decoded& read) {
    ASSERT_EQ(read.header.width, static_cast<std::uint32_t>(picture.width));
    ASSERT_EQ(read.header.height, static_cast<std::uint32_t>(picture.height));
    const std::uint8_t* at = read.pixels.data();
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x, at += 4)
            ASSERT_EQ((std::array<int, 4>{at[0], at[1], at[2], at[3]}), plain(picture.row(y)[x]))
                << x << "," << y;
}

// Smooth slopes with noise in a corner, so that different bands like different filters.
Surface pattern(int width, int height, bool translucent) {
    Surface surface(width, height);
    std::mt19937 random(3);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const auto noise = static_cast<std::uint32_t>(x > width / 2 && y > height / 2 ? random() : 0);
            const std::uint32_t alpha = translucent ? static_cast<std::uint32_t>(x + y) & 255u : 255u;
            const auto channel = [&](std::uint32_t value) { return (value & 255u) * alpha / 255u; };
            const auto along = static_cast<std::uint32_t>(x);
            const auto downwards = static_cast<std::uint32_t>(y);
            surface.row(y)[x] = alpha << 24 | channel(along / 3 + noise) << 16 | channel(downwards / 2) << 8 |
                                channel((along + downwards) / 5 + (noise >> 8));
        }
    return surface;
}

TEST(PngFile, ADecoderReadsBackEveryPixel) {
    for (const bool translucent : {false, true})
        for (const auto& [width, height] :
             {std::pair{1, 1}, {3, 2}, {1, 700}, {900, 1}, {701, 977}, {1500, 1100}}) {
            const Surface surface = pattern(width, height, translucent);
            expectSamePixels(rowsOf(surface), decoded(encodePng(rowsOf(surface))));
        }
}

TEST(PngFile, OnlyPicturesWithTransparencyHaveAnAlphaChannel) {
    EXPECT_EQ(decoded(encodePng(rowsOf(pattern(40, 30, false)))).header.color_type,
              SPNG_COLOR_TYPE_TRUECOLOR);
    EXPECT_EQ(decoded(encodePng(rowsOf(pattern(40, 30, true)))).header.color_type,
              SPNG_COLOR_TYPE_TRUECOLOR_ALPHA);
}

TEST(PngFile, TheBytesDoNotDependOnTheNumberOfThreads) {
    const Surface surface = pattern(1200, 1300, true);
    const auto one = encodePng(rowsOf(surface), 1);
    EXPECT_EQ(encodePng(rowsOf(surface), 2), one);
    EXPECT_EQ(encodePng(rowsOf(surface), 7), one);
}

TEST(PngFile, RowsMayLieFartherApartThanTheyAreLong) {
    const Surface surface = pattern(300, 200, true);
    const PixelRows part{surface.row(20) + 30, 100, 80, surface.stride()};
    expectSamePixels(part, decoded(encodePng(part)));
}

TEST(PngFile, AFileThatCannotBeWrittenIsReportedWithItsName) {
    const auto error =
        tests::errorOf(easel::exports::writePng("/no/such/folder/picture.png", rowsOf(pattern(4, 4, false))));
    EXPECT_NE(error.message().find("/no/such/folder/picture.png"), std::string::npos);
}

} // namespace
