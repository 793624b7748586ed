// Files of pixels, whole, damaged and boasting.
#include "tests/support/SmallPictures.h"

#include "easel/pictures/EncodedPicture.h"
#include "easel/pictures/RecentPixels.h"
#include "easel/svg/text/DataUri.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <thread>

namespace {

using namespace easel::pictures;
using PicturePtr = std::shared_ptr<const easel::drawing::Picture>;
using Pixels = std::vector<std::uint32_t>;

std::string bytesOf(const char* base64) {
    return easel::svg::parseDataUri("data:;base64," + std::string(base64))->bytes;
}

PicturePtr opened(const std::string& bytes) {
    const Opened result = openPicture(bytes);
    return std::holds_alternative<PicturePtr>(result) ? std::get<PicturePtr>(result) : nullptr;
}

std::optional<Refusal> refusalOf(const std::string& bytes) {
    const Opened result = openPicture(bytes);
    return std::holds_alternative<Refusal>(result) ? std::optional(std::get<Refusal>(result)) : std::nullopt;
}

const Pixels kFourColors = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFF00};

// The head of a PNG file of that size, as the format's standard has it, and pixels that never come.
std::string boastingPng(std::uint32_t width, std::uint32_t height) {
    std::string chunk = "IHDR";
    for (const std::uint32_t number : {width, height})
        for (const int shift : {24, 16, 8, 0})
            chunk += static_cast<char>(number >> shift & 0xFF);
    chunk += std::string("\x08\x06\0\0\0", 5);
    std::uint32_t check = 0xFFFFFFFF;
    for (const char c : chunk) {
        check ^= static_cast<unsigned char>(c);
        for (int bit = 0; bit < 8; ++bit)
            check = check >> 1 ^ (check & 1 ? 0xEDB88320 : 0);
    }
    std::string png = "\x89PNG\r\n\x1A\n" + std::string("\0\0\0\x0D", 4) + chunk;
    for (const int shift : {24, 16, 8, 0})
        png += static_cast<char>(~check >> shift & 0xFF);
    return png + std::string("\0\0\x10\0", 4) + "IDAT";
}

TEST(EncodedPicture, HasThePixelsOfItsFileInEveryFormat) {
    for (const char* const file : {small_pictures::kFourColorsPng, small_pictures::kFourColorsGif}) {
        const PicturePtr picture = opened(bytesOf(file));
        ASSERT_TRUE(picture) << file;
        EXPECT_EQ(picture->width(), 2);
        EXPECT_EQ(picture->height(), 2);
        EXPECT_EQ(picture->pixels()->pixels, kFourColors);
    }
    const PicturePtr brown = opened(bytesOf(small_pictures::kBrownJpeg));
    ASSERT_TRUE(brown);
    EXPECT_EQ(brown->mediaType(), "image/jpeg");
    // JPEG keeps brightness and colors in whole steps, here some levels wide.
    for (const std::uint32_t pixel : brown->pixels()->pixels) {
        EXPECT_NEAR(pixel >> 16 & 0xFF, 120, 8);
        EXPECT_NEAR(pixel >> 8 & 0xFF, 80, 8);
        EXPECT_NEAR(pixel & 0xFF, 40, 8);
    }
}

TEST(EncodedPicture, OfWebpIsShownWhereThereIsALoader) {
    const PicturePtr picture = opened(bytesOf(small_pictures::kBrownWebp));
    if (!picture)
        GTEST_SKIP() << "webp-pixbuf-loader is not installed";
    EXPECT_EQ(picture->pixels()->pixels, Pixels(16, 0xFF785028));
}

TEST(EncodedPicture, MultipliesColorsByAlpha) {
    const PicturePtr picture = opened(bytesOf(small_pictures::kHalfClearPng));
    ASSERT_TRUE(picture);
    // 200, 100 and 50 times 128 / 255.
    EXPECT_EQ(picture->pixels()->pixels, (Pixels{128u << 24 | 100u << 16 | 50u << 8 | 25u, 0}));
}

TEST(EncodedPicture, ThatClaimsMorePixelsThanThereIsRoomForIsRefusedUnread) {
    EXPECT_EQ(refusalOf(boastingPng(100000, 100000)), Refusal::TooLarge);
    EXPECT_EQ(refusalOf(boastingPng(6145, 4096)), Refusal::TooLarge);
    // The largest one is let in, and then has nothing to show.
    const PicturePtr largest = opened(boastingPng(6144, 4096));
    ASSERT_TRUE(largest);
    EXPECT_EQ(largest->width(), 6144);
}

TEST(EncodedPicture, OfAnotherFormatIsNotRead) {
    EXPECT_EQ(refusalOf("<svg xmlns='http://www.w3.org/2000/svg' width='1' height='1'/>"),
              Refusal::UnknownFormat);
    EXPECT_EQ(refusalOf(""), Refusal::UnknownFormat);
    EXPECT_EQ(refusalOf("\x89PNG\r\n\x1A\n and no more"), Refusal::Damaged);
}

TEST(EncodedPicture, CutOffAnywhereNeverShowsWrongSizes) {
    for (const char* const file : {small_pictures::kFourColorsPng, small_pictures::kFourColorsGif,
                                   small_pictures::kBrownJpeg, small_pictures::kBrownWebp}) {
        const std::string whole = bytesOf(file);
        for (std::size_t size = 0; size < whole.size(); ++size) {
            const PicturePtr picture = opened(whole.substr(0, size));
            const auto pixels = picture ? picture->pixels() : nullptr;
            if (pixels) {
                EXPECT_EQ(pixels->pixels.size(),
                          static_cast<std::size_t>(picture->width() * picture->height()));
            }
        }
    }
}

TEST(EncodedPicture, IsDecodedOnceForThreadsThatAskAtTheSameTime) {
    const PicturePtr picture = opened(bytesOf(small_pictures::kFourColorsPng));
    ASSERT_TRUE(picture);
    std::array<std::shared_ptr<const easel::drawing::PicturePixels>, 4> seen;
    std::vector<std::thread> threads;
    for (auto& pixels : seen)
        threads.emplace_back([&] { pixels = picture->pixels(); });
    for (std::thread& thread : threads)
        thread.join();
    for (const auto& pixels : seen)
        EXPECT_EQ(pixels, seen.front());
}

TEST(RecentPixels, KeepsThoseThatWereUsedLast) {
    const auto pixelsOf = [](std::size_t count) {
        return std::make_shared<const easel::drawing::PicturePixels>(
            easel::drawing::PicturePixels{static_cast<int>(count), 1, Pixels(count)});
    };
    RecentPixels recent(10);
    auto one = pixelsOf(4);
    auto other = pixelsOf(4);
    recent.keep(one);
    recent.keep(other);
    recent.keep(one);
    const std::weak_ptr<const easel::drawing::PicturePixels> oneSeen = one;
    const std::weak_ptr<const easel::drawing::PicturePixels> otherSeen = other;
    one.reset();
    other.reset();
    EXPECT_FALSE(oneSeen.expired());
    EXPECT_FALSE(otherSeen.expired());
    recent.keep(pixelsOf(4));
    EXPECT_FALSE(oneSeen.expired());
    EXPECT_TRUE(otherSeen.expired());
    // One alone is kept whatever its size, until it is of no more use.
    auto large = pixelsOf(100);
    recent.keep(large);
    EXPECT_TRUE(oneSeen.expired());
    EXPECT_GT(large.use_count(), 1);
    recent.forget(large);
    EXPECT_EQ(large.use_count(), 1);
}

} // namespace
