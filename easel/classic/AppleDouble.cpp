// Reading and writing AppleDouble header files.
#include "easel/classic/AppleDouble.h"

#include <algorithm>

namespace easel::classic {
namespace {

constexpr std::uint32_t kMagic = 0x0005'1607;
constexpr std::size_t kHeaderSize = 26;
constexpr std::size_t kDescriptorSize = 12;
constexpr std::uint32_t kResourceForkId = 2;
constexpr std::uint32_t kFinderInfoId = 9;
constexpr std::size_t kFinderInfoSize = 32;

struct Descriptor {
    std::uint32_t id;
    std::uint32_t offset;
    std::uint32_t length;
};

Descriptor descriptorAt(ByteView bytes, std::size_t index) {
    const std::size_t at = kHeaderSize + index * kDescriptorSize;
    return {numberAt<std::uint32_t>(bytes, at), numberAt<std::uint32_t>(bytes, at + 4),
            numberAt<std::uint32_t>(bytes, at + 8)};
}

tl::expected<void, HeaderDamage> checkHeader(ByteView bytes) {
    if (bytes.size() < kHeaderSize)
        return tl::unexpected(HeaderDamage::TooShort);
    if (numberAt<std::uint32_t>(bytes, 0) != kMagic)
        return tl::unexpected(HeaderDamage::NotAppleDouble);
    const auto version = numberAt<std::uint32_t>(bytes, 4);
    if (version != AppleDouble::kVersion1 && version != AppleDouble::kVersion2)
        return tl::unexpected(HeaderDamage::UnknownVersion);
    return {};
}

FinderInfo finderInfoFrom(ByteView data) {
    if (data.size() < 8)
        return {};
    return {numberAt<std::uint32_t>(data, 0), numberAt<std::uint32_t>(data, 4)};
}

} // namespace

std::string describe(HeaderDamage damage) {
    switch (damage) {
    case HeaderDamage::TooShort:
        return "the header file is cut short";
    case HeaderDamage::NotAppleDouble:
        return "it is no AppleDouble header file";
    case HeaderDamage::UnknownVersion:
        return "it has an AppleDouble version other than 1 and 2";
    case HeaderDamage::EntryOutside:
        return "an entry of the header file does not lie within it";
    case HeaderDamage::EntriesOverlap:
        return "entries of the header file overlap";
    }
    return {};
}

tl::expected<AppleDouble, HeaderDamage> AppleDouble::read(ByteView bytes) {
    if (const auto checked = checkHeader(bytes); !checked)
        return tl::unexpected(checked.error());
    AppleDouble file;
    file.version_ = numberAt<std::uint32_t>(bytes, 4);
    std::copy_n(bytes.begin() + 8, file.filler_.size(), file.filler_.begin());
    const std::size_t count = numberAt<std::uint16_t>(bytes, 24);
    if (!part(bytes, kHeaderSize, count * kDescriptorSize))
        return tl::unexpected(HeaderDamage::TooShort);
    std::size_t total = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const auto descriptor = descriptorAt(bytes, i);
        const auto data = part(bytes, descriptor.offset, descriptor.length);
        if (!data)
            return tl::unexpected(HeaderDamage::EntryOutside);
        // Entries that share their bytes could ask for any amount of memory.
        total += data->size();
        if (total > bytes.size())
            return tl::unexpected(HeaderDamage::EntriesOverlap);
        file.entries_.push_back({descriptor.id, files::Bytes(data->begin(), data->end())});
    }
    return file;
}

files::Bytes AppleDouble::write() const {
    files::Bytes file;
    putNumber(file, kMagic);
    putNumber(file, version_);
    putBytes(file, filler_);
    putNumber(file, static_cast<std::uint16_t>(entries_.size()));
    std::size_t offset = kHeaderSize + entries_.size() * kDescriptorSize;
    for (const auto& entry : entries_) {
        putNumber(file, entry.id);
        putNumber(file, static_cast<std::uint32_t>(offset));
        putNumber(file, static_cast<std::uint32_t>(entry.data.size()));
        offset += entry.data.size();
    }
    for (const auto& entry : entries_)
        putBytes(file, entry.data);
    return file;
}

FinderInfo AppleDouble::finderInfo() const {
    const auto* const entry = find(kFinderInfoId);
    return entry ? finderInfoFrom(entry->data) : FinderInfo{};
}

void AppleDouble::setFinderInfo(const FinderInfo& info) {
    auto& data = at(kFinderInfoId).data;
    data.resize(std::max(data.size(), kFinderInfoSize));
    setNumber(data, 0, info.type);
    setNumber(data, 4, info.creator);
}

ByteView AppleDouble::resourceFork() const {
    const auto* const entry = find(kResourceForkId);
    return entry ? ByteView(entry->data) : ByteView();
}

void AppleDouble::setResourceFork(files::Bytes fork) {
    at(kResourceForkId).data = std::move(fork);
}

const AppleDouble::Entry* AppleDouble::find(std::uint32_t id) const {
    const auto found =
        std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) { return entry.id == id; });
    return found == entries_.end() ? nullptr : &*found;
}

AppleDouble::Entry& AppleDouble::at(std::uint32_t id) {
    const auto found =
        std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) { return entry.id == id; });
    return found == entries_.end() ? entries_.emplace_back(Entry{id, {}}) : *found;
}

FinderInfoPlace findFinderInfo(ByteView beginning) {
    using Answer = FinderInfoPlace::Answer;
    if (!checkHeader(beginning))
        return {Answer::NotAppleDouble, {}, 0};
    const std::size_t count = numberAt<std::uint16_t>(beginning, 24);
    const std::size_t tableEnd = kHeaderSize + count * kDescriptorSize;
    for (std::size_t i = 0; i < count; ++i) {
        if (!part(beginning, kHeaderSize + i * kDescriptorSize, kDescriptorSize))
            return {Answer::ReadMore, {}, tableEnd};
        const auto descriptor = descriptorAt(beginning, i);
        if (descriptor.id != kFinderInfoId)
            continue;
        const auto length = std::min<std::uint32_t>(descriptor.length, kFinderInfoSize);
        if (const auto data = part(beginning, descriptor.offset, length))
            return {Answer::Here, finderInfoFrom(*data), 0};
        return {Answer::ReadMore, {}, std::uint64_t{descriptor.offset} + length};
    }
    return {Answer::None, {}, 0};
}

} // namespace easel::classic
