// The bytes of a stored gradient, whole and damaged.
#include "easel/classic/GradientBytes.h"
#include "tests/support/ErrorOf.h"

#include <bit>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace easel::classic;
using namespace easel::files;

namespace {

bool sameBits(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

void expectSame(const CGradientData& a, const CGradientData& b) {
    EXPECT_EQ(a.Type(), b.Type());
    EXPECT_TRUE(sameBits(a.Angle(), b.Angle()));
    EXPECT_TRUE(sameBits(a.Start().h, b.Start().h) && sameBits(a.Start().v, b.Start().v));
    EXPECT_TRUE(sameBits(a.End().h, b.End().h) && sameBits(a.End().v, b.End().v));
    EXPECT_TRUE(sameBits(a.StartRadius(), b.StartRadius()) && sameBits(a.EndRadius(), b.EndRadius()));
    ASSERT_EQ(a.ColorList().size(), b.ColorList().size());
    for (auto i = a.ColorList().begin(), j = b.ColorList().begin(); i != a.ColorList().end(); ++i, ++j) {
        EXPECT_EQ(i->ColorRGB(), j->ColorRGB());
        EXPECT_TRUE(sameBits(i->Percent(), j->Percent()));
    }
}

CGradientData sample() {
    CGradientData gradient;
    gradient.SetType(kRadialGradient);
    gradient.SetAngle(33.3F);
    gradient.SetStart({0.1, 0.2});
    gradient.SetEnd({0.7, 1.5});
    gradient.SetStartRadius(0.3F);
    gradient.SetEndRadius(12.75F);
    gradient.ColorList().insert(std::next(gradient.ColorList().begin()),
                                CGradientColor({1, 256, 65535}, 0.3));
    return gradient;
}

CGradientData readBack(const CGradientData& gradient) {
    return gradientFromBytes(*gradientToBytes(gradient)).value();
}

std::uint32_t crc32(ByteView bytes) {
    std::uint32_t crc = 0xFFFFFFFF;
    for (const auto byte : bytes) {
        crc ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = crc & 1 ? crc >> 1 ^ 0xEDB88320 : crc >> 1;
    }
    return ~crc;
}

// Puts a right checksum on changed bytes, so that the checks behind it are reached.
Bytes resealed(Bytes bytes) {
    bytes.resize(bytes.size() - 4);
    putNumber(bytes, crc32(bytes));
    return bytes;
}

TEST(GradientBytes, EveryFieldAndStopSurvives) {
    expectSame(readBack(CGradientData()), CGradientData());
    expectSame(readBack(sample()), sample());
}

TEST(GradientBytes, RandomRecordsSurviveBitForBit) {
    std::mt19937_64 random(5);
    const auto number = [&] { return std::bit_cast<double>(random()); };
    const auto single = [&] {
        return std::bit_cast<float>(static_cast<std::uint32_t>(random()) & 0xFF7FFFFF);
    };
    for (int i = 0; i < 500; ++i) {
        CGradientData gradient;
        gradient.SetType(static_cast<KGradientType>(static_cast<std::int32_t>(random())));
        gradient.SetAngle(single());
        gradient.SetStart({number(), number()});
        gradient.SetEnd({number(), number()});
        gradient.SetStartRadius(single());
        gradient.SetEndRadius(single());
        gradient.ColorList().clear();
        for (auto stops = random() % 40 + 1; stops > 0; --stops)
            gradient.ColorList().emplace_back(RGBColor{static_cast<std::uint16_t>(random()),
                                                       static_cast<std::uint16_t>(random()),
                                                       static_cast<std::uint16_t>(random())},
                                              number());
        expectSame(readBack(gradient), gradient);
    }
}

TEST(GradientBytes, NumbersThatAreNotFiniteSurvive) {
    auto gradient = sample();
    gradient.SetAngle(std::numeric_limits<float>::infinity());
    gradient.SetStart({std::numeric_limits<double>::quiet_NaN(), -std::numeric_limits<double>::infinity()});
    gradient.ColorList().emplace_back(RGBColor{}, std::numeric_limits<double>::quiet_NaN());
    expectSame(readBack(gradient), gradient);
}

TEST(GradientBytes, TheLayoutIsBigEndian) {
    const auto bytes = *gradientToBytes(CGradientData());
    ASSERT_EQ(bytes.size(), 72U + 2 * 14 + 4);
    EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 4), "KGRD");
    EXPECT_EQ(numberAt<std::uint32_t>(bytes, 8), bytes.size());
    EXPECT_EQ(numberAt<std::uint32_t>(bytes, 12), 1U);
    EXPECT_EQ(numberAt<std::uint64_t>(bytes, 20), std::bit_cast<std::uint64_t>(0.5));
    EXPECT_EQ(numberAt<std::uint16_t>(bytes, 86), 0xFFFFU);
}

