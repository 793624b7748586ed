// Changing and writing the classic resource file.
#include "easel/classic/ResourceFork.h"

#include <algorithm>
#include <limits>
#include <map>

namespace easel::classic {
namespace {

constexpr std::uint32_t kDataStart = 256;
constexpr std::size_t kLargestDataOffset = 0xFFFFFF;
constexpr std::size_t kLargestMapOffset = 0xFFFF;
constexpr std::size_t kNameLimit = 255;

auto sameTypeAndId(std::uint32_t type, std::int16_t id) {
    return [=](const Resource& resource) { return resource.type == type && resource.id == id; };
}

// The resources of each type, types in the order of their first resource.
struct TypeGroup {
    std::uint32_t type;
    std::vector<std::size_t> members;
};

std::vector<TypeGroup> groupsOf(const std::vector<Resource>& resources) {
    std::vector<TypeGroup> groups;
    std::map<std::uint32_t, std::size_t> groupOfType;
    for (std::size_t i = 0; i < resources.size(); ++i) {
        const auto [known, isNew] = groupOfType.try_emplace(resources[i].type, groups.size());
        if (isNew)
            groups.push_back({resources[i].type, {}});
        groups[known->second].members.push_back(i);
    }
    return groups;
}

struct DataArea {
    files::Bytes bytes;
    std::vector<std::uint32_t> offsets;
};

std::optional<DataArea> layOutData(const std::vector<Resource>& resources) {
    DataArea area;
    for (const auto& resource : resources) {
        if (area.bytes.size() > kLargestDataOffset ||
            resource.data.size() > std::numeric_limits<std::int32_t>::max())
            return std::nullopt;
        area.offsets.push_back(static_cast<std::uint32_t>(area.bytes.size()));
        putNumber(area.bytes, static_cast<std::uint32_t>(resource.data.size()));
        putBytes(area.bytes, resource.data);
    }
    return area;
}

std::uint16_t storedCount(std::size_t count) {
    return static_cast<std::uint16_t>(count - 1);
}

} // namespace

const Resource* ResourceFork::find(std::uint32_t type, std::int16_t id) const {
    const auto found = std::find_if(resources_.begin(), resources_.end(), sameTypeAndId(type, id));
    return found == resources_.end() ? nullptr : &*found;
}

void ResourceFork::put(Resource resource) {
    const auto found =
        std::find_if(resources_.begin(), resources_.end(), sameTypeAndId(resource.type, resource.id));
    if (found == resources_.end())
        resources_.push_back(std::move(resource));
    else
        *found = std::move(resource);
}

void ResourceFork::remove(std::uint32_t type, std::int16_t id) {
    std::erase_if(resources_, sameTypeAndId(type, id));
}

std::optional<files::Bytes> ResourceFork::write() const {
    const auto data = layOutData(resources_);
    if (!data)
        return std::nullopt;
    const auto groups = groupsOf(resources_);
    files::Bytes types;
    files::Bytes references;
    files::Bytes names;
    putNumber(types, storedCount(groups.size()));
    const std::size_t typeListSize = 2 + 8 * groups.size();
    for (const auto& group : groups) {
        const std::size_t offset = typeListSize + references.size();
        if (offset > kLargestMapOffset)
            return std::nullopt;
        putNumber(types, group.type);
        putNumber(types, storedCount(group.members.size()));
        putNumber(types, static_cast<std::uint16_t>(offset));
        for (const auto i : group.members) {
            const auto& resource = resources_[i];
            if (names.size() >= kLargestMapOffset || (resource.name && resource.name->size() > kNameLimit))
                return std::nullopt;
            putNumber(references, static_cast<std::uint16_t>(resource.id));
            putNumber(references,
                      resource.name ? static_cast<std::uint16_t>(names.size()) : std::uint16_t{0xFFFF});
            putNumber(references, std::uint32_t{resource.attributes} << 24 | data->offsets[i]);
            putNumber(references, std::uint32_t{0});
            if (resource.name) {
                names.push_back(static_cast<std::uint8_t>(resource.name->size()));
                putBytes(names, viewOf(*resource.name));
            }
        }
    }
    constexpr std::uint16_t kTypeListOffset = 28;
    const std::size_t nameListOffset = kTypeListOffset + types.size() + references.size();
    if (nameListOffset > kLargestMapOffset)
        return std::nullopt;

    files::Bytes header;
    putNumber(header, kDataStart);
    putNumber(header, static_cast<std::uint32_t>(kDataStart + data->bytes.size()));
    putNumber(header, static_cast<std::uint32_t>(data->bytes.size()));
    putNumber(header, static_cast<std::uint32_t>(nameListOffset + names.size()));
    files::Bytes file = header;
    putBytes(file, carried_.header);
    putBytes(file, data->bytes);
    putBytes(file, header);
    putNumber(file, std::uint32_t{0});
    putNumber(file, std::uint16_t{0});
    putNumber(file, carried_.mapAttributes);
    putNumber(file, kTypeListOffset);
    putNumber(file, static_cast<std::uint16_t>(nameListOffset));
    putBytes(file, types);
    putBytes(file, references);
    putBytes(file, names);
    return file;
}

} // namespace easel::classic
