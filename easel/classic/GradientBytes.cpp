// Writing a gradient to bytes, and reading it back from bytes that may be anything.
#include "easel/classic/GradientBytes.h"

#include <bit>
#include <libdeflate.h>

namespace easel::classic {
namespace {

constexpr std::uint32_t kRecordMagic = fourCharacters("KGRD");
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kLengthOffset = 8;
constexpr std::size_t kRecordOffset = 12;
constexpr std::size_t kCountOffset = 68;
constexpr std::size_t kStopsOffset = 72;
constexpr std::size_t kStopSize = 14;
constexpr std::size_t kChecksumSize = 4;
constexpr std::size_t kMostStops = 1'000'000;

void putDouble(files::Bytes& bytes, double value) {
    putNumber(bytes, std::bit_cast<std::uint64_t>(value));
}

double doubleAt(ByteView bytes, std::size_t offset) {
    return std::bit_cast<double>(numberAt<std::uint64_t>(bytes, offset));
}

std::uint32_t checksum(ByteView bytes) {
    return libdeflate_crc32(0, bytes.data(), bytes.size());
}

tl::expected<void, GradientDamage> check(ByteView bytes) {
    if (bytes.size() < kRecordOffset || numberAt<std::uint32_t>(bytes, 0) != kRecordMagic)
        return tl::unexpected(GradientDamage::NotAGradient);
    if (numberAt<std::uint32_t>(bytes, 4) != kVersion)
        return tl::unexpected(GradientDamage::UnknownVersion);
    if (bytes.size() < kStopsOffset + kChecksumSize ||
        numberAt<std::uint32_t>(bytes, kLengthOffset) != bytes.size())
        return tl::unexpected(GradientDamage::WrongLength);
    const auto checked = bytes.first(bytes.size() - kChecksumSize);
    if (numberAt<std::uint32_t>(bytes, checked.size()) != checksum(checked))
        return tl::unexpected(GradientDamage::WrongChecksum);
    const std::uint64_t count = numberAt<std::uint32_t>(bytes, kCountOffset);
    if (count == 0 || kStopsOffset + count * kStopSize != checked.size())
        return tl::unexpected(GradientDamage::WrongStopCount);
    return {};
}

CGradientColor stopAt(ByteView bytes, std::size_t offset) {
    const RGBColor color{numberAt<std::uint16_t>(bytes, offset), numberAt<std::uint16_t>(bytes, offset + 2),
                         numberAt<std::uint16_t>(bytes, offset + 4)};
    return {color, doubleAt(bytes, offset + 6)};
}

} // namespace

std::optional<files::Bytes> gradientToBytes(const CGradientData& gradient) {
    const auto& stops = gradient.ColorList();
    if (stops.empty() || stops.size() > kMostStops)
        return std::nullopt;
    files::Bytes bytes;
    putNumber(bytes, kRecordMagic);
    putNumber(bytes, kVersion);
    putNumber(bytes, static_cast<std::uint32_t>(kStopsOffset + stops.size() * kStopSize + kChecksumSize));
    putNumber(bytes, static_cast<std::uint32_t>(gradient.Type()));
    putNumber(bytes, std::bit_cast<std::uint32_t>(gradient.Angle()));
    for (const double value : {gradient.Start().h, gradient.Start().v, gradient.End().h, gradient.End().v,
                               gradient.StartRadius(), gradient.EndRadius()})
        putDouble(bytes, value);
    putNumber(bytes, static_cast<std::uint32_t>(stops.size()));
    for (const auto& stop : stops) {
        const auto color = stop.ColorRGB();
        putNumber(bytes, color.red);
        putNumber(bytes, color.green);
        putNumber(bytes, color.blue);
        putDouble(bytes, stop.Percent());
    }
    putNumber(bytes, checksum(bytes));
    return bytes;
}

tl::expected<CGradientData, GradientDamage> gradientFromBytes(ByteView bytes) {
    if (const auto checked = check(bytes); !checked)
        return tl::unexpected(checked.error());
    CGradientData gradient;
    gradient.SetType(static_cast<KGradientType>(numberAt<std::uint32_t>(bytes, kRecordOffset)));
    gradient.SetAngle(std::bit_cast<float>(numberAt<std::uint32_t>(bytes, kRecordOffset + 4)));
    gradient.SetStart({doubleAt(bytes, kRecordOffset + 8), doubleAt(bytes, kRecordOffset + 16)});
    gradient.SetEnd({doubleAt(bytes, kRecordOffset + 24), doubleAt(bytes, kRecordOffset + 32)});
    // Radii enter a record through single precision only, so nothing is lost in passing them that way again.
    gradient.SetStartRadius(static_cast<float>(doubleAt(bytes, kRecordOffset + 40)));
    gradient.SetEndRadius(static_cast<float>(doubleAt(bytes, kRecordOffset + 48)));
    gradient.ColorList().clear();
    for (std::size_t at = kStopsOffset; at < bytes.size() - kChecksumSize; at += kStopSize)
        gradient.ColorList().push_back(stopAt(bytes, at));
    return gradient;
}

std::string describe(GradientDamage damage) {
    switch (damage) {
    case GradientDamage::NotAGradient:
        return "it holds no gradient";
    case GradientDamage::UnknownVersion:
        return "its gradient was written by a later version";
    case GradientDamage::WrongLength:
        return "its gradient is cut short or too long";
    case GradientDamage::WrongChecksum:
        return "its gradient is damaged: the checksum is wrong";
    case GradientDamage::WrongStopCount:
        return "its gradient has a wrong number of stops";
    }
    return {};
}

} // namespace easel::classic
