// Reading the classic resource file, trusting none of its offsets and counts.
#include "easel/classic/ResourceFork.h"

#include <algorithm>

namespace easel::classic {
namespace {

constexpr std::size_t kForkHeaderSize = 16;
constexpr std::size_t kMapFixedSize = 28; // up to and including the offset of the name list
constexpr std::size_t kTypeEntrySize = 8;
constexpr std::size_t kReferenceSize = 12;
constexpr std::uint16_t kNoName = 0xFFFF;

// Counts are stored less one, so that an empty list is 0xFFFF.
std::size_t countAt(ByteView bytes, std::size_t offset) {
    return static_cast<std::uint16_t>(numberAt<std::uint16_t>(bytes, offset) + 1U);
}

} // namespace

class ForkReader {
  public:
    explicit ForkReader(ByteView bytes) : bytes_(bytes) {}

    tl::expected<ResourceFork, ForkDamage> read() {
        if (bytes_.empty())
            return fork_;
        return readAll().map([this] { return std::move(fork_); });
    }

  private:
    using Read = tl::expected<void, ForkDamage>;

    Read readAll() {
        if (auto read = readAreas(); !read)
            return read;
        const std::size_t listOffset = numberAt<std::uint16_t>(map_, 24);
        const auto list = map_.subspan(std::min(listOffset, map_.size()));
        if (list.size() < 2)
            return tl::unexpected(ForkDamage::ListOutside);
        const std::size_t types = countAt(list, 0);
        if (!part(list, 2, types * kTypeEntrySize))
            return tl::unexpected(ForkDamage::ListOutside);
        for (std::size_t i = 0; i < types; ++i)
            if (auto read = readType(list, 2 + i * kTypeEntrySize); !read)
                return read;
        return {};
    }

    Read readAreas() {
        if (bytes_.size() < kForkHeaderSize)
            return tl::unexpected(ForkDamage::TooShort);
        const auto data =
            part(bytes_, numberAt<std::uint32_t>(bytes_, 0), numberAt<std::uint32_t>(bytes_, 8));
        const auto map =
            part(bytes_, numberAt<std::uint32_t>(bytes_, 4), numberAt<std::uint32_t>(bytes_, 12));
        if (!data)
            return tl::unexpected(ForkDamage::DataOutside);
        if (!map || map->size() < kMapFixedSize)
            return tl::unexpected(ForkDamage::MapOutside);
        data_ = *data;
        map_ = *map;
        auto& carried = fork_.carried_.header;
        const auto kept = std::min(carried.size(), bytes_.size() - kForkHeaderSize);
        // A file without the reserved space has its data or map there, which is nothing to carry along.
        const auto first = std::min(numberAt<std::uint32_t>(bytes_, 0), numberAt<std::uint32_t>(bytes_, 4));
        if (first >= kForkHeaderSize + carried.size())
            std::copy_n(bytes_.begin() + kForkHeaderSize, kept, carried.begin());
        fork_.carried_.mapAttributes = numberAt<std::uint16_t>(map_, 22);
        return {};
    }

    Read readType(ByteView list, std::size_t entry) {
        const auto type = numberAt<std::uint32_t>(list, entry);
        const std::size_t count = countAt(list, entry + 4);
        const std::size_t offset = numberAt<std::uint16_t>(list, entry + 6);
        const auto references = part(list, offset, count * kReferenceSize);
        // Lists that share their references could ask for more resources than the map has room for.
        if (!references || fork_.resources_.size() + count > map_.size() / kReferenceSize)
            return tl::unexpected(ForkDamage::ListOutside);
        for (std::size_t i = 0; i < count; ++i)
            if (auto read = readReference(type, references->subspan(i * kReferenceSize, kReferenceSize));
                !read)
                return read;
        return {};
    }

    Read readReference(std::uint32_t type, ByteView reference) {
        Resource resource;
        resource.type = type;
        resource.id = static_cast<std::int16_t>(numberAt<std::uint16_t>(reference, 0));
        const auto attributesAndOffset = numberAt<std::uint32_t>(reference, 4);
        resource.attributes = static_cast<std::uint8_t>(attributesAndOffset >> 24);
        if (auto read = readName(numberAt<std::uint16_t>(reference, 2), resource); !read)
            return read;
        const std::size_t offset = attributesAndOffset & 0xFFFFFF;
        if (!part(data_, offset, 4))
            return tl::unexpected(ForkDamage::ResourceOutside);
        const auto data = part(data_, offset + 4, numberAt<std::uint32_t>(data_, offset));
        if (!data)
            return tl::unexpected(ForkDamage::ResourceOutside);
        // Resources that share their bytes could ask for any amount of memory.
        dataRead_ += 4 + data->size();
        if (dataRead_ > data_.size())
            return tl::unexpected(ForkDamage::ResourcesOverlap);
        resource.data.assign(data->begin(), data->end());
        fork_.resources_.push_back(std::move(resource));
        return {};
    }

    Read readName(std::uint16_t offset, Resource& resource) const {
        if (offset == kNoName)
            return {};
        const std::size_t at = std::size_t{numberAt<std::uint16_t>(map_, 26)} + offset;
        const auto length = part(map_, at, 1);
        const auto name = length ? part(map_, at + 1, length->front()) : std::nullopt;
        if (!name)
            return tl::unexpected(ForkDamage::NameOutside);
        resource.name.emplace(name->begin(), name->end());
        return {};
    }

    ByteView bytes_;
    ByteView data_;
    ByteView map_;
    std::size_t dataRead_ = 0;
    ResourceFork fork_;
};

tl::expected<ResourceFork, ForkDamage> ResourceFork::read(ByteView bytes) {
    return ForkReader(bytes).read();
}

std::string describe(ForkDamage damage) {
    switch (damage) {
    case ForkDamage::TooShort:
        return "the resource fork is cut short";
    case ForkDamage::MapOutside:
        return "the resource map does not lie within the file";
    case ForkDamage::DataOutside:
        return "the resource data do not lie within the file";
    case ForkDamage::ListOutside:
        return "the resource map is damaged";
    case ForkDamage::NameOutside:
        return "the name of a resource does not lie within the map";
    case ForkDamage::ResourceOutside:
        return "a resource does not lie within the data";
    case ForkDamage::ResourcesOverlap:
        return "resources overlap";
    }
    return {};
}

} // namespace easel::classic