TEST(GradientBytes, AGradientWithoutStopsHasNoBytes) {
    CGradientData gradient;
    gradient.ColorList().clear();
    EXPECT_EQ(gradientToBytes(gradient), std::nullopt);
}

TEST(GradientBytes, EverySingleWrongBitIsNoticed) {
    const auto whole = *gradientToBytes(sample());
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        auto bytes = whole;
        bytes[bit / 8] = static_cast<std::uint8_t>(bytes[bit / 8] ^ (1U << bit % 8));
        EXPECT_FALSE(gradientFromBytes(bytes)) << bit;
    }
}

TEST(GradientBytes, DamageIsNamed) {
    const auto whole = *gradientToBytes(sample());
    const auto damageOf = [](ByteView bytes) { return tests::errorOf(gradientFromBytes(bytes)); };
    EXPECT_EQ(damageOf({}), GradientDamage::NotAGradient);
    auto later = whole;
    later[7] = 2;
    EXPECT_EQ(damageOf(resealed(later)), GradientDamage::UnknownVersion);
    for (std::size_t size = 12; size < whole.size(); ++size)
        EXPECT_EQ(damageOf(ByteView(whole).first(size)), GradientDamage::WrongLength);
    auto longer = whole;
    longer.push_back(0);
    EXPECT_EQ(damageOf(longer), GradientDamage::WrongLength);
    for (const std::uint32_t count : {0U, 2U, 4U, 0xFFFFFFFFU, 0x12492492U}) {
        auto wrong = whole;
        setNumber(wrong, 68, count);
        EXPECT_EQ(damageOf(wrong), GradientDamage::WrongChecksum);
        EXPECT_EQ(damageOf(resealed(wrong)), GradientDamage::WrongStopCount) << count;
    }
}

TEST(GradientBytes, ARecordThatEndsBeforeItsStopsIsTooShort) {
    for (std::size_t size = 12 + 4; size < 72 + 4; ++size) {
        auto bytes = *gradientToBytes(sample());
        bytes.resize(size);
        setNumber(bytes, 8, static_cast<std::uint32_t>(size));
        EXPECT_EQ(tests::errorOf(gradientFromBytes(resealed(bytes))), GradientDamage::WrongLength) << size;
    }
}

TEST(GradientBytes, AMillionStopsAreKeptAndNoMore) {
    auto gradient = sample();
    gradient.ColorList().resize(1'000'000, CGradientColor({1, 2, 3}, 1));
    EXPECT_TRUE(gradientToBytes(gradient));
    gradient.ColorList().emplace_back(RGBColor{1, 2, 3}, 1);
    EXPECT_FALSE(gradientToBytes(gradient));
}

TEST(GradientBytes, ARecordOfTheRightLengthForNoStopsIsRefused) {
    auto bytes = *gradientToBytes(sample());
    bytes.resize(72 + 4);
    setNumber(bytes, 8, static_cast<std::uint32_t>(bytes.size()));
    setNumber(bytes, 68, std::uint32_t{0});
    EXPECT_EQ(tests::errorOf(gradientFromBytes(resealed(bytes))), GradientDamage::WrongStopCount);
}

} // namespace
