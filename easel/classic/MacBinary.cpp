// Writing and reading MacBinary files.
#include "easel/classic/MacBinary.h"

#include <algorithm>
#include <ctime>

namespace easel::classic {
namespace {

constexpr std::size_t kBlockSize = 128;
constexpr std::size_t kLongestMacBinaryName = 63;
constexpr std::size_t kNameOffset = 1;
constexpr std::size_t kInfoOffset = 65;
constexpr std::size_t kDataSizeOffset = 83;
constexpr std::size_t kDateOffset = 91;
constexpr std::size_t kVersionOffset = 122;
constexpr std::size_t kChecksumOffset = 124;
constexpr std::uint8_t kVersion2 = 129;

// The CRC of XMODEM: polynomial 0x1021, starting with 0.
std::uint16_t headerChecksum(ByteView bytes) {
    std::uint32_t crc = 0;
    for (const auto byte : bytes) {
        crc ^= std::uint32_t{byte} << 8;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 0x8000) != 0 ? crc << 1 ^ 0x1021 : crc << 1;
    }
    return static_cast<std::uint16_t>(crc);
}

std::size_t padded(std::size_t size) {
    return (size + kBlockSize - 1) / kBlockSize * kBlockSize;
}

void putPadded(files::Bytes& file, ByteView fork) {
    putBytes(file, fork);
    file.resize(padded(file.size()));
}

} // namespace

std::uint32_t dateNow() {
    constexpr std::int64_t kSecondsTo1970 = 2'082'844'800;
    return static_cast<std::uint32_t>(std::time(nullptr) + kSecondsTo1970);
}

files::Bytes writeMacBinary(const MacBinaryFile& source) {
    files::Bytes file(kBlockSize);
    const auto name = std::string_view(source.name).substr(0, kLongestMacBinaryName);
    file[kNameOffset] = static_cast<std::uint8_t>(name.size());
    std::copy(name.begin(), name.end(), file.begin() + kNameOffset + 1);
    setNumber(file, kInfoOffset, source.info.type);
    setNumber(file, kInfoOffset + 4, source.info.creator);
    setNumber(file, kDataSizeOffset, static_cast<std::uint32_t>(source.data.size()));
    setNumber(file, kDataSizeOffset + 4, static_cast<std::uint32_t>(source.resourceFork.size()));
    setNumber(file, kDateOffset, source.date);
    setNumber(file, kDateOffset + 4, source.date);
    file[kVersionOffset] = kVersion2;
    file[kVersionOffset + 1] = kVersion2;
    setNumber(file, kChecksumOffset, headerChecksum(ByteView(file).first(kChecksumOffset)));
    putPadded(file, source.data);
    putPadded(file, source.resourceFork);
    return file;
}

std::optional<MacBinaryFile> readMacBinary(ByteView bytes) {
    if (bytes.size() < kBlockSize || bytes[0] != 0 || bytes[kVersionOffset + 1] != kVersion2 ||
        numberAt<std::uint16_t>(bytes, kChecksumOffset) != headerChecksum(bytes.first(kChecksumOffset)))
        return std::nullopt;
    const std::size_t nameSize = bytes[kNameOffset];
    const std::size_t dataSize = numberAt<std::uint32_t>(bytes, kDataSizeOffset);
    const auto data = part(bytes, kBlockSize, dataSize);
    const auto fork =
        part(bytes, kBlockSize + padded(dataSize), numberAt<std::uint32_t>(bytes, kDataSizeOffset + 4));
    if (nameSize < 1 || nameSize > kLongestMacBinaryName || !data || !fork)
        return std::nullopt;
    const auto name = bytes.subspan(kNameOffset + 1, nameSize);
    return MacBinaryFile{
        {name.begin(), name.end()},
        {numberAt<std::uint32_t>(bytes, kInfoOffset), numberAt<std::uint32_t>(bytes, kInfoOffset + 4)},
        {data->begin(), data->end()},
        {fork->begin(), fork->end()},
        numberAt<std::uint32_t>(bytes, kDateOffset)};
}

} // namespace easel::classic
