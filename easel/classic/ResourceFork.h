// The classic resource file: typed, numbered, named pieces of data behind a map.
#pragma once

#include "easel/classic/BigEndian.h"

#include <array>
#include <optional>
#include <string>
#include <tl/expected.hpp>
#include <vector>

namespace easel::classic {

struct Resource {
    std::uint32_t type = 0;
    std::int16_t id = 0;
    std::uint8_t attributes = 0;
    std::optional<std::string> name; // Mac Roman, at most 255 bytes
    files::Bytes data;

    bool operator==(const Resource&) const = default;
};

enum class ForkDamage {
    TooShort,         // no room for the header
    MapOutside,       // the map does not lie within the file
    DataOutside,      // the data area does not lie within the file
    ListOutside,      // the type list or a reference list does not lie within the map
    NameOutside,      // a name does not lie within the map
    ResourceOutside,  // a resource does not lie within the data area
    ResourcesOverlap, // the resources together are larger than the area that holds them
};

// In words for the user.
std::string describe(ForkDamage damage);

class ResourceFork {
  public:
    // What header and map keep for the system and for applications: carried along, never looked into.
    struct Carried {
        std::array<std::uint8_t, 240> header{};
        std::uint16_t mapAttributes = 0;

        bool operator==(const Carried&) const = default;
    };

    // Takes any order of types, resources and data. No bytes at all are a fork without resources.
    static tl::expected<ResourceFork, ForkDamage> read(ByteView bytes);
    // Nothing where the layout has no room: its offsets have 16 bits in the map and 24 in the data.
    std::optional<files::Bytes> write() const;

    const std::vector<Resource>& resources() const { return resources_; }
    // The first of that type and id, or null.
    const Resource* find(std::uint32_t type, std::int16_t id) const;
    // Takes the place of the first of its type and id, or is added.
    void put(Resource resource);
    void remove(std::uint32_t type, std::int16_t id);

    bool operator==(const ResourceFork&) const = default;

  private:
    friend class ForkReader;

    std::vector<Resource> resources_;
    Carried carried_;
};

} // namespace easel::classic
